#include "platform/TrayHost.h"

TrayHost::TrayHost(QObject *parent) : QObject(parent) {}

void TrayHost::WhenAvailable(std::function<void()> ready)
{
    ready();
}

bool TrayHost::IsGone()
{
    return false;
}

bool TrayHost::TakesIconNames()
{
    return false;
}

void TrayHost::Attach(QSystemTrayIcon *) {}
