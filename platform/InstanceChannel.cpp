#include "platform/InstanceChannel.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// A message is two QByteArrays as QDataStream writes them, each a size and the bytes: the text in UTF-8 and
// the activation token. One byte comes back.
static constexpr char acknowledgement = '+';
static constexpr qsizetype maxMessageBytes = 1 << 20;
static constexpr qsizetype maxTokenBytes = 4096;
static constexpr int msClient = 5000;
static constexpr int msRetry = 10;

// The user's runtime directory, whatever this launch's environment says of it: a launch from cron or `su` has
// no XDG_RUNTIME_DIR, one from a container's shell another.
static QString RuntimeDirectory(const QString &usersDirectories)
{
    const QFileInfo own(QStringLiteral("%1/%2").arg(usersDirectories).arg(getuid()));
    return own.isDir() && own.isWritable() && own.ownerId() == getuid()
               ? own.filePath()
               : QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

static bool IsRemoved(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && status.st_nlink == 0;
}

InstanceChannel::InstanceChannel(const QString &identity, QObject *parent, const QString &usersDirectories)
    : QObject(parent)
{
    const QString directory = RuntimeDirectory(usersDirectories);
    if (!directory.isEmpty()) {
        path = QStringLiteral("%1/%2-%3").arg(directory, identity).arg(getuid());
    }
}

InstanceChannel::~InstanceChannel()
{
    // Socket and lock file go while the lock is held: afterwards their names may belong to the next copy.
    // Once somebody has removed the lock file they may already; the socket's name goes even then, which is
    // Qt's doing.
    delete server;
    if (lockDescriptor >= 0) {
        if (!IsRemoved(lockDescriptor)) { // else the name is another copy's, or nobody's
            unlink(QFile::encodeName(path + ".lock").constData());
        }
        close(lockDescriptor);
    }
}

bool InstanceChannel::IsRunning()
{
    if (lockDescriptor >= 0 || path.isEmpty()) {
        return false;
    }
    // Closed on exec, so that a helper that outlives this copy does not keep the lock.
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    const int descriptor = open(QFile::encodeName(path + ".lock").constData(), flags, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return false;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const bool bHeldByAnother = errno == EWOULDBLOCK;
        close(descriptor);
        return bHeldByAnother;
    }
    if (IsRemoved(descriptor)) {
        // Its holder removed it as it ended, between the two calls above: nobody else finds this file.
        close(descriptor);
        return IsRunning();
    }
    lockDescriptor = descriptor;
    server = new QLocalServer(this);
    server->setSocketOptions(QLocalServer::UserAccessOption);
    server->setListenBacklogSize(256);
    connect(server, SIGNAL(newConnection()), this, SLOT(OnConnection()));
    // The new socket replaces whatever has its name: a leftover, since we hold the lock. Where listening
    // fails, this is still the running copy; it only gets no messages.
    (void)server->listen(path + ".socket");
    return false;
}

void InstanceChannel::OnConnection()
{
    while (QLocalSocket *client = server->nextPendingConnection()) {
        connect(client, SIGNAL(readyRead()), this, SLOT(OnReadyRead()));
        connect(client, SIGNAL(disconnected()), client, SLOT(deleteLater()));
        QTimer::singleShot(msClient, client, SLOT(deleteLater()));
    }
}

void InstanceChannel::OnReadyRead()
{
    auto *client = qobject_cast<QLocalSocket *>(sender());
    if (client->bytesAvailable() > maxMessageBytes + maxTokenBytes) {
        client->abort();
        return;
    }
    QByteArray text;
    QByteArray activationToken;
    QDataStream in(client);
    in.startTransaction();
    in >> text >> activationToken;
    if (!in.commitTransaction()) {
        return; // not all of it is here yet
    }
    client->write(&acknowledgement, 1);
    client->disconnectFromServer();
    emit MessageReceived(QString::fromUtf8(text), activationToken);
}

bool InstanceChannel::Send(const QString &message, const QByteArray &activationToken, int msTimeout)
{
    const QByteArray text = message.toUtf8();
    if (text.size() > maxMessageBytes || !IsRunning()) {
        return false;
    }
    QByteArray frame;
    QDataStream out(&frame, QIODevice::WriteOnly);
    out << text << activationToken.left(maxTokenBytes / 2);
    // The running copy may hold the lock and not listen yet, have a full backlog, or end just now.
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
    socket.connectToServer(path + ".socket");
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
