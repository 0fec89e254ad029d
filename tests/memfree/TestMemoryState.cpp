// What memfree reads: /proc/meminfo, /proc/vmstat, pressure and control groups, friendly and hostile.
#include "memfree/ByteCount.h"
#include "memfree/KernelReclaim.h"
#include "memfree/MemoryState.h"
#include "tests/memfree/Meminfo.h"
#include "tests/support/TemporaryTree.h"

#include <QTest>

#include <unistd.h>

namespace {

/// The files of a group of version 2 in which 400 bytes are used.
QList<QByteArrayList> Group(const QByteArray &path, const QByteArray &max, const QByteArray &high)
{
    return {{path + "/memory.max", max}, {path + "/memory.high", high}, {path + "/memory.current", "400\n"}};
}

std::uint64_t RoomIn(const QByteArray &self, const QList<QByteArrayList> &files)
{
    const TemporaryTree tree;
    tree.Write("proc/self/cgroup", self);
    for (const QByteArrayList &file : files) {
        tree.Write("cgroup/" + file[0], file[1]);
    }
    return ReadCgroupHeadroom(tree.Path("proc"), tree.Path("cgroup")).headroom;
}

} // namespace

class TestMemoryState : public QObject
{
    Q_OBJECT

private slots:
    void Sizes()
    {
        QCOMPARE(FormatByteCount(6367087267), "5.93 GiB");
        QCOMPARE(FormatByteCount(bytesPerGiB - 1), "1024.0 MiB");
        QCOMPARE(FormatByteCount(std::uint64_t{340} * 1024), "340 KiB");
    }

    void GoodMeminfo()
    {
        MemoryState state;
        QVERIFY(ParseMeminfo(Meminfo().toStdString(), state));
        const QList<quint64> kibibytes = {
            state.total / 1024,        state.free / 1024,  state.available / 1024, state.activeFile / 1024,
            state.inactiveFile / 1024, state.dirty / 1024, state.swapFree / 1024,  state.swapUsed / 1024};
        QCOMPARE(kibibytes,
                 QList<quint64>({8000000, 2000000, 5000000, 400000, 3000000, 340, 900000, 100000}));
        // Kernels without.
        QVERIFY(ParseMeminfo(Meminfo("MemAvailable").toStdString(), state));
        QCOMPARE(state.available, state.free);
        QVERIFY(ParseMeminfo(Meminfo("SwapTotal").toStdString(), state));
        QCOMPARE(state.swapUsed, 0ULL);
    }

    void BadMeminfo()
    {
        for (const QByteArray &report :
             {QByteArray(), Meminfo("MemTotal"), Meminfo("MemFree"), Meminfo("Inactive(file)"),
              Meminfo("MemFree", "none"), Meminfo("MemFree", "-1"), Meminfo("MemFree", QByteArray(30, '1')),
              Meminfo("MemTotal", "18446744073709551615"), Meminfo("MemFree", "8000001"),
              Meminfo("Inactive(file)", "8000001")}) {
            MemoryState state;
            QVERIFY2(!ParseMeminfo(report.toStdString(), state), report);
        }
    }

    void ProcDirectory()
    {
        const TemporaryTree tree;
        MemoryState state;
        std::string error;
        QVERIFY(!ReadMemoryState(tree.Path(), state, error));
        QVERIFY(error.find("/meminfo") != std::string::npos);

        const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
        tree.Write("meminfo", Meminfo());
        tree.Write("vmstat", "workingset_refault_anon 5\nworkingset_refault_file 7\npgsteal_kswapd 4\n"
                             "pgsteal_direct 5\npgsteal_file 30\n");
        tree.Write("pressure/memory", "some avg10=0 total=1\nfull avg10=0 total=42\n");
        QVERIFY(ReadMemoryState(tree.Path(), state, error));
        QCOMPARE(state.refaulted, 7 * pageBytes);
        QCOMPARE(state.fileReclaimed, 9 * pageBytes);
        QCOMPARE(state.usStalled, 42ULL);
        tree.Write("vmstat", "workingset_refault 3\n");
        tree.Write("pressure/memory", "some avg10=0 total=1\nfull avg10=0\nsome avg10=0 total=1\n");
        QVERIFY(ReadMemoryState(tree.Path(), state, error));
        QCOMPARE(state.refaulted, 3 * pageBytes);
        QCOMPARE(state.usStalled, 0ULL);
    }

    void CgroupLimits()
    {
        const QByteArray self = "0::/a/b:1\n";
        QCOMPARE(RoomIn(self, Group("a/b:1", "max\n", "max\n")), CgroupHeadroom::unlimited);
        QCOMPARE(RoomIn(self, Group("a/b:1", "1000\n", "500\n")), 100ULL);
        QCOMPARE(RoomIn(self, Group("a/b:1", "300\n", "max\n")), 0ULL); // used up
        QCOMPARE(RoomIn(self, Group("a", "1000", "max") + Group("a/b:1", "450", "max")), 50ULL);
        // A container, in which the mount is its root.
        QCOMPARE(RoomIn(self, Group(".", "1000\n", "max\n")), 600ULL);
        QCOMPARE(RoomIn("garbage\n5:memory2:/other\n4:cpu,memory:/jobs\n0::/\n",
                        {{"memory/memory.limit_in_bytes", "9223372036854771712\n"},
                         {"memory/memory.usage_in_bytes", "5\n"},
                         {"memory/jobs/memory.limit_in_bytes", "1000\n"},
                         {"memory/jobs/memory.usage_in_bytes", "100\n"}}),
                 900ULL);
    }

    void ReclaimableCgroups()
    {
        const TemporaryTree tree;
        const QString manager = "user.slice/user-1000.slice/user@1000.service/";
        tree.Write(manager + "memory.stat", "");
        tree.Write(manager + "session.slice/memory.reclaim", "");
        tree.Write(manager + "app.slice/memory.reclaim", "");
        tree.Write(manager + "init.scope/memory.stat", "");
        QCOMPARE(FindReclaimableCgroups(tree.Path(), 1000),
                 std::vector({tree.Path(manager + "app.slice"), tree.Path(manager + "session.slice")}));
        QVERIFY(FindReclaimableCgroups(tree.Path(), 1001).empty());
        tree.Write(manager + "memory.reclaim", "");
        QCOMPARE(FindReclaimableCgroups(tree.Path(), 1000), std::vector({tree.Path(manager.chopped(1))}));
    }

    void CgroupReclaimRequests()
    {
        const TemporaryTree tree;
        const auto never = [] { return Stop::None; };
        tree.Write("memory.stat", "inactive_file 100000000\n");
        QCOMPARE(ReclaimCgroup(tree.Path(), false, never), Stop::Failed);

        tree.Write("memory.reclaim", "");
        QCOMPARE(ReclaimCgroup(tree.Path(), true, [] { return Stop::Swapping; }), Stop::Swapping);
        QCOMPARE(tree.Read("memory.reclaim"), QByteArray("67108864 swappiness=0"));

        // What does not shrink is not asked for again, nor is next to nothing.
        tree.Write("memory.reclaim", "");
        tree.Write("memory.stat", "inactive_anon 5000000\ninactive_file 3000000\n");
        QCOMPARE(ReclaimCgroup(tree.Path(), false, never), Stop::NothingLeft);
        QCOMPARE(tree.Read("memory.reclaim"), QByteArray("3000000"));
        int steps = 0;
        const auto shrink = [&] {
            tree.Write("memory.stat", ++steps == 1 ? "inactive_file 1500000" : "inactive_file 400000");
            return Stop::None;
        };
        QCOMPARE(ReclaimCgroup(tree.Path(), false, shrink), Stop::NothingLeft);
        QCOMPARE(steps, 2);
    }
};

QTEST_GUILESS_MAIN(TestMemoryState)
#include "TestMemoryState.moc"
