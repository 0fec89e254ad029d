#pragma once

#include <QObject>
#include <QString>

class QDeadlineTimer;
class QLocalServer;
class QLocalSocket;

/// One running copy per user: a lock that says who runs, and a socket over which later copies hand it their
/// message.
///
/// Both lie in the user's runtime directory. The lock decides; the kernel frees it with its holder, however
/// that ended, so it is never stale. Nothing is locked or listened on before the first call.
class InstanceChannel : public QObject
{
    Q_OBJECT

public:
    /// @param identity  names the application among the user's others, such as "Orvanta-Kelvo"; the user's id
    /// is added
    explicit InstanceChannel(const QString &identity, QObject *parent = nullptr);
    ~InstanceChannel() override;

    /// True if another copy runs. Otherwise this one is from now on the running copy and gets the others'
    /// messages. Where no lock can be made (no runtime directory, a full or read-only one) it is false too:
    /// running twice harms less than not at all.
    bool IsRunning();

    /// Hands a message of up to 16 MiB of UTF-8 to the running copy.
    ///
    /// @return true once it has the whole message; false after the time-out, and at once if this copy is the
    /// running one.
    ///         A running copy that ends meanwhile is not replaced: unless the next one is quick, that is the
    ///         time-out too.
    bool Send(const QString &message, int msTimeout);

signals:
    void MessageReceived(const QString &message);

private slots:
    void OnConnection();

private:
    QString ReachableSocketPath(const QString &directory, const QString &name);
    void Listen();
    void Read(QLocalSocket *client);
    void Drop(QLocalSocket *client);
    void ShedLoad();
    bool Deliver(const QByteArray &frame, const QDeadlineTimer &deadline) const;

    QString lockPath;
    QString socketPath;
    int lockDescriptor = -1;
    int directoryDescriptor = -1;
    QLocalServer *server = nullptr;
    QList<QLocalSocket *> clients;
};
