// What memfree decides to do, and when it stops: the ladder and the rules, without touching any memory.
#include "memfree/ByteCount.h"
#include "memfree/FreeingPlan.h"
#include "memfree/StoppingRule.h"

#include <QTest>

#include <functional>

Q_DECLARE_METATYPE(Means)
Q_DECLARE_METATYPE(Stop)
Q_DECLARE_METATYPE(Situation)
using Change = std::function<void(MemoryState &, PressureProgress &)>;
Q_DECLARE_METATYPE(Change)

namespace {

/// An ordinary desktop with 8 GiB: 2 GiB free, 4 GiB inactive, no swap, an ordinary user.
Situation Desktop()
{
    Situation situation;
    situation.memory.nTotal = 8 * nBytesPerGiB;
    situation.memory.nFree = 2 * nBytesPerGiB;
    situation.memory.nAvailable = 6 * nBytesPerGiB;
    situation.memory.nActiveFile = nBytesPerGiB / 2;
    situation.memory.nInactiveFile = 4 * nBytesPerGiB;
    situation.nAsked = 6 * nBytesPerGiB + 100 * nBytesPerMiB;
    situation.pressureDirectory = "/home/user/.cache";
    return situation;
}

template <typename Function> Situation With(Function change)
{
    Situation situation = Desktop();
    change(situation);
    return situation;
}

} // namespace

class TestFreeingPlan : public QObject
{
    Q_OBJECT

private slots:
    void Ladder_data()
    {
        QTest::addColumn<Situation>("situation");
        QTest::addColumn<Means>("lastTried");
        QTest::addColumn<Means>("next");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *name, const Situation &situation, Means next, const char *reason,
                            Means lastTried = Means::Nothing) {
            QTest::newRow(name) << situation << lastTried << next << QString(reason);
        };
        const auto delegated = [](Situation &s) { s.nInCgroups = nBytesPerGiB; };
        const auto noDisk = [](Situation &s) { s.pressureDirectory.clear(); };

        row("user", Desktop(), Means::PageCachePressure, "/home/user/.cache");
        row("root", With([](Situation &s) { s.bMayDropCaches = true; }), Means::DropCaches, "drop");
        row("root, the kernel refused", With([](Situation &s) { s.bMayDropCaches = true; }),
            Means::PageCachePressure, "", Means::DropCaches);
        row("delegated groups", With(delegated), Means::CgroupReclaim, "1.00 GiB");
        row("delegated groups, and then the rest", With(delegated), Means::PageCachePressure, "",
            Means::CgroupReclaim);
        row("groups with swap to write to", With([&](Situation &s) {
                delegated(s);
                s.memory.nSwapFree = 1;
            }),
            Means::PageCachePressure, "");
        row("groups with swap that the kernel can leave alone", With([&](Situation &s) {
                delegated(s);
                s.memory.nSwapFree = 1;
                s.bCgroupsWithoutSwap = true;
            }),
            Means::CgroupReclaim, "");
        row("groups with next to nothing", With([](Situation &s) { s.nInCgroups = nBytesPerMiB; }),
            Means::PageCachePressure, "");
        row("no disk file system", With(noDisk), Means::AnonymousPressure, "no disk file system");
        row("the file failed", Desktop(), Means::AnonymousPressure, "", Means::PageCachePressure);
        row("all failed", Desktop(), Means::Nothing, "tried", Means::AnonymousPressure);

        row("nothing inactive", With([](Situation &s) { s.memory.nInactiveFile = 31 * nBytesPerMiB; }),
            Means::Nothing, "31.0 MiB are inactive");
        row("nothing inactive, as root", With([](Situation &s) {
                s.memory.nInactiveFile = 0;
                s.bMayDropCaches = true;
            }),
            Means::Nothing, "inactive");
        row("next to nothing beside what is free", With([](Situation &s) {
                s.memory.nTotal = 64 * nBytesPerGiB;
                s.memory.nFree = 60 * nBytesPerGiB;
                s.memory.nInactiveFile = 900 * nBytesPerMiB;
                s.nAsked = 62 * nBytesPerGiB;
            }),
            Means::Nothing, "900.0 MiB are inactive beside 60.00 GiB free");
        row("free already", With([](Situation &s) { s.nAsked = s.memory.nFree; }), Means::Nothing,
            "2.00 GiB are free already");
        row("memory is short", With([](Situation &s) { s.memory.nAvailable = 400 * nBytesPerMiB; }),
            Means::Nothing, "reserve");
        row("a control group with a limit of 1 GiB", With([](Situation &s) {
                s.room = {900 * nBytesPerMiB, nBytesPerGiB};
            }),
            Means::Nothing, "limit of 1.00 GiB");
        row("a control group that is full", With([](Situation &s) {
                s.room = {0, nBytesPerGiB};
            }),
            Means::Nothing, "limit of 1.00 GiB");
        row("no disk, and no more available than free", With([&](Situation &s) {
                noDisk(s);
                s.memory.nAvailable = s.memory.nFree;
            }),
            Means::Nothing, "reserve");
    }
    void Ladder()
    {
        QFETCH(Situation, situation);
        QFETCH(Means, lastTried);
        QFETCH(Means, next);
        QFETCH(QString, reason);
        const Decision decision = Decide(situation, lastTried);
        QCOMPARE(Name(decision.means), Name(next));
        QVERIFY2(QString::fromStdString(decision.reason).contains(reason), decision.reason.c_str());
    }

    void Bounds_data()
    {
        QTest::addColumn<Situation>("situation");
        QTest::addColumn<quint64>("nBound");
        QTest::newRow("free and inactive, and a little")
            << Desktop() << quint64(6 * nBytesPerGiB + 32 * nBytesPerMiB);
        QTest::newRow("never more than asked")
            << With([](Situation &s) { s.nAsked = 3 * nBytesPerGiB; }) << quint64(3 * nBytesPerGiB);
        QTest::newRow("never more than a group's room") << With([](Situation &s) {
            s.room = {4 * nBytesPerGiB, 5 * nBytesPerGiB};
        }) << quint64(4 * nBytesPerGiB / 16 * 15);
        QTest::newRow("anonymous memory leaves the reserve")
            << With([](Situation &s) { s.pressureDirectory.clear(); })
            << quint64(6 * nBytesPerGiB - 8 * nBytesPerGiB / 20);
        QTest::newRow("anonymous memory leaves a group its reserve") << With([](Situation &s) {
            s.pressureDirectory.clear();
            s.room = {4 * nBytesPerGiB, 5 * nBytesPerGiB};
        }) << quint64(4 * nBytesPerGiB - 256 * nBytesPerMiB);
        QTest::newRow("the largest argument") << With([](Situation &s) { s.nAsked = 9223372036854775807ULL; })
                                              << quint64(6 * nBytesPerGiB + 32 * nBytesPerMiB);
    }
    void Bounds()
    {
        QFETCH(Situation, situation);
        QFETCH(quint64, nBound);
        QCOMPARE(quint64(Decide(situation, Means::Nothing).nBound), nBound);
    }

    void Reserve()
    {
        QCOMPARE(MemoryReserve(2 * nBytesPerGiB), 256 * nBytesPerMiB);
        QCOMPARE(MemoryReserve(100 * nBytesPerGiB), 5 * nBytesPerGiB);
    }

    void Rules_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<Stop>("stop");
        const auto row = [](const char *name, Stop stop, const Change &change) {
            QTest::newRow(name) << change << stop;
        };
        row("all is well", Stop::None, [](MemoryState &, PressureProgress &) {});
        row("time is over", Stop::Deadline, [](MemoryState &, PressureProgress &p) { p.msElapsed = 40000; });
        row("reserve", Stop::ShortOfMemory,
            [](MemoryState &m, PressureProgress &) { m.nAvailable = 400 * nBytesPerMiB; });
        row("a page or two to swap", Stop::None,
            [](MemoryState &m, PressureProgress &) { m.nSwapUsed += 8192; });
        row("swap in use grows", Stop::Swapping,
            [](MemoryState &m, PressureProgress &) { m.nSwapUsed += 2 * nBytesPerMiB; });
        row("swap in use falls", Stop::None, [](MemoryState &m, PressureProgress &) { m.nSwapUsed = 0; });
        row("1 % of the cache in use is read again", Stop::None,
            [](MemoryState &m, PressureProgress &) { m.nRefaulted += 5 * nBytesPerMiB; });
        row("more of it", Stop::EvictingInUse,
            [](MemoryState &m, PressureProgress &) { m.nRefaulted += 6 * nBytesPerMiB; });
        row("our own wait", Stop::None, [](MemoryState &m, PressureProgress &) { m.usStalled += 300'000; });
        row("everybody waits", Stop::Stalling,
            [](MemoryState &m, PressureProgress &) { m.usStalled += 800'000; });
        row("nothing inactive left but our own", Stop::NothingLeft,
            [](MemoryState &m, PressureProgress &) { m.nInactiveFile = nBytesPerGiB; });
        row("the same, our own counted as active", Stop::NothingLeft, [](MemoryState &m, PressureProgress &) {
            m.nActiveFile += nBytesPerGiB;
            m.nInactiveFile = 0;
        });
        row("bound", Stop::Bound, [](MemoryState &, PressureProgress &p) { p.nBound = nBytesPerGiB; });
        row("anonymous, plenty left", Stop::None, [](MemoryState &m, PressureProgress &p) {
            p.bFileCache = false;
            m.nInactiveFile = nBytesPerGiB;
        });
        row("anonymous, nothing left", Stop::NothingLeft, [](MemoryState &m, PressureProgress &p) {
            p.bFileCache = false;
            m.nInactiveFile = nBytesPerMiB;
        });
    }
    void Rules()
    {
        QFETCH(Change, change);
        QFETCH(Stop, stop);
        MemoryState before = Desktop().memory;
        before.nSwapUsed = 10 * nBytesPerMiB;
        before.nRefaulted = nBytesPerGiB;
        before.usStalled = 1'000'000;
        // After 1 s and 1 GiB, which has come out of what was free.
        MemoryState now = before;
        now.nFree -= nBytesPerGiB;
        now.nInactiveFile += nBytesPerGiB;
        PressureProgress progress = {nBytesPerGiB, nBytesPerGiB, true, 6 * nBytesPerGiB, 1000};
        change(now, progress);
        QCOMPARE(CheckPressure(before, now, progress), stop);
    }

    void OwnPages()
    {
        // Bound 4 GiB: a window of 128 MiB.
        const auto at = [](std::uint64_t nPressedMiB, std::uint64_t nResidentMiB) {
            return PressureProgress{nPressedMiB * nBytesPerMiB, nResidentMiB * nBytesPerMiB, true,
                                    4 * nBytesPerGiB, 0};
        };
        OwnPagesTaken taken;
        QVERIFY(!taken.Mostly(at(1000, 1000)));
        // Half of what is pressed costs our own, no more.
        QVERIFY(!taken.Mostly(at(1200, 1100)));
        // Too early to tell.
        QVERIFY(!taken.Mostly(at(1300, 1100)));
        QVERIFY(!taken.Mostly(at(1400, 1200)));
        QVERIFY(taken.Mostly(at(1600, 1210)));
        QVERIFY(!taken.Mostly(at(1800, 1400)));
    }
};

QTEST_GUILESS_MAIN(TestFreeingPlan)
#include "TestFreeingPlan.moc"
