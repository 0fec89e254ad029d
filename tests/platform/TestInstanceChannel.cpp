// What the running copy makes of messages, of strange clients, and of what lies under its names.

#include "platform/InstanceChannel.h"
#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

static const QString identity = QStringLiteral("Orvanta-Test");
static constexpr qsizetype maxMessageSize = 16 << 20;

/// A client that does as it likes: a plain socket, since Qt's would behave.
class Stranger
{
public:
    explicit Stranger(const QString &path)
        : descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.toLocal8Bit().constData(), sizeof address.sun_path);
        // The queue may be full: then the running copy has to turn its event loop first.
        for (int i = 0; i < 1000; ++i) {
            if (connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0) {
                return;
            }
            QCoreApplication::processEvents();
        }
        qFatal("cannot connect to %s", qPrintable(path));
    }
    ~Stranger() { close(descriptor); }
    Q_DISABLE_COPY_MOVE(Stranger)

    /// Sends all of it, while the running copy reads; false once that has hung up.
    bool Say(QByteArray bytes) const
    {
        while (!bytes.isEmpty()) {
            const auto nSent =
                send(descriptor, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL);
            if (nSent < 0 && errno != EAGAIN) {
                return false;
            }
            bytes = bytes.sliced(std::max<qsizetype>(nSent, 0));
            QCoreApplication::processEvents();
        }
        return true;
    }
    bool IsConnected() const
    {
        pollfd state = {descriptor, POLLIN, 0};
        return poll(&state, 1, 0) == 0;
    }

private:
    int descriptor;
};

class TestInstanceChannel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FailOnWarnings(); }
    void init();
    void cleanup();
    void nothingBeforeTheFirstCall();
    void messages_data();
    void messages();
    void tooLongAMessage();
    void waitsForTheNextRunningCopy();
    void strangersDroppedAtOnce_data();
    void strangersDroppedAtOnce();
    void strangersThatStop();
    void strangersThatStay_data();
    void strangersThatStay();
    void leftOvers_data();
    void leftOvers();
    void lockThatCannotBeMade_data();
    void lockThatCannotBeMade();

private:
    QString Path(const char *suffix) const
    {
        return directory->filePath(
            QStringLiteral("%1-%2.%3").arg(identity).arg(getuid()).arg(QLatin1String(suffix)));
    }
    /// Sends from a thread of its own, standing for another copy, while this one's event loop turns.
    static bool SendFromAnother(const QString &message, int msTimeout = 20000)
    {
        std::atomic<bool> bSent = false;
        const std::unique_ptr<QThread> other(QThread::create([&] {
            InstanceChannel channel(identity);
            bSent = channel.Send(message, msTimeout);
        }));
        other->start();
        while (!other->isFinished()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return bSent;
    }

    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<InstanceChannel> running;
    std::unique_ptr<QSignalSpy> received;
};

void TestInstanceChannel::init()
{
    directory = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", directory->path().toLocal8Bit());
    running = std::make_unique<InstanceChannel>(identity);
    received = std::make_unique<QSignalSpy>(running.get(), SIGNAL(MessageReceived(QString)));
}

void TestInstanceChannel::cleanup()
{
    received.reset();
    running.reset();
}

void TestInstanceChannel::nothingBeforeTheFirstCall()
{
    const auto files = [this] {
        return QDir(directory->path())
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
            .size();
    };
    QCOMPARE(files(), 0);
    QVERIFY(!running->IsRunning());
    QVERIFY(!running->IsRunning());
    QCOMPARE(files(), 2);
    QVERIFY(!running->Send(QStringLiteral("to myself"), 1000));
    running.reset();
    QCOMPARE(files(), 1);
}

void TestInstanceChannel::messages_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("wake up!");
    QTest::newRow("unicode") << QStringLiteral(u"\u00e9 \u20ac \U0001f9e0 \u202e\u0301");
    QTest::newRow("control characters") << QStringLiteral("a\0b\nc\x7f").append(QChar(u'\0'));
    QTest::newRow("10 MB") << QString(10'000'000, QLatin1Char('x'));
    QTest::newRow("longest") << QString(maxMessageSize / 2, QChar(0xe9));
}

void TestInstanceChannel::messages()
{
    QFETCH(QString, message);
    QVERIFY(!running->IsRunning());
    QVERIFY(SendFromAnother(message));
    QCOMPARE(received->size(), 1);
    QVERIFY(received->first().first() == message);
}

void TestInstanceChannel::tooLongAMessage()
{
    QVERIFY(!running->IsRunning());
    QVERIFY(!SendFromAnother(QString(maxMessageSize + 1, QLatin1Char('x'))));
    QCOMPARE(received->size(), 0);
}

void TestInstanceChannel::waitsForTheNextRunningCopy()
{
    // A copy that holds the lock and does not listen, whether not yet or no more.
    const int descriptor =
        open(QFile::encodeName(Path("lock")).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    QCOMPARE(flock(descriptor, LOCK_EX), 0);
    QVERIFY(!SendFromAnother(QStringLiteral("nobody listens"), 300));

    QTimer::singleShot(300, this, [&] {
        close(descriptor);
        QVERIFY(!running->IsRunning());
    });
    QVERIFY(SendFromAnother(QStringLiteral("somebody will")));
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::strangersDroppedAtOnce_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("4 GB announced") << QByteArray("\xff\xff\xff\xff");
    QTest::newRow("a byte too much announced") << QByteArray("\x01\x00\x00\x01", 4);
    QTest::newRow("garbage") << QByteArray("GET / HTTP/1.0\r\n\r\n");
    QTest::newRow("garbage without end") << QByteArray(40 << 20, 'x');
}

void TestInstanceChannel::strangersDroppedAtOnce()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!running->IsRunning());
    const Stranger stranger(Path("socket"));
    stranger.Say(bytes);
    QTRY_VERIFY_WITH_TIMEOUT(!stranger.IsConnected(), 1000);
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::strangersThatStop()
{
    QVERIFY(!running->IsRunning());
    const std::array<Stranger, 3> strangers{Stranger(Path("socket")), Stranger(Path("socket")),
                                            Stranger(Path("socket"))};
    strangers[1].Say(QByteArray("\0\0", 2));
    strangers[2].Say(QByteArray("\0\0\0\x05hal", 7));
    const auto nConnected = [&] {
        return std::count_if(strangers.begin(), strangers.end(),
                             [](const Stranger &s) { return s.IsConnected(); });
    };
    // One that is just slow has as long as an honest copy would wait.
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(nConnected(), 3);
    QTRY_COMPARE_WITH_TIMEOUT(nConnected(), 0, 7000);
    QCOMPARE(received->size(), 1);
}

void TestInstanceChannel::strangersThatStay_data()
{
    QTest::addColumn<int>("nStrangers");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("nMaxConnected");
    QTest::newRow("1000 silent") << 1000 << QByteArray() << 64;
    QTest::newRow("20 with 8 MiB each") << 20 << QByteArray("\x01\x00\x00\x00", 4).append(8 << 20, 'x') << 4;
}

void TestInstanceChannel::strangersThatStay()
{
    QFETCH(int, nStrangers);
    QFETCH(QByteArray, bytes);
    QFETCH(int, nMaxConnected);
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &limit), 0);

    QVERIFY(!running->IsRunning());
    std::vector<std::unique_ptr<Stranger>> strangers;
    for (int i = 0; i < nStrangers; ++i) {
        strangers.push_back(std::make_unique<Stranger>(Path("socket")));
        strangers.back()->Say(bytes);
    }
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(received->size(), 1);
    QCOMPARE_LE(std::count_if(strangers.begin(), strangers.end(),
                              [](const auto &stranger) { return stranger->IsConnected(); }),
                nMaxConnected);
}

void TestInstanceChannel::leftOvers_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"dead socket", "live socket", "file", "link", "dangling link"}) {
        QTest::newRow(kind) << QByteArray(kind);
    }
}

void TestInstanceChannel::leftOvers()
{
    QFETCH(QByteArray, kind);
    const QByteArray path = QFile::encodeName(Path("socket"));
    const QString innocent = directory->filePath(QStringLiteral("innocent"));
    QFile file(kind == "file" ? Path("socket") : innocent);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    int descriptor = -1;
    if (kind.endsWith("socket")) {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        if (kind == "live socket") {
            QCOMPARE(listen(descriptor, 5), 0);
        }
    } else if (kind.endsWith("link")) {
        const QString target = kind == "link" ? innocent : directory->filePath(QStringLiteral("nowhere"));
        QVERIFY(QFile::link(target, Path("socket")));
    }

    QVERIFY(!running->IsRunning());
    QVERIFY(SendFromAnother(QStringLiteral("message")));
    QCOMPARE(received->size(), 1);
    QCOMPARE(QFile::exists(innocent), kind != "file");
    close(descriptor);
}

void TestInstanceChannel::lockThatCannotBeMade_data()
{
    QTest::addColumn<bool>("bLink");
    QTest::newRow("directory") << false;
    QTest::newRow("link") << true;
}

void TestInstanceChannel::lockThatCannotBeMade()
{
    QFETCH(bool, bLink);
    QVERIFY(bLink ? QFile::link(directory->filePath(QStringLiteral("other")), Path("lock"))
                  : QDir().mkdir(Path("lock")));
    QVERIFY(!running->IsRunning());
    QVERIFY(!InstanceChannel(identity).IsRunning());
    QVERIFY(!running->Send(QStringLiteral("message"), 1000));
}

QTEST_GUILESS_MAIN(TestInstanceChannel)
#include "TestInstanceChannel.moc"
