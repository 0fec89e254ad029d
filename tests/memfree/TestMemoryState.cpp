// What memfree reads from the kernel, and what it writes to it, with files of the test instead.
#include "memfree/KernelReclaim.h"
#include "memfree/MemoryState.h"
#include "tests/memfree/Meminfo.h"
#include "tests/support/TemporaryTree.h"

#include <QTest>

#include <unistd.h>

class TestMemoryState : public QObject
{
    Q_OBJECT

private slots:
    void GoodFigures()
    {
        const TemporaryTree proc;
        MemoryState state;
        std::string error;
        QVERIFY(!ReadMemoryState(proc.Path(), state, error) && error.find("/meminfo") != std::string::npos);
        proc.Write("meminfo", Meminfo("MemAvailable", "Other"));
        proc.Write("vmstat", "workingset_refault_anon 5\nworkingset_refault_file 7\npgsteal_kswapd 4\n"
                             "pgsteal_direct 5\npgsteal_file 30\n");
        proc.Write("pressure/memory", "some avg10=0 total=1\nfull avg10=0 total=42\n");
        QVERIFY(ReadMemoryState(proc.Path(), state, error));
        const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
        QCOMPARE(state.available, 2'048'000'000ULL); // as much as is free
        QCOMPARE(state.dirty, 348'160ULL);
        QCOMPARE(state.swapUsed, 102'400'000ULL);
        QCOMPARE(state.refaulted, 7 * pageBytes);
        QCOMPARE(state.fileReclaimed, 9 * pageBytes);
        QCOMPARE(state.usStalled, 42ULL);
    }

    void BadMeminfo()
    {
        const std::pair<QByteArray, QByteArray> changes[] = {
            {"MemTotal", ""},       {"MemFree", ""},        {"Inactive(file)", ""},
            {"2000000", "none"},    {"2000000", "-1"},      {"2000000", QByteArray(30, '1')},
            {"2000000", "8000001"}, {"3000000", "8000001"}, {"8000000", "18446744073709551615"}};
        for (const auto &[text, replacement] : changes) {
            MemoryState state;
            QVERIFY2(!ParseMeminfo(Meminfo(text, replacement).toStdString(), state), replacement);
        }
    }

    void CgroupLimits()
    {
        const TemporaryTree tree;
        const auto headroom = [&tree](const QString &file, const QByteArray &limit) {
            tree.Write(file, limit);
            return ReadCgroupHeadroom(tree.Path(), tree.Path()).headroom;
        };
        tree.Write("self/cgroup", "garbage\n5:memory2:/other\n4:cpu,memory,pids:/jobs\n0::/a/b:1\n");
        tree.Write("memory/jobs/memory.usage_in_bytes", "400\n");
        tree.Write("memory.current", "400\n");
        tree.Write("a/b:1/memory.current", "400\n");
        QCOMPARE(headroom("a/b:1/memory.max", "max\n"), CgroupHeadroom::unlimited);
        QCOMPARE(headroom("memory/jobs/memory.limit_in_bytes", "2000\n"), 1600ULL);
        QCOMPARE(headroom("memory.max", "1000\n"), 600ULL);
        QCOMPARE(headroom("a/b:1/memory.high", "500\n"), 100ULL);
        QCOMPARE(headroom("a/b:1/memory.max", "300\n"), 0ULL);
    }

    void CgroupReclaim()
    {
        const TemporaryTree tree;
        const QString manager = "user.slice/user-1000.slice/user@1000.service";
        const std::string group = tree.Path(manager);
        tree.Write(manager + "/app.slice/memory.reclaim", "");
        tree.Write(manager + "/memory.stat", "inactive_file 100000000\n");
        QCOMPARE(FindReclaimableCgroups(tree.Path(), 1000), std::vector({group + "/app.slice"}));
        QCOMPARE(ReclaimCgroup(group, false, {}), Stop::Failed);

        tree.Write(manager + "/memory.reclaim", "");
        QCOMPARE(FindReclaimableCgroups(tree.Path(), 1000), std::vector({group}));
        QCOMPARE(ReclaimCgroup(group, true, [] { return Stop::Swapping; }), Stop::Swapping);
        QCOMPARE(tree.Read(manager + "/memory.reclaim"), QByteArray("67108864 swappiness=0"));
        int steps = 0;
        const auto shrinkOnce = [&] {
            tree.Write(manager + "/memory.stat", "inactive_file 90000000\n");
            return ++steps < 9 ? Stop::None : Stop::Deadline;
        };
        QCOMPARE(ReclaimCgroup(group, false, shrinkOnce), Stop::NothingLeft);
        QCOMPARE(steps, 2);
    }
};

QTEST_GUILESS_MAIN(TestMemoryState)
#include "TestMemoryState.moc"
