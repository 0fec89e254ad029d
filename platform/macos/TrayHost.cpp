#include "platform/TrayHost.h"

TrayHost::TrayHost(QObject *parent) : QObject(parent) {}

void TrayHost::WhenAvailable(std::function<void()> ready)
{
    ready();
}

void TrayHost::Attach(QSystemTrayIcon *) {}
