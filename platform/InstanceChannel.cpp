#include "platform/InstanceChannel.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QtEndian>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/un.h>
#include <unistd.h>

// On the wire: the size of the text as a big-endian 32-bit number, the text as UTF-8, and back one byte once
// it is there.
using SizePrefix = quint32;
static constexpr char acknowledgement = '+';

static constexpr SizePrefix maxMessageSize = 16 << 20;
static constexpr qint64 maxHeldSize = 2 * qint64{maxMessageSize};
static constexpr int maxClients = 64;
static constexpr int msPatience = 5000;
static constexpr int msRetry = 10;

InstanceChannel::InstanceChannel(const QString &identity, QObject *parent) : QObject(parent)
{
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (directory.isEmpty()) {
        return;
    }
    const QString name =
        QStringLiteral("%1-%2").arg(identity).arg(getuid()).replace(QLatin1Char('/'), QLatin1Char('_'));
    lockPath = directory + QLatin1Char('/') + name + QStringLiteral(".lock");
    socketPath = ReachableSocketPath(directory, name + QStringLiteral(".socket"));
}

InstanceChannel::~InstanceChannel()
{
    // The socket goes while the lock is still held: afterwards the name may belong to the next copy.
    delete server;
    for (const int descriptor : {lockDescriptor, directoryDescriptor}) {
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
}

QString InstanceChannel::ReachableSocketPath(const QString &directory, const QString &name)
{
    // A socket's address ends at 108 bytes (104 on macOS), and it is bound under a temporary name in a
    // directory of 7 more bytes. Deeper directories are reached by way of their descriptor, where the system
    // has that way.
    QString path = directory + QLatin1Char('/') + name;
    const auto fits = [](const QString &text) {
        return QFile::encodeName(text).size() < qsizetype{sizeof(sockaddr_un::sun_path)};
    };
    if (fits(path) && fits(directory + QLatin1String("/XXXXXX/s"))) {
        return path;
    }
    directoryDescriptor = open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return QStringLiteral("/proc/self/fd/%1/%2").arg(directoryDescriptor).arg(name);
}

bool InstanceChannel::IsRunning()
{
    if (lockDescriptor >= 0) {
        return false;
    }
    // Closed on exec, so that a helper that outlives this copy does not go on holding the lock.
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    const int descriptor = open(QFile::encodeName(lockPath).constData(), flags, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return false;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        lockDescriptor = descriptor;
        Listen();
        return false;
    }
    const bool bHeldByAnother = errno == EWOULDBLOCK;
    close(descriptor);
    return bHeldByAnother;
}

void InstanceChannel::Listen()
{
    server = new QLocalServer(this);
    server->setSocketOptions(QLocalServer::UserAccessOption);
    server->setListenBacklogSize(256);
    connect(server, SIGNAL(newConnection()), this, SLOT(OnConnection()));
    // With an access option the new socket is renamed over whatever has its name, which can only be left
    // over, since we hold the lock. Where that fails this is still the one running copy; only no message
    // reaches it.
    (void)server->listen(socketPath);
}

void InstanceChannel::OnConnection()
{
    while (QLocalSocket *client = server->nextPendingConnection()) {
        clients << client;
        client->setReadBufferSize(qint64{sizeof(SizePrefix)} + maxMessageSize);
        connect(client, &QLocalSocket::readyRead, this, [this, client] { Read(client); });
        connect(client, &QLocalSocket::disconnected, this, [this, client] { Drop(client); });
        QTimer::singleShot(msPatience, client, [this, client] { Drop(client); });
        Read(client);
    }
    ShedLoad();
}

void InstanceChannel::Read(QLocalSocket *client)
{
    constexpr qint64 prefixSize = sizeof(SizePrefix);
    if (client->bytesAvailable() < prefixSize) {
        return;
    }
    const qint64 textSize = qFromBigEndian<SizePrefix>(client->peek(prefixSize).constData());
    if (textSize > maxMessageSize) {
        Drop(client);
        return;
    }
    if (client->bytesAvailable() < prefixSize + textSize) {
        ShedLoad();
        return;
    }
    client->skip(prefixSize);
    const QString message = QString::fromUtf8(client->read(textSize));
    client->write(&acknowledgement, 1);
    client->flush();
    Drop(client);
    emit MessageReceived(message);
}

void InstanceChannel::Drop(QLocalSocket *client)
{
    clients.removeOne(client);
    client->disconnect(this);
    client->abort();
    client->deleteLater();
}

void InstanceChannel::ShedLoad()
{
    // The oldest go first: an honest copy has sent everything a moment after it connected, and would try
    // again.
    qint64 nHeld = 0;
    for (const QLocalSocket *client : std::as_const(clients)) {
        nHeld += client->bytesAvailable();
    }
    while (clients.size() > maxClients || nHeld > maxHeldSize) {
        nHeld -= clients.constFirst()->bytesAvailable();
        Drop(clients.constFirst());
    }
}

bool InstanceChannel::Send(const QString &message, int msTimeout)
{
    const QByteArray text = message.toUtf8();
    if (text.size() > qsizetype{maxMessageSize} || !IsRunning()) {
        return false;
    }
    QByteArray frame(sizeof(SizePrefix), Qt::Uninitialized);
    qToBigEndian(static_cast<SizePrefix>(text.size()), frame.data());
    frame += text;

    // The running copy may hold the lock and not listen yet, have no room for another connection, or end just
    // now.
    const QDeadlineTimer deadline(qMax(0, msTimeout));
    while (!Deliver(frame, deadline)) {
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(msRetry);
    }
    return true;
}

bool InstanceChannel::Deliver(const QByteArray &frame, const QDeadlineTimer &deadline) const
{
    const auto msLeft = [&] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    if (socket.state() != QLocalSocket::ConnectedState) {
        return false;
    }
    socket.write(frame);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(msLeft())) {
            return false;
        }
    }
    char answer = 0;
    return socket.waitForReadyRead(msLeft()) && socket.getChar(&answer) && answer == acknowledgement;
}
