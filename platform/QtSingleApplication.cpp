#include "platform/QtSingleApplication.h"

#include "platform/InstanceChannel.h"

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
    return Channel().Send(message, timeout);
}

InstanceChannel &QtSingleApplication::Channel()
{
    if (!channel) {
        channel =
            std::make_unique<InstanceChannel>(organizationName() + QLatin1Char('-') + applicationName());
        connect(channel.get(), SIGNAL(MessageReceived(QString)), this, SIGNAL(messageReceived(QString)));
    }
    return *channel;
}
