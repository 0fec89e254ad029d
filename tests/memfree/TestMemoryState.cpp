// What memfree reads: byte counts, /proc/meminfo, /proc/vmstat, pressure and control groups, friendly and
// hostile.
#include "memfree/ByteCount.h"
#include "memfree/CgroupReclaim.h"
#include "memfree/CgroupRoom.h"
#include "memfree/MemoryState.h"
#include "tests/memfree/TemporaryTree.h"

#include <QTest>

#include <unistd.h>

namespace {

const QByteArray meminfo = "MemTotal:        8000000 kB\n"
                           "MemFree:         2000000 kB\n"
                           "MemAvailable:    5000000 kB\n"
                           "SwapCached:           10 kB\n"
                           "Active:          1500000 kB\n"
                           "Inactive:        3200000 kB\n"
                           "Inactive(anon):   200000 kB\n"
                           "Active(file):     400000 kB\n"
                           "Inactive(file):  3000000 kB\n"
                           "SwapTotal:       1000000 kB\n"
                           "SwapFree:         900000 kB\n"
                           "Dirty:               300 kB\n"
                           "Writeback:            40 kB\n";

QByteArray Without(const char *name)
{
    QByteArrayList lines = meminfo.split('\n');
    lines.removeIf([name](const QByteArray &line) { return line.startsWith(name); });
    return lines.join('\n');
}

std::uint64_t Number(const std::optional<std::uint64_t> &number)
{
    return number.value_or(~std::uint64_t(0));
}
constexpr auto none = ~std::uint64_t(0);

} // namespace

class TestMemoryState : public QObject
{
    Q_OBJECT

private slots:
    void ByteCounts_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("bGood");
        QTest::newRow("what the window passes") << QByteArray("5104857600") << true;
        QTest::newRow("63 bits") << QByteArray("9223372036854775807") << true;
        QTest::newRow("64 bits") << QByteArray("9223372036854775808") << false;
        for (const char *bad : {"", "0", "-5", "+5", "12x", "x12", " 12", "12 ", "1e9", "0x10", "1.5", "12\n",
                                "123456789012345678901234567890"}) {
            QTest::addRow("\"%s\"", bad) << QByteArray(bad) << false;
        }
    }
    void ByteCounts()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, bGood);
        const auto number = ParseByteCount(text.toStdString());
        QCOMPARE(number.has_value(), bGood);
        if (bGood) {
            QCOMPARE(QByteArray::number(qulonglong(*number)), text);
        }
    }

    void Sizes()
    {
        QCOMPARE(FormatByteCount(6367087267), "5.93 GiB");
        QCOMPARE(FormatByteCount(nBytesPerGiB), "1.00 GiB");
        QCOMPARE(FormatByteCount(nBytesPerGiB - 1), "1024.0 MiB");
        QCOMPARE(FormatByteCount(12 * nBytesPerMiB), "12.0 MiB");
        QCOMPARE(FormatByteCount(std::uint64_t{340} * 1024), "340 KiB");
        QCOMPARE(FormatByteCount(0), "0 KiB");
    }

    void Meminfo()
    {
        MemoryState state;
        QVERIFY(ParseMeminfo(meminfo.toStdString(), state));
        QCOMPARE(state.nTotal, 8000000ULL * 1024);
        QCOMPARE(state.nFree, 2000000ULL * 1024);
        QCOMPARE(state.nAvailable, 5000000ULL * 1024);
        QCOMPARE(state.nActiveFile, 400000ULL * 1024);
        QCOMPARE(state.nInactiveFile, 3000000ULL * 1024);
        QCOMPARE(state.nDirty, 340ULL * 1024);
        QCOMPARE(state.nSwapFree, 900000ULL * 1024);
        QCOMPARE(state.nSwapUsed, 100000ULL * 1024);
    }

    void OldMeminfo()
    {
        MemoryState state;
        QVERIFY(ParseMeminfo(Without("MemAvailable").toStdString(), state));
        QCOMPARE(state.nAvailable, state.nFree);
        QVERIFY(ParseMeminfo(Without("Swap").toStdString(), state));
        QCOMPARE(state.nSwapUsed, 0ULL);
    }

    void BadMeminfo_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no total") << Without("MemTotal");
        QTest::newRow("no free") << Without("MemFree");
        QTest::newRow("no lists") << Without("Inactive(file)");
        QTest::newRow("no number") << Without("MemFree") + "MemFree: none kB\n";
        QTest::newRow("negative") << Without("MemFree") + "MemFree: -1 kB\n";
        QTest::newRow("30 digits") << Without("MemFree") + "MemFree: 123456789012345678901234567890 kB\n";
        QTest::newRow("overflow in bytes") << Without("MemTotal") + "MemTotal: 18446744073709551615 kB\n";
        QTest::newRow("no memory at all")
            << QByteArray("MemTotal: 0 kB\nMemFree: 0 kB\nInactive(file): 0 kB\n");
        QTest::newRow("more free than there is") << Without("MemFree") + "MemFree: 8000001 kB\n";
        QTest::newRow("more inactive than there is")
            << Without("Inactive(file)") + "Inactive(file): 8000001 kB\n";
        QTest::newRow("cut off") << meminfo.left(meminfo.indexOf("Inactive(file)") + 14);
        QTest::newRow("zeros") << QByteArray(5000, '\0');
    }
    void BadMeminfo()
    {
        QFETCH(QByteArray, report);
        MemoryState state;
        QVERIFY(!ParseMeminfo(report.toStdString(), state));
    }

    void Stalled_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<quint64>("usTotal");
        const QByteArray some = "some avg10=1.00 avg60=0.50 avg300=0.00 total=777\n";
        const QByteArray full = "full avg10=1.00 avg60=0.50 avg300=0.00 total=55000\n";
        QTest::newRow("as it is") << some + full << quint64(55000);
        QTest::newRow("alone") << full << quint64(55000);
        QTest::newRow("no full line") << some << quint64(none);
        QTest::newRow("no total") << some + "full avg10=1.00\n" + some << quint64(none);
        QTest::newRow("no number") << some + "full avg10=1.00 total=x\n" << quint64(none);
        QTest::newRow("empty") << QByteArray() << quint64(none);
    }
    void Stalled()
    {
        QFETCH(QByteArray, report);
        QFETCH(quint64, usTotal);
        QCOMPARE(Number(ParseStalled(report.toStdString())), usTotal);
    }

    void ProcDirectory()
    {
        const TemporaryTree tree;
        MemoryState state;
        std::string error;
        QVERIFY(!ReadMemoryState(tree.Path(), state, error));
        QVERIFY(error.find("/meminfo") != std::string::npos);

        tree.Write("meminfo", meminfo);
        QVERIFY(ReadMemoryState(tree.Path(), state, error));
        QCOMPARE(state.nRefaulted, 0ULL);
        QCOMPARE(state.usStalled, 0ULL);

        tree.Write("vmstat", "workingset_refault_anon 5\nworkingset_refault_file 7\npswpout 9\n");
        tree.Write("pressure/memory", "some avg10=0 total=1\nfull avg10=0 total=42\n");
        QVERIFY(ReadMemoryState(tree.Path(), state, error));
        QCOMPARE(state.nRefaulted, 7ULL * static_cast<unsigned long>(sysconf(_SC_PAGESIZE)));
        QCOMPARE(state.usStalled, 42ULL);

        tree.Write("vmstat", "workingset_refault 3\n");
        QVERIFY(ReadMemoryState(tree.Path(), state, error));
        QCOMPARE(state.nRefaulted, 3ULL * static_cast<unsigned long>(sysconf(_SC_PAGESIZE)));
    }

    void CgroupPaths_data()
    {
        QTest::addColumn<QByteArray>("controller");
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("unified") << QByteArray("") << QByteArray("/user.slice/app:1.scope");
        QTest::newRow("one of two") << QByteArray("cpuacct") << QByteArray("/b");
        QTest::newRow("alone") << QByteArray("memory") << QByteArray("/jobs/7");
        QTest::newRow("a part of a name") << QByteArray("cpus") << QByteArray();
    }
    void CgroupPaths()
    {
        QFETCH(QByteArray, controller);
        QFETCH(QByteArray, path);
        constexpr std::string_view report = "garbage\n9:name=systemd:/a\n4:memory:/jobs/7\n1:cpu,cpuacct:/"
                                            "b\n3:cpuset:/\n0::/user.slice/app:1.scope\n";
        const std::string_view found = FindCgroupPath(report, controller.toStdString());
        QCOMPARE(QByteArray(found.data(), qsizetype(found.size())), path);
    }

    void CgroupLimits_data()
    {
        QTest::addColumn<QByteArray>("self");
        QTest::addColumn<QList<QByteArrayList>>("files");
        QTest::addColumn<quint64>("nRoom");
        const auto v2 = [](const QByteArray &group, const QByteArray &max, const QByteArray &high) {
            return QList<QByteArrayList>{{group + "/memory.max", max},
                                         {group + "/memory.high", high},
                                         {group + "/memory.current", "400\n"}};
        };
        const QList<QByteArrayList> v1 = {{"memory/jobs/memory.limit_in_bytes", "9223372036854771712\n"},
                                          {"memory/jobs/memory.usage_in_bytes", "5\n"},
                                          {"memory/memory.limit_in_bytes", "1000\n"},
                                          {"memory/memory.usage_in_bytes", "100\n"}};
        const QByteArray self = "0::/a/b\n";
        QTest::newRow("no groups") << QByteArray() << v2("a", "1000", "max")
                                   << quint64(CgroupRoom::unlimited);
        QTest::newRow("no limit") << self << v2("a/b", "max\n", "max\n") << quint64(CgroupRoom::unlimited);
        QTest::newRow("own limit") << self << v2("a/b", "1000\n", "max\n") << quint64(600);
        QTest::newRow("high is tighter") << self << v2("a/b", "1000\n", "500\n") << quint64(100);
        QTest::newRow("the group above")
            << self << v2("a", "1000\n", "max\n") + v2("a/b", "max", "max") << quint64(600);
        QTest::newRow("the tightest of both")
            << self << v2("a", "450", "max") + v2("a/b", "1000", "max") << quint64(50);
        QTest::newRow("used up") << self << v2("a/b", "300\n", "max\n") << quint64(0);
        QTest::newRow("a container: the mount is its root")
            << self << v2(".", "1000\n", "max\n") << quint64(600);
        QTest::newRow("another one's group")
            << QByteArray("0::/x\n") << v2("a/b", "1", "1") << quint64(CgroupRoom::unlimited);
        QTest::newRow("no number") << self << v2("a/b", "many\n", "-1\n") << quint64(CgroupRoom::unlimited);
        QTest::newRow("version 1, the root holds it")
            << QByteArray("4:memory:/jobs\n0::/\n") << v1 << quint64(900);
    }
    void CgroupLimits()
    {
        QFETCH(QByteArray, self);
        QFETCH(QList<QByteArrayList>, files);
        QFETCH(quint64, nRoom);
        const TemporaryTree tree;
        tree.Write("proc/self/cgroup", self);
        for (const QByteArrayList &file : files) {
            tree.Write("cgroup/" + file[0], file[1]);
        }
        QCOMPARE(quint64(ReadCgroupRoom(tree.Path("proc"), tree.Path("cgroup")).nRoom), nRoom);
    }

    void ReclaimableCgroups()
    {
        const TemporaryTree tree;
        const QString manager = "user.slice/user-1000.slice/user@1000.service/";
        QVERIFY(FindReclaimableCgroups(tree.Path(), 1000).empty());
        tree.Write(manager + "memory.stat", "");
        tree.Write(manager + "session.slice/memory.reclaim", "");
        tree.Write(manager + "app.slice/memory.reclaim", "");
        tree.Write(manager + "init.scope/memory.stat", "");
        QCOMPARE(FindReclaimableCgroups(tree.Path(), 1000),
                 std::vector({tree.Path(manager + "app.slice"), tree.Path(manager + "session.slice")}));
        QVERIFY(FindReclaimableCgroups(tree.Path(), 1001).empty());
        tree.Write(manager + "memory.reclaim", "");
        QCOMPARE(FindReclaimableCgroups(tree.Path(), 1000),
                 std::vector({tree.Path(manager).substr(0, tree.Path(manager).size() - 1)}));
    }

    void CgroupReclaimRequests()
    {
        const TemporaryTree tree;
        const auto never = [] { return Stop::None; };
        QCOMPARE(ReclaimCgroup(tree.Path("gone"), false, never), Stop::NothingLeft);

        tree.Write("memory.stat", "inactive_anon 5000000000\ninactive_file 100000000\n");
        QCOMPARE(InactiveInCgroup(tree.Path()), 100000000ULL);
        QCOMPARE(ReclaimCgroup(tree.Path(), false, never), Stop::Failed);

        tree.Write("memory.reclaim", "");
        QCOMPARE(ReclaimCgroup(tree.Path(), true, [] { return Stop::Swapping; }), Stop::Swapping);
        QCOMPARE(tree.Read("memory.reclaim"), QByteArray("67108864 swappiness=0"));

        // What does not shrink is not asked for again.
        tree.Write("memory.reclaim", "");
        tree.Write("memory.stat", "inactive_file 2000000\n");
        QCOMPARE(ReclaimCgroup(tree.Path(), false, never), Stop::NothingLeft);
        QCOMPARE(tree.Read("memory.reclaim"), QByteArray("2000000"));

        int nSteps = 0;
        QCOMPARE(ReclaimCgroup(tree.Path(), false,
                               [&] {
                                   ++nSteps;
                                   tree.Write("memory.stat",
                                              nSteps < 3 ? "inactive_file 900000" : "inactive_file 1");
                                   return Stop::None;
                               }),
                 Stop::NothingLeft);
        QCOMPARE(nSteps, 1);
    }
};

QTEST_GUILESS_MAIN(TestMemoryState)
#include "TestMemoryState.moc"
