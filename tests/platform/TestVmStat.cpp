// The report of this machine's memory: our own, or that of a vm_stat in PATH, whatever it does.

#include "platform/linux/VmStat.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"
#include "tests/support/Processes.h"

#include <QDeadlineTimer>

#include <ctime>
#include <numeric>
#include <sys/resource.h>

static QByteArray Read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Pages free, active, inactive, speculative and wired down.
static QList<quint64> Counts(const QString &report)
{
    static const QRegularExpression count(" ([0-9]+)\\.");
    QList<quint64> counts;
    for (auto match = count.globalMatch(report); match.hasNext();) {
        counts << match.next().captured(1).toULongLong();
    }
    return counts;
}

class TestVmStat : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        BundledFake::InPath();
        const BundledFake program("vm_stat", "echo installed"); // found here once and for all
        QCOMPARE(VmStat(), "installed\r");
    }
    void init() { FailOnWarnings(); }

    void everyKernel()
    {
        // One was captured; the others have the lines of their kernels with figures made to be told apart.
        const QFileInfoList kernels = QDir(FIXTURES).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        QVERIFY(!kernels.isEmpty());
        for (const QFileInfo &kernel : kernels) {
            const QByteArray meminfo = Read(kernel.filePath() + "/proc/meminfo");
            const QString report = VmStatReport(meminfo.constData());
            QCOMPARE(report + '\r', QString(Read(kernel.filePath() + "/vm_stat.txt")).replace('\n', '\r'));
            const auto counts = Counts(report);
            QCOMPARE(std::accumulate(counts.begin(), counts.end(), quint64{0}),
                     meminfo.simplified().split(' ').at(1).toULongLong() / 4);
        }
    }

    void senselessMeminfo()
    {
        const QByteArray total = "MemTotal: 4000 kB\n";
        const QByteArray lists =
            "Active(anon): 400\nInactive(anon): 80\nActive(file): 200\nInactive(file): 120\n";
        const std::pair<QByteArray, QList<quint64>> cases[] = {
            {lists + "MemFree:1000\nMemTotal:4000", {250, 170, 30, 0, 550}},
            {total + "MemFree: 4 kB\nInactive: 20 kB\nInactive(anon): 80 kB\n", {1, 20, 0, 0, 979}},
            {total + "MemFree: 3600 kB\n" + lists, {900, 70, 30, 0, 0}},
            {total + "MemFree: 5000 kB\nActive: 18446744073709551615 kB\n", {1000, 0, 0, 0, 0}},
            {total + "MemFree: 8 kB\nActive: -8 kB\nInactive: 123456789012345678901\n:\n", {2, 0, 0, 0, 998}},
            {"MemTotal: -4000 kB\nMemFree: 4 kB\n", {}},
            {total, {}},
            {"MemTotal: 18446744073709551615 kB\nMemFree: 0 kB\n", {}}};
        for (const auto &[meminfo, counts] : cases) {
            QCOMPARE(Counts(VmStatReport(meminfo.constData())), counts);
        }
    }

    void installed()
    {
        const BundledFake program("vm_stat");
        const std::pair<const char *, QString> cases[] = {
            {"cat; printf ' a\\351\\n\\nb\\n'", " a\u00e9\r\rb\r"}, // empty standard input, Latin-1
            {"echo a; exit 1", {}},
            {"exec yes", {}}};
        const QDeadlineTimer deadline(5000);
        for (const auto &[body, report] : cases) {
            program.Write(body);
            QCOMPARE(VmStat(), report);
        }
        QVERIFY(!deadline.hasExpired());
        program.Write("echo a", false);
        QCOMPARE(Counts(VmStat()).size(), 5);
    }

    void hanging()
    {
        const BundledFake child("child");
        const BundledFake program("vm_stat",
                                  "trap '' TERM; exec >&-; sleep 61 & echo $! >${0%/*}/child; wait");
        const QDeadlineTimer deadline(12000);
        const std::clock_t before = std::clock();
        QCOMPARE(VmStat(), QString());
        QVERIFY(!deadline.hasExpired() && std::clock() - before < CLOCKS_PER_SEC);
        const QByteArray pid = Read(child.path).trimmed();
        QVERIFY(!pid.isEmpty());
        QTRY_VERIFY(!IsAlive(pid));
    }

    void descriptors()
    {
        BundledFake program("vm_stat", "echo Pages free: 1.");
        for (const int counts : {1, 5}) {
            QCOMPARE(Counts(VmStat()).size(), counts);
            const qsizetype before = CountOwn("fd");
            rlimit usual{};
            getrlimit(RLIMIT_NOFILE, &usual);
            const rlimit none = {3, usual.rlim_max};
            setrlimit(RLIMIT_NOFILE, &none);
            const QString without = VmStat();
            setrlimit(RLIMIT_NOFILE, &usual);
            QCOMPARE(without, QString());
            for (int i = 0; i < 50; ++i) {
                QCOMPARE(Counts(VmStat()).size(), counts);
            }
            QCOMPARE(CountOwn("fd"), before);
            QFile::remove(program.path);
        }
    }
};

QTEST_GUILESS_MAIN(TestVmStat)
#include "TestVmStat.moc"
