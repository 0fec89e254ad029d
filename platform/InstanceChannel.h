#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QDeadlineTimer;
class QLocalServer;

/// One running copy per user: a lock that says which copy runs, and a socket on which it gets the messages of
/// later ones.
///
/// Both lie in the user's runtime directory: /run/user/UID, and only where there is none, what the
/// environment says. The lock decides. The kernel releases it when its holder ends, in whatever way, so it is
/// never stale. Nothing is locked before the first call.
class InstanceChannel : public QObject
{
    Q_OBJECT

public:
    /// @param identity  names the application, such as "Orvanta-Kelvo"; the user's id is added
    /// @param usersDirectories  where the system makes each user's runtime directory, named by the user's id
    explicit InstanceChannel(const QString &identity, QObject *parent = nullptr,
                             const QString &usersDirectories = QStringLiteral("/run/user"));
    ~InstanceChannel() override;

    /// True if another copy runs; otherwise this one is the running copy from now on. False too where no lock
    /// can be made (a full or read-only directory): running twice harms less than not at all.
    bool IsRunning();

    /// Delivers a message of up to 1 MiB of UTF-8 to the running copy, with the token by which the desktop
    /// lets it come to the front.
    /// @return true once it has the whole message; false after the time-out, and at once if the message is
    /// too long or this copy is the running one
    bool Send(const QString &message, const QByteArray &activationToken, int msTimeout);

signals:
    void MessageReceived(const QString &message, const QByteArray &activationToken);

private slots:
    void OnConnection();
    void OnReadyRead();

private:
    bool Deliver(const QByteArray &frame, const QDeadlineTimer &deadline) const;

    QString path;
    int lockDescriptor = -1;
    QLocalServer *server = nullptr;
};
