#include "tests/compat/RunProgram.h"
#include "tests/memfree/TemporaryTree.h"

#include <QElapsedTimer>
#include <QTest>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const QByteArray noExpression = ": syntax error: Expected expression but found identifier. (-2741)";

/// The process whose id the file holds has ended.
bool HasEnded(const QString &idFile)
{
    QFile file(idFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const pid_t id = file.readAll().trimmed().toInt();
    // A zombie that nobody reaps here counts as ended.
    QFile status(QString("/proc/%1/stat").arg(id));
    return id > 0 && (!status.open(QIODevice::ReadOnly) || status.readAll().contains(") Z "));
}

} // namespace

class TestOsascript : public QObject
{
    Q_OBJECT

private slots:
    void Scripts_data();
    void Scripts();
    void Arguments_data();
    void Arguments();
    void ScriptFile();
    void MemoryReport();
    void OneWrite();
    void Size_data();
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
    row("raw line end in a string", "do shell script \"echo a\necho b\"", "a\rb\n");
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
    error("command too long", "do shell script \"" + QByteArray(200'000, 'x') + '"',
          "0:200018: execution error: Cannot start /bin/sh: Argument list too long. (-10000)");
    error("in characters", "-- \303\244 \xF0\x9F\x98\x80\ndo shell script \"exit 3\"",
          "7:31" + failed + "(3)");
    error("the first", "do shell script \"exit 3\"\ndo shell script \"exit 4\"", "0:24" + failed + "(3)");
    error("nothing is run if the end is wrong", "do shell script \"exit 3\"\nfoo", "25:28" + noExpression);
    error("two on a line", R"(do shell script "a" do)",
          "20:22: syntax error: Expected end of line but found identifier. (-2741)");
    error("bad escape", R"("a\q")", "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    error("NUL", {"\"a\0\"", 4}, "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    error("open tell", "tell application \"System Events\"\n",
          "33:33: syntax error: Expected \"end\" but found end of script. (-2741)");
    error("another application", "tell application \"Finder\"\nactivate\nend tell",
          "17:25: execution error: Can't get application \"Finder\". (-1728)");
    error("System Events' words outside", "make login item", "0:4" + noExpression);
}

void TestOsascript::Scripts()
{
    QFETCH(const QByteArray, script);
    QTEST(RunProgram(OSASCRIPT, {"-l", "AppleScript"}, {.input = script}), "expected");
}

void TestOsascript::Arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Outcome>("expected");
    const auto row = [](const QStringList &arguments, const Outcome &expected) {
        QTest::newRow(qPrintable("'" + arguments.join(' ') + "'")) << arguments << expected;
    };
    row({"-l", "applescript"}, {0, "input\n", ""});
    row({"-e", "do shell script \"echo a\"", "-e", "do shell script \"echo b\"", "argument"}, {0, "b\n", ""});
    row({"-l", "JavaScript"}, {1, "", "osascript: no such language: \"JavaScript\" (AppleScript only)\n"});
    row({"/nonexistent"}, {1, "", "osascript: /nonexistent: No such file or directory\n"});
    row({"-x"}, {2, "", "osascript: invalid option -- 'x'\n"});
}

void TestOsascript::Arguments()
{
    QFETCH(const QStringList, arguments);
    QTEST(RunProgram(OSASCRIPT, arguments, {.input = "do shell script \"echo input\""}), "expected");
}

void TestOsascript::ScriptFile()
{
    const TemporaryTree dir;
    dir.Write("a script", "#!/usr/bin/osascript\nfoo");
    const QString path = QString::fromStdString(dir.Path("a script"));
    QCOMPARE(RunProgram(OSASCRIPT, {path, "an", "argument"}).errors,
             path.toUtf8() + ":21:24" + noExpression + "\n");
}

void TestOsascript::MemoryReport()
{
    const TemporaryTree dir;
    Surroundings around = {.input = "do shell script \"vm_stat\""};
    around.environment.insert("PATH", "/nonexistent::" + QString::fromStdString(dir.Path()));
    const QByteArray own = "Mach Virtual Memory Statistics: (page size of 4096 bytes)\rPages free: ";
    QVERIFY(RunProgram(OSASCRIPT, {}, around).output.startsWith(own));

    // One that is installed is what the script asks for. A file that cannot be executed is none.
    dir.Write("vm_stat", "#!/bin/sh\necho installed\n");
    QVERIFY(RunProgram(OSASCRIPT, {}, around).output.startsWith(own));
    QFile::setPermissions(QString::fromStdString(dir.Path("vm_stat")), QFile::ReadOwner | QFile::ExeOwner);
    QCOMPARE(RunProgram(OSASCRIPT, {}, around), (Outcome{0, "installed\n", ""}));
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

void TestOsascript::Size_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<qsizetype>("nOutput"); // 0: it fails
    QTest::addColumn<QByteArray>("errors");
    const auto row = [](const char *name, const QByteArray &script, qsizetype nOutput,
                        const QByteArray &errors) { QTest::newRow(name) << script << nOutput << errors; };
    row("script of 10 MB", QByteArray(10'000'000, '\n'), 0, "standard input: File too large\n");
    row("10000 tells", QByteArray("tell application \"System Events\"\n").repeated(10'000), 0, "(-2706)\n");
    row("much output", "do shell script \"head -c 60000000 /dev/zero\"", 60'000'001, "");
    row("output without end", "do shell script \"yes\"", 0, "more than 64 MiB and was stopped. (-10000)\n");
    row("many errors", "do shell script \"head -c 60000000 /dev/zero >&2; echo done\"", 5, "");
    row("closed early", "do shell script \"exec >&- 2>&-; sleep 0.1; exit 3\"", 0, "status. (3)\n");
}

void TestOsascript::Size()
{
    QFETCH(const QByteArray, script);
    QFETCH(const qsizetype, nOutput);
    QFETCH(const QByteArray, errors);
    const Outcome outcome = RunProgram(OSASCRIPT, {}, {.input = script});
    QCOMPARE(outcome.status, nOutput == 0 ? 1 : 0);
    QCOMPARE(outcome.output.size(), nOutput);
    QVERIFY2(outcome.errors.endsWith(errors), outcome.errors.right(200).constData());
}

/// A command that stays is killed with all that it started, in every way it can keep us waiting; so is one
/// whose interpreter is ended.
void TestOsascript::Ends()
{
    const QTemporaryDir dir;
    const std::array<const char *, 5> commands = {
        "echo $$ >%1; exec sleep 61",                // for the one that is ended
        "echo a; sleep 61 & echo $! >%1; wait",      // runs on
        "exec >&- 2>&-; echo $$ >%1; exec sleep 61", // runs on with its outputs closed
        "sleep 61 & echo $! >%1",                    // leaves something behind that holds them
        "trap '' TERM INT HUP; echo $$ >%1; while :; do sleep 1; done", // ignores being asked
    };
    std::array<QProcess, 5> interpreters;
    QElapsedTimer timer;
    timer.start();
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const QString command = QString(commands[i]).arg(dir.filePath(QString::number(i)));
        interpreters[i].start(OSASCRIPT, {"-e", "do shell script \"" + command + "\""});
    }
    QTRY_VERIFY(QFileInfo(dir.filePath("0")).size() > 0);
    interpreters[0].terminate();
    QVERIFY(interpreters[0].waitForFinished(5000));
    QCOMPARE(interpreters[0].exitStatus(), QProcess::CrashExit);
    QCOMPARE(interpreters[0].exitCode(), SIGTERM);
    for (std::size_t i = 1; i < commands.size(); ++i) {
        QVERIFY(interpreters[i].waitForFinished(15'000));
        QCOMPARE(interpreters[i].exitCode(), 1);
        QCOMPARE(interpreters[i].readAllStandardOutput(), "");
        QVERIFY(interpreters[i].readAllStandardError().endsWith(
            ": execution error: The command did not end in time and was stopped. (-1712)\n"));
    }
    QVERIFY(timer.elapsed() > 9000);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        QTRY_VERIFY2(HasEnded(dir.filePath(QString::number(i))), commands[i]);
    }
}

QTEST_GUILESS_MAIN(TestOsascript)
#include "TestOsascript.moc"
