// The script runner against real interpreters of every temper, and the login-item scripts that go through it.

#include "platform/Global.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QProcess>

class TestRunner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { FailOnWarnings(); }
    void answers_data();
    void answers();
    void scriptArrivesAsUtf8();
    void noInterpreterCostsNoDescriptor_data();
    void noInterpreterCostsNoDescriptor();
    void processObjects();
    void bundlePath_data();
    void bundlePath();
    void loginItemScripts();

private:
    static QString Run(const QString &script = QStringLiteral("x"))
    {
        QObject parent;
        return Global::RunAppleScript(script, &parent, true);
    }
};

void TestRunner::initTestCase()
{
    QVERIFY2(!QFileInfo::exists(QStringLiteral("/usr/bin/osascript")),
             "the system's interpreter would be run instead");
}

void TestRunner::answers_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("answer");
    const auto row = [](const char *name, const char *body, const QString &answer) {
        QTest::newRow(name) << QByteArray(body) << answer;
    };
    row("trimmed", "printf '  two words \\n\\n'", QStringLiteral("two words"));
    row("arguments", "echo \"$# $1 $2\"", QStringLiteral("2 -l AppleScript"));
    row("silent", "exit 0", QString());
    row("silent after reading", "cat >/dev/null", QString());
    row("failing", "echo nothing; exit 1", QStringLiteral("nothing"));
    row("standard error only", "echo oops >&2; exit 1", QString());
    row("first of two bursts", "echo one; sleep 0.3; echo two", QStringLiteral("one"));
    row("lives on after its answer", "echo one; exec sleep 60", QStringLiteral("one"));
    row("NUL byte", "printf 'a\\0b'", QStringLiteral("a"));
    row("Latin-1", "printf '\\351'", QString(QChar(0xe9)));
    row("crashing", "kill -SEGV $$", QString());
    row("not a program", "", QString());
}

void TestRunner::answers()
{
    QFETCH(QByteArray, body);
    const BundledFake interpreter(QStringLiteral("osascript"), body);
    QTEST(Run(), "answer");
}

void TestRunner::scriptArrivesAsUtf8()
{
    const BundledFake interpreter(QStringLiteral("osascript"), "od -An -tx1 | tr -d ' \\n'");
    QCOMPARE(Run(QStringLiteral("\u00e9\n\u20ac\"")), QStringLiteral("c3a90ae282ac22"));
    QCOMPARE(Run(QString(300000, QLatin1Char('x'))).left(4), QStringLiteral("7878"));
}

void TestRunner::noInterpreterCostsNoDescriptor_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no file
    QTest::addColumn<bool>("bExecutable");
    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("not executable") << QByteArray("#!/bin/sh\necho no") << false;
    QTest::newRow("no interpreter of its own") << QByteArray("#!/nowhere/sh\n") << true;
    QTest::newRow("another machine's") << QByteArray("\x7f"
                                                     "ELF\1\1\1 not for us")
                                       << true;
}

void TestRunner::noInterpreterCostsNoDescriptor()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, bExecutable);
    BundledFake interpreter(QStringLiteral("osascript"));
    if (!content.isNull()) {
        QFile file(interpreter.path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(bExecutable ? QFileDevice::ReadOwner | QFileDevice::ExeOwner
                                        : QFileDevice::ReadOwner);
    }
    const auto descriptors = [] {
        return QDir(QStringLiteral("/proc/self/fd"))
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
            .size();
    };
    const auto nBefore = descriptors();
    for (int i = 0; i < 100; ++i) {
        QCOMPARE(Run(), QString());
    }
    QVERIFY(descriptors() <= nBefore + 1);
    QTest::qWait(10); // a file system's clock may be coarse
    interpreter.Write("echo mended");
    QCOMPARE(Run(), QStringLiteral("mended"));
}

void TestRunner::processObjects()
{
    const BundledFake interpreter(QStringLiteral("osascript"), "cat >/dev/null; echo done");
    QObject parent;
    Global::RunAppleScript(QStringLiteral("x"), &parent, true);
    QCOMPARE(parent.findChildren<QProcess *>().size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(parent.findChildren<QProcess *>().size(), 0);

    QCOMPARE(Global::RunAppleScript(QStringLiteral("x"), &parent, false), QString());
    QTest::qWait(100);
    const auto left = parent.findChildren<QProcess *>();
    QCOMPARE(left.size(), 1);
    QVERIFY(left.first()->waitForFinished() || left.first()->state() == QProcess::NotRunning);
}

void TestRunner::bundlePath_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("path");
    QTest::newRow("bundle") << "/Applications/Kelvo.app/Contents/MacOS"
                            << "/Applications/Kelvo.app";
    QTest::newRow("plain directory") << "/opt/kelvo/bin"
                                     << "/opt/kelvo/bin";
    QTest::newRow("twice") << "/a/Contents/MacOS/b/Contents/MacOS"
                           << "/a/Contents/MacOS/b";
    QTest::newRow("at the start") << "/Contents/MacOS"
                                  << "/Contents/MacOS";
    QTest::newRow("below it") << "/a/Contents/MacOS/sub"
                              << "/a";
    QTest::newRow("another case") << "/a/contents/macos"
                                  << "/a/contents/macos";
}

void TestRunner::bundlePath()
{
    QFETCH(QString, directory);
    QTEST(Global::BundlePath(directory), "path");
}

void TestRunner::loginItemScripts()
{
    const QString log =
        QDir::tempPath() + QStringLiteral("/kelvo-test-script-%1").arg(QCoreApplication::applicationPid());
    const BundledFake interpreter(QStringLiteral("osascript"), "cat >" + log.toUtf8() + "; echo ok");
    const auto sent = [&](bool bOn) {
        Global::SetAutoLaunch(bOn);
        QFile file(log);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    };

    QCOMPARE(sent(true),
             QStringLiteral("tell application \"System Events\"\n    make login item at end with properties "
                            "{path:\"%1\", kind:application}\nend tell\n")
                 .arg(QCoreApplication::applicationDirPath()));
    QCoreApplication::setApplicationName(QStringLiteral("Foo-Bar"));
    QCOMPARE(
        sent(false),
        QStringLiteral(
            "tell application \"System Events\"\n    get the name of every login item\n    if login item "
            "\"Foo Bar\" exists then\n        delete login item \"Foo Bar\"\n    end if\nend tell\n"));
    QFile::remove(log);
}

QTEST_GUILESS_MAIN(TestRunner)
#include "TestRunner.moc"
