// What passes between two copies, and what strangers can do to the running one. Whole copies: tests/e2e.

#include "platform/InstanceChannel.h"
#include "tests/support/FailOnWarnings.h"

#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <vector>

#include <sys/file.h>
#include <unistd.h>

static const QString identity = QStringLiteral("Orvanta-Test");
static constexpr qsizetype maxMessageSize = 16 << 20;

class TestInstanceChannel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FailOnWarnings(); }
    void init() { Use(directory.path()); }
    void messages();
    void runtimeDirectories();
    void helperThatOutlivesItsCopy();
    void waitsForTheNextRunningCopy();
    void strangers();

private:
    using Strangers = std::vector<std::unique_ptr<QLocalSocket>>;

    /// From here on the running copy is one of this runtime directory that has not yet been asked.
    void Use(const QString &runtimeDirectory)
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeDirectory));
        received.reset();
        running = std::make_unique<InstanceChannel>(identity);
        received = std::make_unique<QSignalSpy>(running.get(), SIGNAL(MessageReceived(QString)));
    }
    QString Path(const QString &suffix) const
    {
        return directory.filePath(QString("%1-%2.%3").arg(identity).arg(getuid()).arg(suffix));
    }
    /// Sends from a thread of its own, standing for another copy, while this one's event loop turns.
    static bool SendFromAnother(const QString &message)
    {
        bool bSent = false;
        const std::unique_ptr<QThread> other(
            QThread::create([&] { bSent = InstanceChannel(identity).Send(message, 20000); }));
        other->start();
        return QTest::qWaitFor([&] { return other->isFinished(); }, 30000) && bSent;
    }
    /// Clients that send this much and then nothing more.
    Strangers Connect(int nStrangers, const QByteArray &bytes = {}) const
    {
        Strangers all;
        for (int i = 0; i < nStrangers; ++i) {
            all.push_back(std::make_unique<QLocalSocket>());
            all.back()->connectToServer(Path("socket"));
            all.back()->write(bytes);
        }
        return all;
    }
    static auto CountConnected(const Strangers &strangers)
    {
        return std::ranges::count(strangers, QLocalSocket::ConnectedState,
                                  [](auto &one) { return one->state(); });
    }

    QTemporaryDir directory;
    std::unique_ptr<InstanceChannel> running;
    std::unique_ptr<QSignalSpy> received;
};

void TestInstanceChannel::messages()
{
    QVERIFY(!running->IsRunning());
    const QString longest(maxMessageSize / 2, QChar(0xe9));
    for (const QString &message :
         {QString(), QString(QStringLiteral(u"\u20ac \U0001f9e0 \u202e\u0301\n\x7f\0b")), longest}) {
        QVERIFY(SendFromAnother(message));
        QVERIFY(received->takeFirst().first() == message);
    }
    QVERIFY(!SendFromAnother(longest + 'x')); // too long by a byte
    QCOMPARE(received->size(), 0);
}

void TestInstanceChannel::runtimeDirectories()
{
    // The second is longer than what a socket's address can hold.
    for (const QString &name : {QStringLiteral(u"\u00fc \u20ac%1"), QString(180, QLatin1Char('d'))}) {
        const QTemporaryDir inside(directory.filePath(name));
        Use(inside.path());
        QVERIFY(!running->IsRunning());
        QVERIFY(SendFromAnother(name));
        QCOMPARE(received->size(), 1);
    }
}

void TestInstanceChannel::helperThatOutlivesItsCopy()
{
    QVERIFY(!running->IsRunning());
    QVERIFY(InstanceChannel(identity).IsRunning());
    QProcess helper;
    helper.start("sleep", {"60"});
    QVERIFY(helper.waitForStarted());
    running.reset();
    QVERIFY(!InstanceChannel(identity).IsRunning());
}

void TestInstanceChannel::waitsForTheNextRunningCopy()
{
    // A copy that holds the lock and does not listen, whether not yet or no more.
    QFile lock(Path("lock"));
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QCOMPARE(flock(lock.handle(), LOCK_EX), 0);
    QTimer::singleShot(300, &lock, [&] {
        lock.close();
        QVERIFY(!running->IsRunning());
    });
    QVERIFY(SendFromAnother("somebody will listen"));
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::strangers()
{
    QVERIFY(!running->IsRunning());
    for (const auto &tooLong : {QByteArray("\x01\x00\x00\x01", 4), QByteArray("\xff\xff\xff\xff")}) {
        const Strangers dropped = Connect(1, tooLong);
        QTRY_COMPARE_WITH_TIMEOUT(CountConnected(dropped), 0, 2000);
    }
    // One that is just slow has as long as an honest copy would wait.
    const Strangers slow = Connect(2, QByteArray("\0\0\0\x05hal", 7));
    QVERIFY(SendFromAnother("message"));
    QCOMPARE(CountConnected(slow), 2);
    QTRY_COMPARE_WITH_TIMEOUT(CountConnected(slow), 0, 10000);
    // Too many go sooner.
    const Strangers manyLarge = Connect(10, QByteArray("\x01\x00\x00\x00", 4).append(8 << 20, 'x'));
    QTRY_VERIFY_WITH_TIMEOUT(CountConnected(manyLarge) <= 4, 4000);
    const Strangers silent = Connect(100);
    QTRY_VERIFY_WITH_TIMEOUT(CountConnected(silent) <= 64, 4000);
    QVERIFY(SendFromAnother("message"));
    QCOMPARE(received->size(), 2);
}

QTEST_GUILESS_MAIN(TestInstanceChannel)
#include "TestInstanceChannel.moc"
