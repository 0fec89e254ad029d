#include "platform/TrayHost.h"

TrayHost::TrayHost(QObject *parent) : QObject(parent) {}

void TrayHost::WhenAvailable(std::function<void()> ready)
{
    ready();
}

bool TrayHost::IsAvailable()
{
    return true;
}

bool TrayHost::TakesIconNames()
{
    return false;
}

void TrayHost::Attach(QSystemTrayIcon *) {}
