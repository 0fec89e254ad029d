// What the script runner makes of an answer. Interpreters that fail or are missing, and the login item, are
// met by the whole program in tests/e2e.

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
    void processObjects();
    void bundlePath();
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
    row("arguments", "echo \"$# $1 $2\"", QStringLiteral("2 -l AppleScript"));
    row("script as UTF-8, to its end", "od -An -tx1 | tr -d ' \\n'", QStringLiteral("c3a90ae282ac22"));
    row("trimmed", "printf '  two words \\n\\n'", QStringLiteral("two words"));
    row("cut at a NUL byte", "printf 'a\\0b'", QStringLiteral("a"));
    row("Latin-1", "printf '\\351'", QString(QChar(0xe9)));
    row("failing", "echo nothing; exit 1", QStringLiteral("nothing"));
    row("first of two bursts", "echo one; sleep 0.3; echo two", QStringLiteral("one"));
}

void TestRunner::answers()
{
    QFETCH(QByteArray, body);
    const BundledFake interpreter(QStringLiteral("osascript"), body);
    QObject parent;
    QTEST(Global::RunAppleScript(QStringLiteral("\u00e9\n\u20ac\""), &parent, true), "answer");
}

void TestRunner::processObjects()
{
    const BundledFake interpreter(QStringLiteral("osascript"), "cat >/dev/null; echo done");
    QObject parent;
    Global::RunAppleScript(QStringLiteral("x"), &parent, true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(parent.findChildren<QProcess *>().size(), 0);

    // Not waited for, it needs its object to the end.
    QCOMPARE(Global::RunAppleScript(QStringLiteral("x"), &parent, false), QString());
    auto *process = parent.findChild<QProcess *>();
    QVERIFY(process && process->waitForFinished());
    QCOMPARE(process->readAll(), QByteArray("done\n"));
}

void TestRunner::bundlePath()
{
    const QString bundle = QStringLiteral("/a/Contents/MacOS/b/Kelvo.app");
    QCOMPARE(Global::BundlePath(bundle + QStringLiteral("/Contents/MacOS")), bundle);
}

QTEST_GUILESS_MAIN(TestRunner)
#include "TestRunner.moc"
