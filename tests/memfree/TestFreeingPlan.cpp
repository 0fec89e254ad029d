// Which method memfree chooses, and when it stops. These rules are pure functions: no memory is touched.
#include "memfree/ByteCount.h"
#include "memfree/FreeingPlan.h"
#include "memfree/StoppingRule.h"

#include <QTest>

#include <functional>

namespace {

constexpr std::uint64_t MiB = bytesPerMiB, GiB = bytesPerGiB;

/// An ordinary desktop: 8 GiB, 2 GiB of it free, 6 GiB available, 4 GiB inactive, and its swap is full.
const MemoryState desktop = {8 * GiB, 2 * GiB, 6 * GiB, GiB / 2, 4 * GiB, 0, 0, 10 * MiB};

/// The method and its bound in MiB, or the reason to do nothing.
std::string Plan(const std::function<void(Situation &)> &change, Method lastTried = Method::None)
{
    Situation situation;
    situation.memory = desktop;
    situation.asked = 6 * GiB + 100 * MiB;
    situation.pressureFile.directory = "/home/user/.cache";
    change(situation);
    const Decision decision = Decide(situation, lastTried);
    return decision.method == Method::None
               ? decision.reason
               : MethodName(decision.method) + (' ' + std::to_string(decision.bound / MiB));
}

/// What CheckPressure() says after 1 s and 1 GiB of page-cache pressure, all of it from free memory.
Stop StopAfter(const std::function<void(MemoryState &, PressureProgress &)> &change)
{
    MemoryState pressureStart = desktop;
    pressureStart.fileReclaimed = GiB; // by another method
    MemoryState now = pressureStart;
    now.inactiveFile += GiB;
    PressureProgress progress = {GiB, GiB, true, 6 * GiB, 1000};
    change(now, progress);
    return CheckPressure(desktop, pressureStart, now, progress);
}

} // namespace

class TestFreeingPlan : public QObject
{
    Q_OBJECT

private slots:
    void ChoosesMethodAndBound()
    {
        const auto root = [](auto &s) { s.bMayDropCaches = true; };
        const auto groups = [](auto &s) { s.inactiveInCgroups = GiB; };
        const auto swap = [&](auto &s) { groups(s), s.memory.swapFree = 1; };
        const auto noDisk = [](auto &s) { s.pressureFile = {}; };
        QCOMPARE(Plan(root), "dropping the page cache 0");
        QCOMPARE(Plan(root, Method::DropCaches), "page-cache pressure 6176");
        QCOMPARE(Plan(groups), "control group reclaim 0");
        QCOMPARE(Plan(swap), "page-cache pressure 6176");
        QVERIFY(Plan([&](auto &s) { swap(s), s.bCgroupReclaimWithoutSwap = true; }).starts_with("control"));
        QCOMPARE(Plan(root, Method::PageCachePressure), "anonymous pressure 5734");
        QCOMPARE(Plan(root, Method::AnonymousPressure), "all methods have been tried");
        QCOMPARE(Plan([](auto &s) { s.asked = 3 * GiB; }), "page-cache pressure 3072");
        QCOMPARE(Plan([](auto &s) { s.cgroup = {4 * GiB, 5 * GiB}; }), "page-cache pressure 3840");
        // The kernel cannot take anonymous pages back: they leave a reserve, in a cgroup too.
        QCOMPARE(Plan(noDisk), "anonymous pressure 5734");
        QCOMPARE(Plan([&](auto &s) { noDisk(s), s.cgroup = {3 * GiB, 4 * GiB}; }), "anonymous pressure 2816");
        QVERIFY(Plan([&](auto &s) { noDisk(s), s.memory.available = 2 * GiB; }).ends_with("for no more"));

        QCOMPARE(Plan([](auto &s) { s.asked = 2 * GiB; }), "2.00 GiB are free already");
        QCOMPARE(Plan([](auto &s) { s.memory.inactiveFile = 31 * MiB; }), "only 31.0 MiB are inactive");
        QVERIFY(Plan([](auto &s) { s.memory.free = 257 * GiB, s.asked *= 99; }).ends_with("257.00 GiB free"));
        QVERIFY(Plan([](auto &s) { s.memory.available = 400 * MiB; }).ends_with("are kept in reserve"));
        QVERIFY(Plan([](auto &s) { s.cgroup = {900 * MiB, GiB}; }).starts_with("this control group's limit"));
    }

    void StopsAtHarmOrWhenDone()
    {
        QCOMPARE(StopAfter([](auto &now, auto &) { now.refaulted = 5 * MiB, now.usStalled = 500'000; }),
                 Stop::None);
        QCOMPARE(StopAfter([](auto &now, auto &p) { now.swapUsed = 0, p.msElapsed = 39999; }), Stop::None);
        QCOMPARE(StopAfter([](auto &, auto &p) { p.msElapsed = 40000; }), Stop::Deadline);
        QCOMPARE(StopAfter([](auto &now, auto &) { now.available = 409 * MiB; }), Stop::ShortOfMemory);
        QCOMPARE(StopAfter([](auto &now, auto &) { now.swapUsed += 2 * MiB; }), Stop::Swapping);
        QCOMPARE(StopAfter([](auto &now, auto &) { now.refaulted = 6 * MiB; }), Stop::EvictingInUse);
        QCOMPARE(StopAfter([](auto &now, auto &) { now.usStalled = 600'000; }), Stop::Stalling);

        QCOMPARE(StopAfter([](auto &, auto &p) { p.bound = GiB; }), Stop::BoundReached);
        // The GiB that is inactive is the pressure's own, unless its pages are on the active list.
        QCOMPARE(StopAfter([](auto &now, auto &) { now.inactiveFile = GiB; }), Stop::NothingLeft);
        QCOMPARE(StopAfter([](auto &now, auto &) { now.activeFile += now.inactiveFile = GiB; }), Stop::None);
        // Other programs refill the cache: pressure ends after 4 GiB, not counting its own pages.
        QCOMPARE(StopAfter([](auto &now, auto &) { now.fileReclaimed = 5 * GiB - 1; }), Stop::None);
        QCOMPARE(StopAfter([](auto &now, auto &) { now.fileReclaimed = 5 * GiB; }), Stop::NothingLeft);
        QCOMPARE(StopAfter([](auto &now, auto &p) { now.fileReclaimed = 5 * GiB, p.resident = 0; }),
                 Stop::None);
    }

    void DetectsSelfEviction()
    {
        SelfEviction selfEviction;
        // The bound of 4 GiB makes a window of 128 MiB.
        const auto dominates = [&](std::uint64_t populated, std::uint64_t resident) {
            return selfEviction.Dominates({populated * MiB, resident * MiB, true, 4 * GiB, 0});
        };
        QVERIFY(!dominates(1000, 1000));
        QVERIFY(!dominates(1200, 1100)); // exactly half
        QVERIFY(!dominates(1300, 1100)); // the window is not full
        QVERIFY(!dominates(1400, 1200));
        QVERIFY(dominates(1600, 1210));
    }
};

QTEST_GUILESS_MAIN(TestFreeingPlan)
#include "TestFreeingPlan.moc"
