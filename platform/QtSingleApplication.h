#pragma once

#include <QApplication>

#include <memory>

class InstanceChannel;

/// An application of which one copy runs per user. Organization and application name tell applications apart.
/// They are read at the first call below, so that a derived class's constructor can still set them.
class QtSingleApplication : public QApplication
{
    Q_OBJECT

public:
    /// @param guiEnabled  has no meaning any more: there is always a GUI
    QtSingleApplication(int &argc, char **argv, bool guiEnabled = true);
    ~QtSingleApplication() override;

    /// True if another copy runs for this user; otherwise this one is the running copy from now on.
    bool isRunning();

    /// Delivers a message to the running copy, which emits messageReceived. False if it is not delivered
    /// within the time-out (milliseconds), or if there is no other copy.
    bool sendMessage(const QString &message, int timeout = 5000);

signals:
    void messageReceived(const QString &message);

private slots:
    void OnChannelMessage(const QString &message, const QByteArray &token);

private:
    InstanceChannel &Channel();

    std::unique_ptr<InstanceChannel> channel;
};
