// Real pressure with a little memory: where it stops, and that nothing of it is left.
#include "memfree/ByteCount.h"
#include "memfree/MemoryState.h"
#include "memfree/Pressure.h"
#include "memfree/PressureFile.h"
#include "memfree/TimedChild.h"
#include "tests/memfree/Meminfo.h"
#include "tests/support/TemporaryTree.h"

#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// qemu's user mode says yes to this advice and populates nothing.
static bool PopulatesPages()
{
    unsigned char resident = 1;
    void *page = ::mmap(nullptr, 1, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (::madvise(page, 1, MADV_POPULATE_WRITE) == 0) {
        ::mincore(page, 1, &resident);
    }
    ::munmap(page, 1);
    return (resident & 1) != 0;
}

class TestPressure : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        std::signal(SIGPIPE, SIG_IGN); // as memfree does
        disk = FindPressureFile({QDir::currentPath().toStdString(), "/var/tmp", "/tmp"}, 1).directory;
        QVERIFY2(!disk.empty(), "needs a disk file system in the working directory, /var/tmp or /tmp");
        lowestFree = ::dup(STDIN_FILENO);
        ::close(lowestFree);
    }
    void cleanup()
    {
        QCOMPARE(::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT), -1); // no child is left
        QVERIFY(::fcntl(lowestFree, F_GETFD) < 0);                              // nor a descriptor
    }

    void FileHasNeitherNameNorBlocks()
    {
        const std::vector<std::string> useless = {"/dev/shm", "/proc", "/nowhere/at/all", "/etc/passwd", ""};
        QCOMPARE(FindPressureFile(useless, 1).directory, "");
        const int descriptor = OpenPressureFile({disk, 8 * bytesPerGiB});
        struct stat status = {};
        QCOMPARE(fstat(descriptor, &status), 0);
        close(descriptor);
        QCOMPARE(quint64(status.st_blocks), 0ULL);
        QCOMPARE(quint64(status.st_nlink), 0ULL);
    }

    void FileIsAsLargeAsTheSystemAllows()
    {
        std::signal(SIGXFSZ, SIG_IGN); // as memfree does
        rlimit unlimited = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &unlimited), 0);
        const rlimit limited = {bytesPerGiB, unlimited.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limited), 0);
        const std::uint64_t size = FindPressureFile({disk}, 4 * bytesPerGiB).size;
        ::setrlimit(RLIMIT_FSIZE, &unlimited);
        QCOMPARE(size, bytesPerGiB);
    }

    void StopsAtTheBound()
    {
        if (!PopulatesPages()) {
            QSKIP("madvise(MADV_POPULATE_WRITE) does nothing here");
        }
        for (const std::string &directory : {std::string(), disk}) {
            PressureProgress last;
            const auto keep = [&last](const PressureProgress &now) { last = now; };
            QCOMPARE(PressWith(directory, 40 * bytesPerMiB, keep), Stop::BoundReached);
            // Huge pages can make a little more resident than was populated.
            QVERIFY(last.resident >= 40 * bytesPerMiB && last.resident < last.populated + 4 * bytesPerMiB);
            QVERIFY(last.populated <= 44 * bytesPerMiB);
        }
    }

    /// The bound is GiB away: the step that does harm is the last.
    void StopsAtHarm()
    {
        int steps = 0;
        const auto stopAfter = [&](const std::function<void()> &doHarm) {
            steps = 0;
            return PressWith(disk, 4 * bytesPerGiB, [&](const PressureProgress &) { ++steps, doHarm(); });
        };
        QCOMPARE(stopAfter([&] { proc.Write("meminfo", Meminfo("900000", "800000")); }), Stop::Swapping);
        QCOMPARE(steps, 1);
        QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
        QVERIFY(children.open(QIODevice::ReadOnly));
        const auto killChild = [&] { children.seek(0), ::kill(children.readAll().toInt(), SIGKILL); };
        QCOMPARE(stopAfter(killChild), Stop::Killed);
        QCOMPARE(stopAfter([&] { proc.Write("vmstat", "oom_kill 1\n"), killChild(); }), Stop::ShortOfMemory);
        const int output = ::dup(STDOUT_FILENO);
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe(ends), 0);
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        const Stop stop = stopAfter([] {});
        ::dup2(output, STDOUT_FILENO);
        ::close(output);
        ::close(ends[1]);
        QCOMPARE(stop, Stop::ReaderGone);
    }

    void WaitsForAHangNoLongerThanAllowed()
    {
        QVERIFY(!SucceedsWithin(50, [] { return ::pause() < 0; }));
        QTRY_VERIFY(::waitpid(-1, nullptr, WNOHANG) != 0);
    }

    void ChildDiesWithItsParent()
    {
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe(ends), 0);
        const pid_t parent = ::fork();
        if (parent == 0) {
            PressWith(disk, bytesPerGiB, [](const PressureProgress &) { ::raise(SIGKILL); });
            ::_exit(1);
        }
        ::close(ends[1]);
        int status = 0;
        QCOMPARE(::waitpid(parent, &status, 0), parent);
        QVERIFY(WIFSIGNALED(status));
        // The child inherited the write end and is the last process to hold it.
        pollfd end = {ends[0], POLLIN, 0};
        QCOMPARE(::poll(&end, 1, 5000), 1);
        ::close(ends[0]);
    }

private:
    Stop PressWith(const std::string &directory, std::uint64_t bound,
                   const std::function<void(const PressureProgress &)> &onProgress) const
    {
        proc.Write("meminfo", Meminfo());
        MemoryState before;
        ParseMeminfo(Meminfo().toStdString(), before);
        return ApplyPressure(proc.Path(), proc.Path("cgroup"),
                             {{directory, bound * 4}, bound, &before, msNow(), &before, onProgress});
    }

    TemporaryTree proc;
    std::string disk;
    int lowestFree = -1;
};

QTEST_GUILESS_MAIN(TestPressure)
#include "TestPressure.moc"
