#include "tests/compat/RunProgram.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

Outcome RunScript(const QByteArray &script)
{
    return RunProgram(OSASCRIPT, {"-l", "AppleScript"}, {.input = script});
}

/// A PATH in which no vm_stat is, whatever this machine has.
QProcessEnvironment Without(const QByteArray &path)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", path);
    return environment;
}

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
    void initTestCase() { QTest::failOnWarning(QRegularExpression(".*")); }
    void Result_data();
    void Result();
    void Error_data();
    void Error();
    void Arguments_data();
    void Arguments();
    void ScriptFile();
    void MemoryReport();
    void OneWrite();
    void Hostile_data();
    void Hostile();
    void Output_data();
    void Output();
    void TimeLimit();
    void EndedBySignal();
};

void TestOsascript::Result_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("output");
    const auto row = [](const char *name, const QByteArray &script, const QByteArray &output) {
        QTest::newRow(name) << script << output;
    };
    row("one line", "do shell script \"echo hello\"", "hello\n");
    row("line ends become CR, the last one goes",
        "do shell script \"printf 'a\\\\nb\\\\r\\\\nc\\\\rd\\\\n\\\\n'\"", "a\rb\rc\rd\r\n");
    row("line ends stay", "do shell script \"printf 'a\\\\n\\\\n'\" without altering line endings",
        "a\n\n\n");
    row("no output", "do shell script \":\"", "\n");
    row("bytes as they are", "do shell script \"printf '\\\\0\\\\377\303\244'\"",
        QByteArray("\0\xff\xc3\xa4\n", 5));
    row("escapes", R"(do shell script "printf %s \"a\\tb\"' c	'\t'\"'")", "a\\tb c	\"\n");
    row("raw line end in a string", "do shell script \"echo a\necho b\"", "a\rb\n");
    row("standard input is empty", "do shell script \"cat\"", "\n");
    row("standard error of a success", "do shell script \"echo a; echo b >&2\"", "a\n");

    row("empty", "", "");
    row("nothing but comments", "-- a\n# b\n\n", "");
    row("the last statement's value", "do shell script \"echo a\"\ndo shell script \"echo b\" -- c", "b\n");
    row("a block's value", "tell application \"System Events\"\ndo shell script \"echo a\"\nend tell", "a\n");
    row("letter case", "DO Shell scripT \"echo A\"", "A\n");
    row("CR", "do shell script \"echo a\"\rdo shell script \"echo b\"\r", "b\n");
    row("CRLF", "do shell script \"echo a\"\r\ndo shell script \"echo b\"\r\n", "b\n");
}

void TestOsascript::Result()
{
    QFETCH(const QByteArray, script);
    QFETCH(const QByteArray, output);
    QCOMPARE(RunScript(script), (Outcome{0, output, ""}));
}

void TestOsascript::Error_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("errors");
    const auto row = [](const char *name, const QByteArray &script, const QByteArray &errors) {
        QTest::newRow(name) << script << errors + "\n";
    };
    row("status", "do shell script \"exit 3\"",
        "0:24: execution error: The command exited with a non-zero status. (3)");
    row("status and error text", "do shell script \"echo a; echo b >&2; exit 1\"",
        "0:44: execution error: b (1)");
    row("status and output", "do shell script \"echo a; exit 1\"", "0:32: execution error: a (1)");
    row("unknown command", "do shell script \"nonexistent-command 2>/dev/null\"",
        "0:49: execution error: The command exited with a non-zero status. (127)");
    row("signal", "do shell script \"kill -9 $$\"",
        "0:28: execution error: The command exited with a non-zero status. (137)");
    row("the statements after it are not run", "do shell script \"exit 3\"\ndo shell script \"exit 4\"",
        "0:24: execution error: The command exited with a non-zero status. (3)");
    row("command too long", "do shell script \"" + QByteArray(200'000, 'x') + '"',
        "0:200018: execution error: Cannot start /bin/sh: Argument list too long. (-10000)");
    row("position in characters", "-- \303\244\303\266 \xF0\x9F\x98\x80\ndo shell script \"exit 3\"",
        "8:32: execution error: The command exited with a non-zero status. (3)");

    row("nothing is run if the end is wrong", "do shell script \"exit 3\"\nfoo",
        "25:28: syntax error: Expected expression but found identifier. (-2741)");
    row("two on a line", "do shell script \"a\" do",
        "20:22: syntax error: Expected end of line but found identifier. (-2741)");
    row("half a command", "do shell",
        "8:8: syntax error: Expected \"script\" but found end of script. (-2741)");
    row("no string", "do shell script echo",
        "16:20: syntax error: Expected string but found identifier. (-2741)");
    row("open string", "do shell script \"a",
        "16:18: syntax error: Expected \"\"\" but found end of script. (-2741)");
    row("open string after a backslash", "\"a\\",
        "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    row("bad escape", "\"a\\q\"", "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    row("NUL in a string", QByteArray("\"a\0\"", 4),
        "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    row("quote in a string", "do shell script \"a\"b\"",
        "19:20: syntax error: Expected end of line but found identifier. (-2741)");
    row("unknown character", "do $",
        "3:4: syntax error: Expected end of line but found unknown token. (-2741)");
    row("altering", "do shell script \"a\" without changing",
        "28:36: syntax error: Expected \"altering\" but found identifier. (-2741)");

    row("lone tell", "tell", "4:4: syntax error: Expected \"application\" but found end of script. (-2741)");
    row("open tell", "tell application \"System Events\"\n",
        "33:33: syntax error: Expected \"end\" but found end of script. (-2741)");
    row("lone end", "end tell", "0:3: syntax error: Expected end of script but found identifier. (-2741)");
    row("another end", "tell application \"System Events\"\nend if",
        "37:39: syntax error: Expected \"tell\" but found identifier. (-2741)");
    row("another application", "tell application \"Finder\"\nactivate\nend tell",
        "17:25: execution error: Can't get application \"Finder\". (-1728)");
    row("System Events' words outside", "make login item",
        "0:4: syntax error: Expected expression but found identifier. (-2741)");
}

void TestOsascript::Error()
{
    QFETCH(const QByteArray, script);
    QFETCH(const QByteArray, errors);
    QCOMPARE(RunScript(script), (Outcome{1, "", errors}));
}

void TestOsascript::Arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Outcome>("expected");
    const auto row = [](const QStringList &arguments, const Outcome &expected) {
        QTest::newRow(qPrintable("'" + arguments.join(' ') + "'")) << arguments << expected;
    };
    row({}, {0, "input\n", ""});
    row({"-"}, {0, "input\n", ""});
    row({"-l", "applescript"}, {0, "input\n", ""});
    row({"-e", "do shell script \"echo a\"", "-e", "do shell script \"echo b\"", "argument"}, {0, "b\n", ""});
    row({"-e", ""}, {0, "", ""});
    row({"-l", "JavaScript"}, {1, "", "osascript: no such language: \"JavaScript\" (AppleScript only)\n"});
    row({"/nonexistent"}, {1, "", "osascript: /nonexistent: No such file or directory\n"});
    row({"/"}, {1, "", "osascript: /: Is a directory\n"});
    row({"-x"}, {2, "", "osascript: invalid option -- 'x'\n"});
    row({"-e"}, {2, "", "osascript: option requires an argument -- 'e'\n"});
}

void TestOsascript::Arguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Outcome, expected);
    QCOMPARE(RunProgram(OSASCRIPT, arguments, {.input = "do shell script \"echo input\""}), expected);
}

void TestOsascript::ScriptFile()
{
    QTemporaryDir dir;
    QFile file(dir.filePath("a script"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/usr/bin/osascript\nfoo");
    file.close();
    const QByteArray errors = file.fileName().toUtf8() +
                              ":21:24: syntax error: Expected expression but found identifier. (-2741)\n";
    QCOMPARE(RunProgram(OSASCRIPT, {file.fileName(), "an", "argument"}), (Outcome{1, "", errors}));
}

void TestOsascript::MemoryReport()
{
    const QByteArray script = "do shell script \"vm_stat\"";
    const Outcome own = RunProgram(OSASCRIPT, {}, {.input = script, .environment = Without("/nonexistent")});
    QCOMPARE(own.status, 0);
    QCOMPARE(own.output.count('\r'), 22);
    QVERIFY(own.output.startsWith("Mach Virtual Memory Statistics: (page size of 4096 bytes)\rPages free: "));
    QVERIFY(own.output.endsWith(".\n"));

    // One that is installed is what the script asks for. A file that cannot be executed is none, nor is a
    // directory.
    QTemporaryDir dir;
    QFile program(dir.filePath("vm_stat"));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho installed\n");
    program.close();
    const QByteArray path = "/nonexistent::" + dir.path().toUtf8();
    program.setPermissions(QFileDevice::ReadOwner);
    QCOMPARE(RunProgram(OSASCRIPT, {}, {.input = script, .environment = Without(path)}).output.size(),
             own.output.size());
    program.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    QCOMPARE(RunProgram(OSASCRIPT, {}, {.input = script, .environment = Without(path)}),
             (Outcome{0, "installed\n", ""}));
    QCOMPARE(RunProgram(OSASCRIPT, {},
                        {.input = "do shell script \"vm_stat | wc -l\"",
                         .environment = Without(path + ":/usr/bin:/bin")}),
             (Outcome{0, "1\n", ""}));
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

void TestOsascript::Hostile_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("errors");
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    QTest::newRow("10 MB") << QByteArray(10'000'000, '\n')
                           << QByteArray("osascript: standard input: File too large\n");
    QTest::newRow("binary")
        << everyByte
        << QByteArray("0:1: syntax error: Expected end of line but found unknown token. (-2741)\n");
    QTest::newRow("10000 tells") << QByteArray("tell application \"System Events\"\n").repeated(10'000)
                                 << QByteArray("syntax error: The script is nested too deeply. (-2706)\n");
}

void TestOsascript::Hostile()
{
    QFETCH(const QByteArray, script);
    QFETCH(const QByteArray, errors);
    const Outcome outcome = RunScript(script);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.output, "");
    QVERIFY2(outcome.errors.endsWith(errors), outcome.errors.right(200).constData());
}

void TestOsascript::Output_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("status");
    QTest::addColumn<qsizetype>("nOutput");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("much") << QByteArray("head -c 60000000 /dev/zero") << 0 << qsizetype(60'000'001)
                          << QByteArray();
    QTest::newRow("too much") << QByteArray("head -c 100000000 /dev/zero") << 1 << qsizetype(0)
                              << QByteArray("The command wrote more than 64 MiB and was stopped. (-10000)\n");
    QTest::newRow("without end") << QByteArray("yes") << 1 << qsizetype(0)
                                 << QByteArray(
                                        "The command wrote more than 64 MiB and was stopped. (-10000)\n");
    QTest::newRow("many errors") << QByteArray("head -c 60000000 /dev/zero >&2; echo done") << 0
                                 << qsizetype(5) << QByteArray();
    QTest::newRow("closed early") << QByteArray("exec >&- 2>&-; sleep 0.1; exit 3") << 1 << qsizetype(0)
                                  << QByteArray("non-zero status. (3)\n");
}

void TestOsascript::Output()
{
    QFETCH(const QByteArray, command);
    QFETCH(const int, status);
    QFETCH(const qsizetype, nOutput);
    QFETCH(const QByteArray, errors);
    const Outcome outcome = RunScript("do shell script \"" + command + "\"");
    QCOMPARE(outcome.status, status);
    QCOMPARE(outcome.output.size(), nOutput);
    QVERIFY2(outcome.errors.endsWith(errors), outcome.errors.constData());
}

/// A command that stays is killed with all that it started, in every way it can keep us waiting.
void TestOsascript::TimeLimit()
{
    QTemporaryDir dir;
    const QByteArrayList commands = {
        "echo a; sleep 61 & echo $! >%1; wait",      // runs on
        "exec >&- 2>&-; echo $$ >%1; exec sleep 61", // runs on with its outputs closed
        "sleep 61 & echo $! >%1",                    // leaves something behind that holds them
        "trap '' TERM INT HUP; echo $$ >%1; while :; do sleep 1; done", // ignores being asked
    };
    std::vector<std::unique_ptr<QProcess>> interpreters;
    for (qsizetype command = 0; command < commands.size(); ++command) {
        const QString idFile = dir.filePath(QString::number(command));
        auto interpreter = std::make_unique<QProcess>();
        interpreter->start(OSASCRIPT,
                           {"-e", "do shell script \"" + QString(commands[command]).arg(idFile) + "\""});
        interpreters.push_back(std::move(interpreter));
    }
    QElapsedTimer timer;
    timer.start();
    for (const auto &interpreter : interpreters) {
        QVERIFY(interpreter->waitForFinished(15'000));
        QCOMPARE(interpreter->exitCode(), 1);
        QCOMPARE(interpreter->readAllStandardOutput(), "");
        QVERIFY(interpreter->readAllStandardError().endsWith(
            ": execution error: The command did not end in time and was stopped. (-1712)\n"));
    }
    QVERIFY(timer.elapsed() > 9000);
    for (qsizetype command = 0; command < commands.size(); ++command) {
        QTRY_VERIFY2(HasEnded(dir.filePath(QString::number(command))), commands[command].constData());
    }
}

void TestOsascript::EndedBySignal()
{
    QTemporaryDir dir;
    const QString idFile = dir.filePath("id");
    QProcess interpreter;
    interpreter.start(OSASCRIPT, {"-e", "do shell script \"echo $$ >" + idFile + ".new; mv " + idFile +
                                            ".new " + idFile + "; sleep 61\""});
    QTRY_VERIFY(QFile::exists(idFile));
    interpreter.terminate();
    QVERIFY(interpreter.waitForFinished(5000));
    QCOMPARE(interpreter.exitStatus(), QProcess::CrashExit);
    QCOMPARE(interpreter.exitCode(), SIGTERM);
    QTRY_VERIFY(HasEnded(idFile));
}

QTEST_GUILESS_MAIN(TestOsascript)
#include "TestOsascript.moc"
