// What the script runner makes of an interpreter's answer.

#include "platform/Global.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QProcess>

class TestRunner : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

    void answers()
    {
        const BundledFake interpreter("osascript");
        const std::pair<const char *, QString> cases[] = {
            {"echo $# $* $(od -An -tx1)", "2 -l AppleScript c3 a9 0a e2 82 ac 22"},
            {"printf '  two words \\n\\n'", "two words"},
            {"printf '\\351\\0b'", QChar(0xe9)},
            {"exec <&-; echo a", "a"},
            {"echo a >&2; exit 1", {}},
            {"kill -9 $$", {}},
        };
        for (const auto &[body, answer] : cases) {
            interpreter.Write(body);
            QCOMPARE(Global::RunInterpreter(interpreter.path, "\u00e9\n\u20ac\"", this, true), answer);
        }
    }

    void processObjects()
    {
        const BundledFake interpreter("osascript", "cat >/dev/null; echo done");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(findChildren<QProcess *>().size(), 0);
        // Not waited for, it needs its object to the end.
        QCOMPARE(Global::RunInterpreter(interpreter.path, "x", this, false), QString());
        auto *process = findChild<QProcess *>();
        QVERIFY(process && process->waitForFinished());
        QCOMPARE(process->readAll(), "done\n");
    }

    void bundlePath()
    {
        QCOMPARE(Global::BundlePath("/Contents/MacOS/b.app/Contents/MacOS"), "/Contents/MacOS/b.app");
    }
};

QTEST_GUILESS_MAIN(TestRunner)
#include "TestRunner.moc"
