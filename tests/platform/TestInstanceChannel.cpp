// What passes between two copies, and what strange clients can do to the running one. Whole copies are
// started in tests/e2e.

#include "platform/InstanceChannel.h"
#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <atomic>
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
    void messages_data();
    void messages();
    void runtimeDirectories_data();
    void runtimeDirectories();
    void helperThatOutlivesItsCopy();
    void waitsForTheNextRunningCopy();
    void strangersDropped();
    void tooManyStrangers_data();
    void tooManyStrangers();

private:
    using Strangers = std::vector<std::unique_ptr<QLocalSocket>>;

    /// From here on the running copy is one that has this runtime directory, and has not yet been asked.
    void Use(const QString &runtimeDirectory)
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeDirectory));
        received.reset();
        running = std::make_unique<InstanceChannel>(identity);
        received = std::make_unique<QSignalSpy>(running.get(), SIGNAL(MessageReceived(QString)));
    }
    QString Path(const char *suffix) const
    {
        return directory.filePath(
            QStringLiteral("%1-%2.%3").arg(identity).arg(getuid()).arg(QLatin1String(suffix)));
    }
    /// Sends from a thread of its own, standing for another copy, while this one's event loop turns.
    static bool SendFromAnother(const QString &message)
    {
        std::atomic<bool> bSent = false;
        const std::unique_ptr<QThread> other(QThread::create([&] {
            InstanceChannel channel(identity);
            bSent = channel.Send(message, 20000);
        }));
        other->start();
        while (!other->isFinished()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return bSent;
    }
    /// Clients that send this much and then nothing more.
    Strangers Connect(int nStrangers, const QByteArray &bytes = {}) const
    {
        Strangers strangers;
        for (int i = 0; i < nStrangers; ++i) {
            strangers.push_back(std::make_unique<QLocalSocket>());
            strangers.back()->connectToServer(Path("socket"));
            strangers.back()->write(bytes);
        }
        return strangers;
    }
    static auto CountConnected(const Strangers &strangers)
    {
        return std::count_if(strangers.begin(), strangers.end(), [](const auto &stranger) {
            return stranger->state() == QLocalSocket::ConnectedState;
        });
    }

    QTemporaryDir directory;
    std::unique_ptr<InstanceChannel> running;
    std::unique_ptr<QSignalSpy> received;
};

void TestInstanceChannel::messages_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("bFits");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("any characters") << QStringLiteral(u"\u20ac \U0001f9e0 \u202e\u0301\n\x7f\0b") << true;
    QTest::newRow("longest") << QString(maxMessageSize / 2, QChar(0xe9)) << true;
    QTest::newRow("too long by a byte") << QString(maxMessageSize + 1, QLatin1Char('x')) << false;
}

void TestInstanceChannel::messages()
{
    QFETCH(QString, message);
    QFETCH(bool, bFits);
    QVERIFY(!running->IsRunning());
    QCOMPARE(SendFromAnother(message), bFits);
    QCOMPARE(received->size(), bFits ? 1 : 0);
    QVERIFY(!bFits || received->first().first() == message);
}

void TestInstanceChannel::runtimeDirectories_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a socket's address cannot reach it") << QString(180, QLatin1Char('d'));
    QTest::newRow("other characters") << QStringLiteral(u"\u00fc \u20ac%1");
}

void TestInstanceChannel::runtimeDirectories()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkdir(directory.filePath(name),
                         QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
    Use(directory.filePath(name));
    QVERIFY(!running->IsRunning());
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::helperThatOutlivesItsCopy()
{
    QVERIFY(!running->IsRunning());
    QVERIFY(InstanceChannel(identity).IsRunning());
    QProcess helper;
    helper.start(QStringLiteral("sleep"), {QStringLiteral("60")});
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
    QTimer::singleShot(300, this, [&] {
        lock.close();
        QVERIFY(!running->IsRunning());
    });
    QVERIFY(SendFromAnother(QStringLiteral("somebody will listen")));
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::strangersDropped()
{
    QVERIFY(!running->IsRunning());
    for (const auto &tooLong : {QByteArray("\x01\x00\x00\x01", 4), QByteArray("\xff\xff\xff\xff")}) {
        const Strangers strangers = Connect(1, tooLong);
        QTRY_COMPARE_WITH_TIMEOUT(CountConnected(strangers), 0, 2000);
    }
    const Strangers silent = Connect(1);
    const Strangers stopped = Connect(1, QByteArray("\0\0\0\x05hal", 7));
    // One that is just slow has as long as an honest copy would wait.
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(CountConnected(silent) + CountConnected(stopped), 2);
    QTRY_COMPARE_WITH_TIMEOUT(CountConnected(silent) + CountConnected(stopped), 0, 10000);
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::tooManyStrangers_data()
{
    QTest::addColumn<int>("nStrangers");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("nKept");
    QTest::newRow("silent") << 100 << QByteArray() << 64;
    QTest::newRow("8 MiB each") << 10 << QByteArray("\x01\x00\x00\x00", 4).append(8 << 20, 'x') << 4;
}

void TestInstanceChannel::tooManyStrangers()
{
    QFETCH(int, nStrangers);
    QFETCH(QByteArray, bytes);
    QFETCH(int, nKept);
    QVERIFY(!running->IsRunning());
    const Strangers strangers = Connect(nStrangers, bytes);
    // Sooner than they would be dropped for their slowness.
    QTRY_VERIFY_WITH_TIMEOUT(CountConnected(strangers) <= nKept, 4000);
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(received->size(), 1);
}

QTEST_GUILESS_MAIN(TestInstanceChannel)
#include "TestInstanceChannel.moc"
