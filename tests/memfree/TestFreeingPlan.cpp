// What memfree decides to do, and when it stops: the ladder and the rules, without touching any memory.
#include "memfree/ByteCount.h"
#include "memfree/FreeingPlan.h"
#include "memfree/StoppingRule.h"

#include <QTest>

#include <functional>

using Changes = QList<std::function<void(Situation &)>>;

namespace {

constexpr std::uint64_t MiB = bytesPerMiB;
constexpr std::uint64_t GiB = bytesPerGiB;

/// An ordinary desktop with 8 GiB: 2 GiB free, 4 GiB inactive, no swap, an ordinary user.
Situation Desktop()
{
    Situation situation;
    situation.memory.total = 8 * GiB;
    situation.memory.free = 2 * GiB;
    situation.memory.available = 6 * GiB;
    situation.memory.activeFile = GiB / 2;
    situation.memory.inactiveFile = 4 * GiB;
    situation.asked = 6 * GiB + 100 * MiB;
    situation.pressureDirectory = "/home/user/.cache";
    return situation;
}

} // namespace

class TestFreeingPlan : public QObject
{
    Q_OBJECT

private slots:
    void Ladder()
    {
        const auto plan = [](const Changes &changes, Method lastTried = Method::None) {
            Situation situation = Desktop();
            for (const auto &change : changes) {
                change(situation);
            }
            const Decision decision = Decide(situation, lastTried);
            return decision.method == Method::None
                       ? decision.reason
                       : MethodName(decision.method) + (' ' + std::to_string(decision.bound / MiB));
        };
        const auto root = [](Situation &s) { s.bMayDropCaches = true; };
        const auto groups = [](Situation &s) { s.inactiveInCgroups = GiB; };
        const auto emptyGroups = [](Situation &s) { s.inactiveInCgroups = MiB; };
        const auto swap = [](Situation &s) { s.memory.swapFree = 1; };
        const auto swapless = [](Situation &s) { s.bCgroupReclaimWithoutSwap = true; };
        const auto noDisk = [](Situation &s) { s.pressureDirectory.clear(); };
        const auto asked = [](std::uint64_t n) { return [n](Situation &s) { s.asked = n; }; };
        const auto free = [](std::uint64_t n) { return [n](Situation &s) { s.memory.free = n; }; };
        const auto available = [](std::uint64_t n) { return [n](Situation &s) { s.memory.available = n; }; };
        const auto idle = [](std::uint64_t n) { return [n](Situation &s) { s.memory.inactiveFile = n; }; };
        const auto room = [](const CgroupHeadroom &r) { return [r](Situation &s) { s.cgroup = r; }; };

        QCOMPARE(plan({root}), "dropping the page cache 0");
        QCOMPARE(plan({root}, Method::DropCaches), "page-cache pressure 6176"); // refused
        QCOMPARE(plan({groups}), "control group reclaim 0");
        QCOMPARE(plan({groups}, Method::CgroupReclaim), "page-cache pressure 6176");
        QCOMPARE(plan({groups, swap}), "page-cache pressure 6176");
        QCOMPARE(plan({groups, swap, swapless}), "control group reclaim 0");
        QCOMPARE(plan({emptyGroups}), "page-cache pressure 6176");
        QCOMPARE(plan({asked(3 * GiB)}), "page-cache pressure 3072");
        QCOMPARE(plan({asked(~0ULL >> 1)}), "page-cache pressure 6176");
        QCOMPARE(plan({room({4 * GiB, 5 * GiB})}), "page-cache pressure 3840");
        // Unlike cache this cannot be taken back: it leaves a reserve, and in a group as well.
        QCOMPARE(plan({noDisk}), "anonymous pressure 5734");
        QCOMPARE(plan({noDisk, room({3 * GiB, 4 * GiB})}), "anonymous pressure 2816");
        QCOMPARE(plan({}, Method::PageCachePressure), "anonymous pressure 5734");

        QCOMPARE(plan({}, Method::AnonymousPressure), "all methods have been tried");
        QCOMPARE(plan({asked(2 * GiB)}), "2.00 GiB are free already");
        QCOMPARE(plan({idle(31 * MiB), root}), "only 31.0 MiB are inactive");
        QCOMPARE(plan({idle(79 * MiB), free(5 * GiB)}), "only 79.0 MiB are inactive beside 5.00 GiB free");
        QVERIFY(plan({available(400 * MiB)}).ends_with("are kept in reserve"));
        QVERIFY(plan({room({900 * MiB, GiB})}).starts_with("this control group's limit of 1.00 GiB"));
        QVERIFY(plan({noDisk, available(2 * GiB)}).ends_with("leaves room for no more"));
    }

    void Rules()
    {
        const auto stop = [](const std::function<void(MemoryState &, PressureProgress &)> &change) {
            MemoryState before = Desktop().memory;
            before.swapUsed = 10 * MiB;
            before.refaulted = GiB;
            before.usStalled = 1'000'000;
            MemoryState first = before; // after other ways, which took some
            first.fileReclaimed = GiB;
            // After 1 s and 1 GiB, which has come out of what was free.
            MemoryState now = first;
            now.free -= GiB;
            now.inactiveFile += GiB;
            PressureProgress progress = {GiB, GiB, true, 6 * GiB, 1000};
            change(now, progress);
            return CheckPressure(before, first, now, progress);
        };
        const auto allowed = [](auto &now, auto &progress) {
            progress.msElapsed = 39999;
            now.swapUsed += MiB;
            now.refaulted += 5 * MiB;
            progress.bFileCache = false; // not to be taken off what is left
            now.inactiveFile = GiB;
        };
        const auto ownCountedAsActive = [](auto &now, auto &) {
            now.activeFile += GiB;
            now.inactiveFile = GiB;
        };
        QCOMPARE(stop(allowed), Stop::None);
        QCOMPARE(stop([](auto &, auto &progress) { progress.msElapsed = 40000; }), Stop::Deadline);
        QCOMPARE(stop([](auto &now, auto &) { now.available = 409 * MiB; }), Stop::ShortOfMemory);
        QCOMPARE(stop([](auto &now, auto &) { now.swapUsed += 2 * MiB; }), Stop::Swapping);
        QCOMPARE(stop([](auto &now, auto &) { now.swapUsed = 0; }), Stop::None);
        QCOMPARE(stop([](auto &now, auto &) { now.refaulted += 6 * MiB; }), Stop::EvictingInUse);
        QCOMPARE(stop([](auto &now, auto &) { now.usStalled += 500'000; }), Stop::None);
        QCOMPARE(stop([](auto &now, auto &) { now.usStalled += 600'000; }), Stop::Stalling);
        QCOMPARE(stop([](auto &now, auto &) { now.inactiveFile = GiB; }), Stop::NothingLeft);
        QCOMPARE(stop(ownCountedAsActive), Stop::None);
        // Others fill the cache as quickly as it is taken.
        const auto taken = [](std::uint64_t bytes) {
            return [bytes](auto &now, auto &progress) {
                now.fileReclaimed += bytes;
                progress.resident = GiB - 100 * MiB;
            };
        };
        const std::uint64_t inactive = Desktop().memory.inactiveFile;
        QCOMPARE(stop(taken(inactive + 99 * MiB)), Stop::None);
        QCOMPARE(stop(taken(inactive + 100 * MiB)), Stop::NothingLeft);
        QCOMPARE(stop([](auto &, auto &progress) { progress.bound = GiB; }), Stop::BoundReached);
    }

    void OwnPages()
    {
        SelfEviction taken;
        // Bound 4 GiB: a window of 128 MiB.
        const auto mostly = [&taken](std::uint64_t pressedMiB, std::uint64_t residentMiB) {
            return taken.Dominates({pressedMiB * MiB, residentMiB * MiB, true, 4 * GiB, 0});
        };
        QVERIFY(!mostly(1000, 1000));
        QVERIFY(!mostly(1200, 1100)); // half of what is pressed costs our own, no more
        QVERIFY(!mostly(1300, 1100)); // too early to tell
        QVERIFY(!mostly(1400, 1200));
        QVERIFY(mostly(1600, 1210));
        QVERIFY(!mostly(1800, 1400));
    }
};

QTEST_GUILESS_MAIN(TestFreeingPlan)
#include "TestFreeingPlan.moc"
