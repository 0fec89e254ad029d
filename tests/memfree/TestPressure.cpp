// Pressure for real, but with little: where it stops, and what is left when it is killed.
#include "memfree/ByteCount.h"
#include "memfree/KernelReclaim.h"
#include "memfree/MemoryState.h"
#include "memfree/Pressure.h"
#include "memfree/PressureFile.h"
#include "tests/memfree/Meminfo.h"
#include "tests/support/TemporaryTree.h"

#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

qsizetype CountIn(const QString &directory)
{
    return QDir(directory)
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden)
        .size();
}

} // namespace

class TestPressure : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        std::signal(SIGPIPE, SIG_IGN); // as the tool does
        // Somewhere there is one, save on machines that run from memory.
        disk = FindPressureDirectory(
            {QDir::currentPath().toStdString(), QDir::homePath().toStdString(), "/var/tmp", "/tmp"});
    }
    void init()
    {
        proc.Write("meminfo", Meminfo());
        descriptors = CountIn("/proc/self/fd");
    }
    void cleanup()
    {
        QCOMPARE(::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT), -1); // no child is left
        QCOMPARE(CountIn("/proc/self/fd"), descriptors);
    }

    void FileHasNeitherNameNorBlocks()
    {
        for (const char *place : {"/dev/shm", "/proc", "/dev", "/nowhere/at/all", "/etc/passwd", ""}) {
            QVERIFY2(FindPressureDirectory({place}).empty(), place);
        }
        QCOMPARE(PressWith("/dev/shm", bytesPerMiB, {}), Stop::Failed);
        if (disk.empty()) {
            QSKIP("no disk file system that this user may write to");
        }
        const QTemporaryDir directory(QString::fromStdString(disk) + "/memfree-test-XXXXXX");
        const int descriptor = OpenPressureFile(directory.path().toStdString(), 8 * bytesPerGiB);
        struct stat status = {};
        QCOMPARE(fstat(descriptor, &status), 0);
        close(descriptor);
        QCOMPARE(quint64(status.st_size), quint64(8 * bytesPerGiB));
        QCOMPARE(quint64(status.st_blocks), 0ULL);
        QCOMPARE(quint64(status.st_nlink), 0ULL);
        QCOMPARE(CountIn(directory.path()), 0);
    }

    void StopsAtTheBound()
    {
        for (const std::string &directory : {std::string(), disk}) {
            PressureProgress last;
            const auto look = [&last](const PressureProgress &now) {
                last = now;
                // Some pages may be taken at once on a machine that is short of memory.
                QVERIFY(now.resident > now.populated / 2);
                QVERIFY(now.resident < now.populated + 4 * bytesPerMiB);
            };
            QCOMPARE(PressWith(directory, 40 * bytesPerMiB, look), Stop::BoundReached);
            QVERIFY(last.resident >= 40 * bytesPerMiB);
            QVERIFY(last.populated <= 44 * bytesPerMiB);
        }
    }

    /// Some GiB are allowed, and the step that brings the harm is the last.
    void StopsAtHarm()
    {
        const std::pair<QByteArray, Stop> harms[] = {{Meminfo("SwapFree", "800000"), Stop::Swapping},
                                                     {Meminfo("Inactive(file)", "0"), Stop::NothingLeft},
                                                     {QByteArray(), Stop::Failed}};
        for (const auto &[meminfo, stop] : harms) {
            proc.Write("meminfo", Meminfo());
            int steps = 0;
            const auto harm = [&, report = meminfo](const PressureProgress &) {
                ++steps;
                proc.Write("meminfo", report);
            };
            QCOMPARE(PressWith(disk, 4 * bytesPerGiB, harm), stop);
            QCOMPARE(steps, 1);
        }
    }

    void StopsWhenMemoryRanOut()
    {
        // As the kernel ends the child then.
        const auto killChild = [](const PressureProgress &) {
            QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
            QVERIFY(children.open(QIODevice::ReadOnly));
            QCOMPARE(::kill(children.readAll().toInt(), SIGKILL), 0);
        };
        for (const std::string &directory : {std::string(), disk}) {
            QCOMPARE(PressWith(directory, bytesPerGiB, killChild), Stop::ShortOfMemory);
        }
    }

    void StopsWhenNobodyReads()
    {
        const int output = ::dup(STDOUT_FILENO);
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe(ends), 0);
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        int steps = 0;
        const Stop stop = PressWith(disk, 4 * bytesPerGiB, [&steps](const PressureProgress &) { ++steps; });
        ::dup2(output, STDOUT_FILENO);
        ::close(output);
        ::close(ends[1]);
        QCOMPARE(stop, Stop::ReaderGone);
        QVERIFY(steps <= 1);
    }

    void KilledAtAnyMoment()
    {
        const QTemporaryDir place(QString::fromStdString(disk.empty() ? "/tmp" : disk) +
                                  "/memfree-test-XXXXXX");
        for (int i = 0; i < 16; ++i) {
            const std::string directory = disk.empty() || i % 2 == 0 ? "" : place.path().toStdString();
            int held[2] = {-1, -1};
            QCOMPARE(::pipe(held), 0);
            const pid_t presser = ::fork();
            if (presser == 0) {
                while (PressWith(directory, 64 * bytesPerMiB, [](const PressureProgress &) {}) ==
                       Stop::BoundReached) {
                }
                ::_exit(1);
            }
            ::close(held[1]);
            QTest::qWait(static_cast<int>(QRandomGenerator::global()->bounded(60)));
            ::kill(presser, SIGKILL);
            int status = 0;
            QCOMPARE(::waitpid(presser, &status, 0), presser);
            QVERIFY(WIFSIGNALED(status));
            // The pipe ends with the last process that holds it.
            pollfd end = {held[0], POLLIN, 0};
            QCOMPARE(::poll(&end, 1, 5000), 1);
            ::close(held[0]);
            QCOMPARE(CountIn(place.path()), 0);
        }
    }

    void SyncIsBounded()
    {
        QVERIFY(SyncWithin(60000));
        // It may be done before we look, but not always.
        QTRY_VERIFY(!SyncWithin(0));
        QTRY_VERIFY_WITH_TIMEOUT(::waitpid(-1, nullptr, WNOHANG) < 0, 60000);
    }

    void CachesAreDroppedByOneWrite()
    {
        QVERIFY(!MayDropCaches(proc.Path()) && !DropPageCache(proc.Path()));
        proc.Write("sys/vm/drop_caches", "0\n");
        QVERIFY(MayDropCaches(proc.Path()));
        QVERIFY(DropPageCache(proc.Path()));
        QCOMPARE(proc.Read("sys/vm/drop_caches"), QByteArray("1\n"));
    }

private:
    Stop PressWith(const std::string &directory, std::uint64_t bound,
                   const std::function<void(const PressureProgress &)> &onProgress) const
    {
        MemoryState before;
        ParseMeminfo(Meminfo().toStdString(), before);
        PressureRequest request;
        request.directory = directory;
        request.bound = bound;
        request.before = &before;
        request.pressureStart = &before;
        request.msStarted = msNow();
        request.onProgress = onProgress;
        return ApplyPressure(proc.Path(), proc.Path("cgroup"), request);
    }

    TemporaryTree proc;
    std::string disk;
    qsizetype descriptors = 0;
};

QTEST_GUILESS_MAIN(TestPressure)
#include "TestPressure.moc"
