#include "platform/QtSingleApplication.h"

#include "platform/InstanceChannel.h"
#include "platform/LaunchFeedback.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool guiEnabled) : QApplication(argc, argv)
{
    Q_UNUSED(guiEnabled)
}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning()
{
    return Channel().IsRunning();
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    const bool bSent = Channel().Send(message, LaunchToken(), timeout);
    EndLaunchFeedback();
    return bSent;
}

InstanceChannel &QtSingleApplication::Channel()
{
    if (!channel) {
        // A Kelvo with settings elsewhere, as tests and trials have, is not the user's own: their place is
        // part of the name.
        const QString place =
            QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
        const QByteArray digest = QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Md5);
        channel = std::make_unique<InstanceChannel>(
            QStringLiteral("%1-%2-%3")
                .arg(organizationName(), applicationName(), QString::fromLatin1(digest.toHex().left(8))));
        connect(channel.get(), SIGNAL(MessageReceived(QString, QByteArray)), this,
                SLOT(OnChannelMessage(QString, QByteArray)));
    }
    return *channel;
}

void QtSingleApplication::OnChannelMessage(const QString &message, const QByteArray &token)
{
    // Where the Wayland plug-in looks for it when a window is activated.
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token);
    }
    emit messageReceived(message);
    qunsetenv("XDG_ACTIVATION_TOKEN");
}
