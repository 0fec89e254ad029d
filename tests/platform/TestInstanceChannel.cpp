// What passes between two copies. Whole copies: tests/e2e.

#include "platform/InstanceChannel.h"
#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <memory>

#include <sys/file.h>
#include <unistd.h>

static const QString identity = QStringLiteral("Orvanta-Test");
static const QByteArray token = "launcher_TIME1234";
static constexpr int maxMessageBytes = 1 << 20;
static const QString none; // no directory that the system made for its users

class TestInstanceChannel : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(directory.path()));
        running = std::make_unique<InstanceChannel>(identity, nullptr, none);
        received = std::make_unique<QSignalSpy>(running.get(), SIGNAL(MessageReceived(QString, QByteArray)));
    }

    void messages()
    {
        QVERIFY(!running->IsRunning());
        const QString longest(maxMessageBytes / 2, QChar(0xe9));
        for (const QString &message :
             {QString(), QString(QStringLiteral(u"\u20ac \U0001f9e0 \u202e\u0301\n\x7f\0b")), longest}) {
            QVERIFY(SendFromAnother(message));
            QVERIFY(received->first().at(0) == message && received->takeFirst().at(1) == token);
        }
        QVERIFY(!SendFromAnother(longest + 'x')); // too long by a byte
        QVERIFY(!running->Send("to itself", token, 0));
        QCOMPARE(received->size(), 0);
    }

    void waitsForTheNextRunningCopy()
    {
        // A copy that holds the lock and does not listen, whether not yet or no more.
        QFile lock(Path(".lock"));
        QVERIFY(lock.open(QIODevice::ReadWrite));
        QCOMPARE(flock(lock.handle(), LOCK_EX), 0);
        QTimer::singleShot(300, &lock, [&] {
            lock.close();
            QVERIFY(!running->IsRunning());
        });
        QVERIFY(SendFromAnother("somebody will listen"));
        QCOMPARE(received->size(), 1);
    }

    void usersOwnDirectoryComesFirst()
    {
        const QString users = directory.filePath("users");
        const QString own = users + '/' + QString::number(getuid());
        QVERIFY(QDir().mkpath(own));
        {
            InstanceChannel first(identity, nullptr, users);
            QVERIFY(!first.IsRunning());
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(users));
            QVERIFY(InstanceChannel(identity, nullptr, users).IsRunning());
            QVERIFY(!QDir(own).isEmpty());
        }
        QVERIFY(QDir(own).isEmpty());
    }

private:
    QString Path(const QString &suffix) const
    {
        return directory.filePath(identity + '-' + QString::number(getuid()) + suffix);
    }
    /// Sends from a thread of its own, standing for another copy, while this one's event loop turns.
    static bool SendFromAnother(const QString &message)
    {
        bool bSent = false;
        const std::unique_ptr<QThread> other(QThread::create(
            [&] { bSent = InstanceChannel(identity, nullptr, none).Send(message, token, 20000); }));
        other->start();
        return QTest::qWaitFor([&] { return other->isFinished(); }, 30000) && bSent;
    }

    const QTemporaryDir directory;
    std::unique_ptr<InstanceChannel> running;
    std::unique_ptr<QSignalSpy> received;
};

QTEST_GUILESS_MAIN(TestInstanceChannel)
#include "TestInstanceChannel.moc"
