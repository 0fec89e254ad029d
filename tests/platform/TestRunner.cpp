// What the script runner makes of an answer. Bad interpreters and the login item: tests/e2e.

#include "platform/Global.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QProcess>

class TestRunner : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }
    void answers_data();
    void answers();
    void processObjects();
    void bundlePath()
    {
        QCOMPARE(Global::BundlePath("/Contents/MacOS/b.app/Contents/MacOS"), "/Contents/MacOS/b.app");
    }
};

void TestRunner::answers_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("answer");
    const auto row = [](const char *name, const char *body, const QString &answer) {
        QTest::newRow(name) << QByteArray(body) << answer;
    };
    row("arguments, script as UTF-8", "echo $# $* $(od -An -tx1)", "2 -l AppleScript c3 a9 0a e2 82 ac 22");
    row("trimmed", "printf '  two words \\n\\n'", "two words");
    row("Latin-1, cut at a NUL byte", "printf '\\351\\0b'", QChar(0xe9));
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

QTEST_GUILESS_MAIN(TestRunner)
#include "TestRunner.moc"
