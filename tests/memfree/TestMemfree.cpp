// The real program, as a user starts it. It never frees anything here: it is asked for less than is free, or
// only for its plan.
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

/// "STATUS|STANDARD OUTPUT|STANDARD ERROR" of a run.
static QString Run(const QStringList &arguments, const std::function<void()> &inChild = {})
{
    QProcess process;
    process.setChildProcessModifier(inChild);
    process.start(MEMFREE, arguments);
    const bool bExited = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return (bExited ? QString::number(process.exitCode()) : "did not exit") + '|' +
           process.readAllStandardOutput() + '|' + process.readAllStandardError();
}

class TestMemfree : public QObject
{
    Q_OBJECT

private slots:
    void BadArguments()
    {
        QCOMPARE(Run({"-n"}), "2||memfree: a byte count is needed; see memfree --help\n");
        QCOMPARE(Run({"1", "2"}), "2||memfree: one byte count only, not also \"2\"\n");
        QCOMPARE(Run({"--fast", "1"}), "2||memfree: no such option: \"--fast\"\n");
        for (const QString bad : {"", "0", "-5", "+5", "12x", " 4", "4 ", "1.5", "9223372036854775808"}) {
            QCOMPARE(Run({bad}), "2||memfree: not a byte count: \"" + bad + "\"\n");
        }
    }

    void GoodArguments()
    {
        const QRegularExpression nothingToDo("^0\\|nothing to do: [0-9.]+ [KMG]iB are free already\n\\|$");
        const QRegularExpression plan("^0\\|[0-9.]+ [KMG]iB inactive, .* available of .*\nwould [^|]*\n\\|$");
        QVERIFY(Run({"--help"}).startsWith("0|usage: memfree [--dry-run] BYTES\n"));
        QVERIFY(Run({"4096"}).contains(nothingToDo));
        QVERIFY(Run({"--dry-run", "9223372036854775807"}).contains(plan));
        // A lost reader is no failure.
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe(ends), 0);
        ::close(ends[0]);
        QCOMPARE(Run({"4096"}, [&ends] { ::dup2(ends[1], STDOUT_FILENO); }), "0||");
    }

    /// A file that others can open, or that belongs to them, is no lock.
    void OneRunAtATime()
    {
        if (QSysInfo::kernelType() != "linux") {
            QSKIP("only on Linux");
        }
        const std::string name = "/kelvo-memfree-" + std::to_string(::getuid());
        const int lock = ::shm_open(name.c_str(), O_RDWR | O_CREAT, 0600);
        QCOMPARE(::flock(lock, LOCK_EX), 0);
        QCOMPARE(Run({"4096"}), "0|nothing to do: another run is in progress\n|");
        ::fchmod(lock, 0644);
        const QString withoutLock = Run({"4096"});
        ::fchmod(lock, 0600);
        ::close(lock);
        QVERIFY(withoutLock.contains("are free already"));
    }
};

QTEST_GUILESS_MAIN(TestMemfree)
#include "TestMemfree.moc"
