// Pressure for real, but with little: the child that holds the memory, the file, and what is left when one is
// killed.
#include "memfree/ByteCount.h"
#include "memfree/DropCaches.h"
#include "memfree/MemoryState.h"
#include "memfree/Pressure.h"
#include "memfree/PressureChild.h"
#include "memfree/PressureFile.h"
#include "tests/memfree/TemporaryTree.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

Q_DECLARE_METATYPE(Stop)

namespace {

/// Says that there is plenty of everything, whatever this machine is up to.
const QByteArray meminfo = "MemTotal: 8000000 kB\nMemFree: 2000000 kB\nMemAvailable: 5000000 kB\n"
                           "Active(file): 400000 kB\nInactive(file): 3000000 kB\n"
                           "SwapTotal: 1000000 kB\nSwapFree: 1000000 kB\n";

bool HaveChild()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

qsizetype Descriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

/// How many processes of that group there are, dead ones that nobody has reaped left out.
int CountInGroup(qint64 group)
{
    int nFound = 0;
    for (const QString &id : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(id));
        if (id.toInt() > 0 && file.open(QIODevice::ReadOnly)) {
            const QByteArray stat = file.readAll();
            const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
            nFound += fields.size() > 2 && fields[2].toLongLong() == group && fields[0] != "Z";
        }
    }
    return nFound;
}

} // namespace

class TestPressure : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        proc.Write("meminfo", meminfo);
        // Wherever this is built or run there is a disk somewhere, save on machines that run from memory.
        disk = FindPressureDirectory(
            {QDir::currentPath().toStdString(), QDir::homePath().toStdString(), "/var/tmp", "/tmp"});
    }
    void init()
    {
        proc.Write("meminfo", meminfo);
        proc.Write("vmstat", "");
        nDescriptors = Descriptors();
    }
    void cleanup()
    {
        QVERIFY(!HaveChild());
        QCOMPARE(Descriptors(), nDescriptors);
    }

    void FileSystems_data()
    {
        QTest::addColumn<QByteArray>("directory");
        QTest::newRow("shared memory") << QByteArray("/dev/shm");
        QTest::newRow("no disk at all") << QByteArray("/proc");
        QTest::newRow("devices") << QByteArray("/dev");
        QTest::newRow("not there") << QByteArray("/nowhere/at/all");
        QTest::newRow("a file") << QByteArray("/etc/passwd");
        QTest::newRow("empty") << QByteArray("");
    }
    void FileSystems()
    {
        QFETCH(QByteArray, directory);
        QCOMPARE(OpenPressureFile(directory.toStdString(), 4096), -1);
        QVERIFY(FindPressureDirectory({directory.toStdString()}).empty());
    }

    void FileHasNeitherNameNorBlocks()
    {
        NeedDisk();
        const QTemporaryDir directory(QString::fromStdString(disk) + "/memfree-test-XXXXXX");
        const int descriptor = OpenPressureFile(directory.path().toStdString(), 8 * nBytesPerGiB);
        QVERIFY(descriptor >= 0);
        struct stat status = {};
        QCOMPARE(fstat(descriptor, &status), 0);
        close(descriptor);
        QCOMPARE(quint64(status.st_size), quint64(8 * nBytesPerGiB));
        QCOMPARE(quint64(status.st_blocks), 0ULL);
        QCOMPARE(quint64(status.st_nlink), 0ULL);
        QVERIFY(QDir(directory.path()).isEmpty());
    }

    void ChildPressesAndGivesBack_data() { Kinds(); }
    void ChildPressesAndGivesBack()
    {
        QFETCH(bool, bFile);
        NeedDisk(bFile);
        PressureSource source = {-1, 32 * nBytesPerMiB};
        if (bFile) {
            source.descriptor = OpenPressureFile(disk, source.nSize);
        }
        {
            PressureChild child(source);
            QVERIFY(child.Started());
            PressureReply reply;
            for (std::uint64_t nPressed = 16 * nBytesPerMiB; nPressed <= source.nSize;
                 nPressed += 16 * nBytesPerMiB) {
                QVERIFY(child.Press(16 * nBytesPerMiB));
                QVERIFY(child.WaitForReply(20000, reply));
                QVERIFY(reply.bDone);
                // Some pages may be taken at once on a machine that is short of memory; a few of our own come
                // along.
                QVERIFY(reply.nResident > nPressed / 2);
                QVERIFY(reply.nResident < nPressed + 4 * nBytesPerMiB);
            }
        }
        if (bFile) {
            close(source.descriptor);
        }
    }

    void StopsAtTheBound_data() { Kinds(); }
    void StopsAtTheBound()
    {
        QFETCH(bool, bFile);
        NeedDisk(bFile);
        PressureProgress last;
        QCOMPARE(PressWith(bFile, 40 * nBytesPerMiB, [&last](const PressureProgress &now) { last = now; }),
                 Stop::Bound);
        QVERIFY(last.nResident >= 40 * nBytesPerMiB);
        QVERIFY(last.nPressed <= 44 * nBytesPerMiB);
    }

    void StopsAtHarm_data()
    {
        QTest::addColumn<QByteArray>("meminfoThen");
        QTest::addColumn<QByteArray>("vmstatThen");
        QTest::addColumn<Stop>("stop");
        const auto changed = [](const char *before, const char *now) {
            return QByteArray(meminfo).replace(before, now);
        };
        QTest::newRow("swap") << changed("SwapFree: 1000000", "SwapFree: 900000") << QByteArray()
                              << Stop::Swapping;
        QTest::newRow("reserve") << changed("MemAvailable: 5000000", "MemAvailable: 300000") << QByteArray()
                                 << Stop::ShortOfMemory;
        QTest::newRow("refaults") << meminfo << QByteArray("workingset_refault_file 5000\n")
                                  << Stop::EvictingInUse;
        QTest::newRow("nothing left")
            << changed("Inactive(file): 3000000", "Inactive(file): 0") << QByteArray() << Stop::NothingLeft;
        QTest::newRow("unreadable") << QByteArray() << QByteArray() << Stop::Failed;
    }
    void StopsAtHarm()
    {
        QFETCH(QByteArray, meminfoThen);
        QFETCH(QByteArray, vmstatThen);
        QFETCH(Stop, stop);
        NeedDisk();
        // Some GiB are allowed; the step that brings the harm is the last.
        int nSteps = 0;
        QCOMPARE(PressWith(true, 4 * nBytesPerGiB,
                           [&](const PressureProgress &) {
                               ++nSteps;
                               proc.Write("meminfo", meminfoThen);
                               proc.Write("vmstat", vmstatThen);
                           }),
                 stop);
        QCOMPARE(nSteps, 1);
    }

    void NoPlaceForTheFile()
    {
        PressureRequest request;
        request.directory = "/dev/shm";
        request.nBound = nBytesPerMiB;
        QCOMPARE(Press(proc.Path(), proc.Path("cgroup"), request), Stop::Failed);
    }

    void KilledAtAnyMoment_data() { Kinds(); }
    void KilledAtAnyMoment()
    {
        QFETCH(bool, bFile);
        NeedDisk(bFile);
        const QTemporaryDir directory(QString::fromStdString(disk) + "/memfree-test-XXXXXX");
        for (const int signal : {SIGKILL, SIGTERM, SIGINT, SIGHUP, SIGKILL, SIGKILL, SIGKILL, SIGKILL}) {
            QProcess process;
            process.setChildProcessModifier([] { ::setpgid(0, 0); });
            process.start(QStringLiteral(PRESS_FOR_EVER),
                          {QString::fromStdString(proc.Path()), bFile ? directory.path() : QString()});
            QVERIFY(process.waitForStarted());
            const qint64 group = process.processId();
            QTest::qWait(static_cast<int>(QRandomGenerator::global()->bounded(60)));
            QCOMPARE(::kill(static_cast<pid_t>(group), signal), 0);
            QVERIFY(process.waitForFinished(5000));
            QCOMPARE(process.exitStatus(), QProcess::CrashExit);
            QTRY_COMPARE_WITH_TIMEOUT(CountInGroup(group), 0, 5000);
            QVERIFY(QDir(directory.path())
                        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                        .isEmpty());
        }
    }

    void SyncIsBounded()
    {
        QElapsedTimer timer;
        timer.start();
        SyncWithin(0);
        QVERIFY(timer.elapsed() < 2000);
        // The one that was given up, if it took its time.
        QTRY_VERIFY_WITH_TIMEOUT(::waitpid(-1, nullptr, WNOHANG) != 0, 60000);
    }

    void CachesAreDroppedByOneWrite()
    {
        TemporaryTree tree;
        QVERIFY(!MayDropCaches(tree.Path()));
        QVERIFY(!DropPageCache(tree.Path()));
        tree.Write("sys/vm/drop_caches", "0\n");
        QVERIFY(MayDropCaches(tree.Path()));
        QVERIFY(DropPageCache(tree.Path()));
        QCOMPARE(tree.Read("sys/vm/drop_caches"), QByteArray("1\n"));
    }

private:
    static void Kinds()
    {
        QTest::addColumn<bool>("bFile");
        QTest::newRow("file") << true;
        QTest::newRow("anonymous") << false;
    }
    void NeedDisk(bool bNeeded = true) const
    {
        if (bNeeded && disk.empty()) {
            QSKIP("no disk file system that this user may write to");
        }
    }
    Stop PressWith(bool bFile, std::uint64_t nBound,
                   const std::function<void(const PressureProgress &)> &onProgress)
    {
        MemoryState before;
        std::string error;
        if (!ReadMemoryState(proc.Path(), before, error)) {
            return Stop::None;
        }
        PressureRequest request;
        request.directory = bFile ? disk : std::string();
        request.nBound = nBound;
        request.before = &before;
        request.msStarted = msNow();
        request.onProgress = onProgress;
        return Press(proc.Path(), proc.Path("cgroup"), request);
    }

    TemporaryTree proc;
    std::string disk;
    qsizetype nDescriptors = 0;
};

QTEST_GUILESS_MAIN(TestPressure)
#include "TestPressure.moc"
