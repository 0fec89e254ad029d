// The real program as a user starts it. Nothing here makes it free anything: it is asked for less than is
// free, or only for its plan.
#include "tests/compat/RunProgram.h"

#include <QRegularExpression>
#include <QTest>

#include <sys/resource.h>
#include <unistd.h>

class TestMemfree : public QObject
{
    Q_OBJECT

private slots:
    void BadArguments()
    {
        const auto refusal = [](const QByteArray &error) {
            return Outcome{2, "", "memfree: " + error + "\n"};
        };
        QCOMPARE(RunProgram(MEMFREE, {}), refusal("a byte count is needed; see memfree --help"));
        QCOMPARE(RunProgram(MEMFREE, {"--dry-run"}), refusal("a byte count is needed; see memfree --help"));
        QCOMPARE(RunProgram(MEMFREE, {"1", "2"}), refusal("one byte count only, not also \"2\""));
        QCOMPARE(RunProgram(MEMFREE, {"--fast", "1"}), refusal("no such option: \"--fast\""));
        for (const char *bad : {"", "0", "-5", "+5", "12x", " 4", "4 ", "1.5", "9223372036854775808"}) {
            QCOMPARE(RunProgram(MEMFREE, {bad}), refusal("not a byte count: \"" + QByteArray(bad) + "\""));
        }
    }

    void Help()
    {
        const Outcome help = RunProgram(MEMFREE, {"--help"});
        QCOMPARE(help.status, 0);
        QVERIFY(help.output.startsWith("usage: memfree [--dry-run] BYTES\n"));
        QCOMPARE(RunProgram(MEMFREE, {"-h"}), help);
    }

    void FreeAlready()
    {
        const Outcome outcome = RunProgram(MEMFREE, {"4096"});
        QCOMPARE(outcome, (Outcome{0, outcome.output, ""}));
        static const QRegularExpression line("^nothing to do: [0-9.]+ [KMG]iB are free already\n$");
        QVERIFY2(line.match(outcome.output).hasMatch(), outcome.output);

        // A reader that is gone is no failure.
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe(ends), 0);
        ::close(ends[0]);
        Surroundings deaf;
        deaf.inChild = [&ends] { ::dup2(ends[1], STDOUT_FILENO); };
        QCOMPARE(RunProgram(MEMFREE, {"4096"}, deaf), (Outcome{0, "", ""}));
        ::close(ends[1]);
    }

    /// With little address space and few descriptors, as on a machine that is short of everything.
    void DryRun()
    {
        Surroundings small;
#if !defined(__SANITIZE_ADDRESS__)
        small.inChild = [] {
            const rlimit space = {8 << 20, 8 << 20};
            const rlimit descriptors = {8, 8};
            ::setrlimit(RLIMIT_AS, &space);
            ::setrlimit(RLIMIT_NOFILE, &descriptors);
        };
#endif
        const Outcome outcome = RunProgram(MEMFREE, {"--dry-run", "9223372036854775807"}, small);
        QCOMPARE(outcome, (Outcome{0, outcome.output, ""}));
        static const QRegularExpression figures("^[0-9.]+ [KMG]iB inactive, [0-9.]+ [KMG]iB free, "
                                                "[0-9.]+ [KMG]iB available of [0-9.]+ [KMG]iB\nwould ");
        QVERIFY2(figures.match(outcome.output).hasMatch(), outcome.output);
    }
};

QTEST_GUILESS_MAIN(TestMemfree)
#include "TestMemfree.moc"
