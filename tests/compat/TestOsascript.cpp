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
    void Size_data();
    void Size();
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
    row("line ends become CR, the last one goes",
        "do shell script \"printf 'a\\\\nb\\\\r\\\\nc\\\\rd\\\\n\\\\n'\"", "a\rb\rc\rd\r\n");
    row("line ends stay", "do shell script \"printf 'a\\\\n\\\\n'\" without altering line endings",
        "a\n\n\n");
    row("no output", "do shell script \":\"", "\n");
    row("bytes as they are", "do shell script \"printf '\\\\0\\\\377\303\244'\"",
        QByteArray("\0\xff\xc3\xa4\n", 5));
    row("raw line end in a string", "do shell script \"echo a\necho b\"", "a\rb\n");
    row("standard input is empty", "do shell script \"cat\"", "\n");

    row("empty", "", "");
    row("the last statement's value", "do shell script \"echo a\"\ndo shell script \"echo b\" -- c", "b\n");
    row("a block's value", "tell application \"System Events\"\ndo shell script \"echo a\"\nend tell", "a\n");
    row("letter case", "DO Shell scripT \"echo A\"", "A\n");
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
    row("status and error text", "do shell script \"echo a; echo b >&2; exit 1\"",
        "0:44: execution error: b (1)");
    row("status and output", "do shell script \"echo a; exit 1\"", "0:32: execution error: a (1)");
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
    row("bad escape", "\"a\\q\"", "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");
    row("NUL in a string", QByteArray("\"a\0\"", 4),
        "2:3: syntax error: Expected \"\"\" but found unknown token. (-2741)");

    row("open tell", "tell application \"System Events\"\n",
        "33:33: syntax error: Expected \"end\" but found end of script. (-2741)");
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
    row({"-l", "applescript"}, {0, "input\n", ""});
    row({"-e", "do shell script \"echo a\"", "-e", "do shell script \"echo b\"", "argument"}, {0, "b\n", ""});
    row({"-l", "JavaScript"}, {1, "", "osascript: no such language: \"JavaScript\" (AppleScript only)\n"});
    row({"/nonexistent"}, {1, "", "osascript: /nonexistent: No such file or directory\n"});
    row({"-x"}, {2, "", "osascript: invalid option -- 'x'\n"});
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
    QVERIFY(own.output.startsWith("Mach Virtual Memory Statistics: (page size of 4096 bytes)\rPages free: "));

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
    row("10000 tells", QByteArray("tell application \"System Events\"\n").repeated(10'000), 0,
        "syntax error: The script is nested too deeply. (-2706)\n");
    row("much output", "do shell script \"head -c 60000000 /dev/zero\"", 60'000'001, "");
    row("output without end", "do shell script \"yes\"", 0,
        "The command wrote more than 64 MiB and was stopped. (-10000)\n");
    row("many errors", "do shell script \"head -c 60000000 /dev/zero >&2; echo done\"", 5, "");
    row("closed early", "do shell script \"exec >&- 2>&-; sleep 0.1; exit 3\"", 0, "non-zero status. (3)\n");
}

void TestOsascript::Size()
{
    QFETCH(const QByteArray, script);
    QFETCH(const qsizetype, nOutput);
    QFETCH(const QByteArray, errors);
    const Outcome outcome = RunScript(script);
    QCOMPARE(outcome.status, nOutput == 0 ? 1 : 0);
    QCOMPARE(outcome.output.size(), nOutput);
    QVERIFY2(outcome.errors.endsWith(errors), outcome.errors.right(200).constData());
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
