#include "tests/compat/RunProgram.h"
#include "tests/memfree/TemporaryTree.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

static const QByteArray noExpression = ": syntax error: Expected expression but found identifier. (-2741)";

class TestOsascript : public QObject
{
    Q_OBJECT

private slots:
    void Scripts_data();
    void Scripts();
    void Arguments();
    void MemoryReport();
    void OneWrite();
    void Size();
    void Ends();
};

void TestOsascript::Scripts_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<Outcome>("expected");
    const auto row = [](const char *name, const QByteArray &script, const QByteArray &output) {
        QTest::newRow(name) << script << Outcome{0, output, ""};
    };
    row("line ends become CR, the last one goes", R"(do shell script "printf 'a\\nb\\r\\nc\\rd\\n\\n'")",
        "a\rb\rc\rd\r\n");
    row("line ends stay", R"(do shell script "printf 'a\\n\\n'" without altering line endings)", "a\n\n\n");
    row("bytes as they are", "do shell script \"printf '\\\\0\\\\377\303\244'\"", {"\0\xff\xc3\xa4\n", 5});
    row("line ends in a string", "do shell script \"echo a\necho b\\necho\\tc\"", "a\rb\rc\n");
    row("standard input is empty", "do shell script \"cat\"", "\n");
    row("empty", "", "");
    row("a block's value", "tell application \"System Events\"\ndo shell script \"echo a\"\nend tell", "a\n");
    row("CRLF, letter case", "do shell script \"echo a\"\r\nDO Shell scripT \"echo B\" -- c\r\n", "B\n");

    const auto error = [](const char *name, const QByteArray &script, const QByteArray &errors) {
        QTest::newRow(name) << script << Outcome{1, "", errors + "\n"};
    };
    const QByteArray failed = ": execution error: The command exited with a non-zero status. ";
    error("error text", R"(do shell script "echo a; echo b >&2; exit 1")", "0:44: execution error: b (1)");
    error("output", R"(do shell script "echo a; exit 1")", "0:32: execution error: a (1)");
    error("signal", R"(do shell script "kill -9 $$")", "0:28" + failed + "(137)");
    error("the first, in characters",
          "-- \303\244 \xF0\x9F\x98\x80\ndo shell script \"exit 3\"\ndo shell script \"exit 4\"",
          "7:31" + failed + "(3)");
    error("nothing is run if the end is wrong", "do shell script \"exit 3\"\nfoo", "25:28" + noExpression);
    error("two on a line", R"(do shell script "a" do)",
          "20:22: syntax error: Expected end of line but found identifier. (-2741)");
    error("bad escape", R"("a\q")", "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    error("NUL", {"\"a\0\"", 4}, "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    error("open tell", "tell application \"System Events\"\n",
          "33:33: syntax error: Expected \"end\" but found end of script. (-2741)");
    error("another application", "tell application \"Finder\"\nactivate\nend tell",
          "17:25: execution error: Can't get application \"Finder\". (-1728)");
    error("System Events' words outside", "tell application \"System Events\"\nend tell\nmake login item",
          "42:46" + noExpression);
}

void TestOsascript::Scripts()
{
    QFETCH(const QByteArray, script);
    QTEST(RunProgram(OSASCRIPT, {"-l", "AppleScript"}, {.input = script}), "expected");
}

void TestOsascript::Arguments()
{
    const TemporaryTree dir;
    dir.Write("a script", "#!/usr/bin/osascript\nfoo");
    const QString file = QString::fromStdString(dir.Path("a script"));
    const std::pair<QStringList, Outcome> runs[] = {
        {{"-l", "applescript"}, {0, "input\n", ""}},
        {{"-e", "do shell script \"echo a\"", "-e", "do shell script \"echo b\"", "argument"},
         {0, "b\n", ""}},
        {{"-l", "JavaScript"}, {1, "", "osascript: no such language: \"JavaScript\" (AppleScript only)\n"}},
        {{file + "s"}, {1, "", "osascript: " + file.toUtf8() + "s: No such file or directory\n"}},
        {{file, "an", "argument"}, {1, "", file.toUtf8() + ":21:24" + noExpression + "\n"}},
        {{"-x"}, {2, "", "osascript: invalid option -- 'x'\n"}},
    };
    for (const auto &[arguments, expected] : runs) {
        QCOMPARE(RunProgram(OSASCRIPT, arguments, {.input = "do shell script \"echo input\""}), expected);
    }
}

void TestOsascript::MemoryReport()
{
    const TemporaryTree dir;
    Surroundings around = {.input = "do shell script \"vm_stat\""};
    around.environment.insert("PATH", "/nonexistent:" + QString::fromStdString(dir.Path()));
    const auto linesOf = [&around](const QStringList &arguments) {
        static const QRegularExpression count(" +[0-9]+\\.");
        const QByteArray output = RunProgram(OSASCRIPT, arguments, around).output;
        return QString(output).replace(count, "").split('\r');
    };
    const QStringList lines = linesOf({});
    QCOMPARE(lines.size(), 23);
    QCOMPARE(lines[0], "Mach Virtual Memory Statistics: (page size of 4096 bytes)");
    // Asked as the application asks, it answers before the C library has begun.
    const QStringList quick = {"-l", "AppleScript"};
    QCOMPARE(linesOf(quick), lines);

    // One that is installed is what the script asks for. A file that cannot be executed is none.
    dir.Write("vm_stat", "#!/bin/sh\necho installed\n");
    QCOMPARE(linesOf(quick), lines);
    QFile::setPermissions(QString::fromStdString(dir.Path("vm_stat")), QFile::ReadOwner | QFile::ExeOwner);
    for (const QStringList &arguments : {QStringList(), quick}) {
        QCOMPARE(RunProgram(OSASCRIPT, arguments, around), (Outcome{0, "installed\n", ""}));
    }
}

/// The application takes the first burst for all there is.
void TestOsascript::OneWrite()
{
    // A socket that keeps each write apart stands in for the pipe.
    std::array<int, 2> ends = {-1, -1};
    QCOMPARE(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), 0);
    const QByteArray script =
        "do shell script \"for i in 1 2 3; do echo $i; sleep 0.01; done; head -c 50000 /dev/zero\"";
    const Outcome outcome =
        RunProgram(OSASCRIPT, {}, {.input = script, .inChild = [ends] { dup2(ends[1], STDOUT_FILENO); }});
    close(ends[1]);
    QCOMPARE(outcome.status, 0);
    QByteArray first(100'000, ' ');
    const ssize_t nFirst = read(ends[0], first.data(), size_t(first.size()));
    const ssize_t nSecond = read(ends[0], first.data(), size_t(first.size()));
    close(ends[0]);
    QCOMPARE(nFirst, ssize_t(6 + 50000 + 1));
    QCOMPARE(nSecond, ssize_t(0));
}

void TestOsascript::Size()
{
    const struct
    {
        QByteArray script;
        qsizetype nOutput; // 0: it fails
        QByteArray errors;
    } runs[] = {
        {QByteArray(10'000'000, '\n'), 0, "standard input: File too large\n"},
        {QByteArray("tell application \"System Events\"\n").repeated(10'000), 0, "(-2706)\n"},
        {"do shell script \"head -c 60000000 /dev/zero\"", 60'000'001, ""},
        {"do shell script \"yes\"", 0, "more than 64 MiB and was stopped. (-10000)\n"},
        {"do shell script \"head -c 60000000 /dev/zero >&2; echo done\"", 5, ""},
        {"do shell script \"exec >&- 2>&-; sleep 0.1; exit 3\"", 0, "status. (3)\n"},
    };
    for (const auto &[script, nOutput, errors] : runs) {
        const Outcome outcome = RunProgram(OSASCRIPT, {}, {.input = script});
        QCOMPARE(outcome.status, nOutput == 0 ? 1 : 0);
        QCOMPARE(outcome.output.size(), nOutput);
        QVERIFY2(outcome.errors.endsWith(errors), outcome.errors.right(200).constData());
    }
}

/// A command that stays is killed with all that it started, in every way it can keep us waiting; so is one
/// whose interpreter is ended.
void TestOsascript::Ends()
{
    const char *const commands[] = {
        "echo >&9; exec sleep 61",                         // for the one that is ended
        "echo a; sleep 61 & wait",                         // runs on
        "exec >&- 2>&-; exec sleep 61",                    // runs on with its outputs closed
        "sleep 61 &",                                      // leaves something behind that holds them
        "trap '' TERM INT HUP; while :; do sleep 1; done", // ignores being asked
    };
    // Whatever they start has the one end of a pipe: the other one tells when the last has gone.
    std::array<int, 2> ends = {-1, -1};
    QCOMPARE(pipe2(ends.data(), O_CLOEXEC), 0);
    std::array<QProcess, std::size(commands)> interpreters;
    QElapsedTimer timer;
    timer.start();
    for (std::size_t i = 0; i < interpreters.size(); ++i) {
        interpreters[i].setChildProcessModifier([ends] { dup2(ends[1], 9); });
        interpreters[i].start(OSASCRIPT, {"-e", QString("do shell script \"%1\"").arg(commands[i])});
    }
    char started = 0;
    QCOMPARE(read(ends[0], &started, 1), ssize_t(1));
    interpreters[0].terminate();
    QVERIFY(interpreters[0].waitForFinished(5000));
    QCOMPARE(interpreters[0].exitStatus(), QProcess::CrashExit);
    QCOMPARE(interpreters[0].exitCode(), SIGTERM);
    for (std::size_t i = 1; i < interpreters.size(); ++i) {
        QVERIFY(interpreters[i].waitForFinished(15'000));
        QCOMPARE(interpreters[i].exitCode(), 1);
        QCOMPARE(interpreters[i].readAllStandardOutput(), "");
        QVERIFY(interpreters[i].readAllStandardError().endsWith(
            ": execution error: The command did not end in time and was stopped. (-1712)\n"));
    }
    QVERIFY(timer.elapsed() > 9000);
    close(ends[1]);
    pollfd left = {ends[0], POLLIN, 0};
    QCOMPARE(poll(&left, 1, 5000), 1);
    close(ends[0]);
}

QTEST_GUILESS_MAIN(TestOsascript)
#include "TestOsascript.moc"
