#include "platform/BundledResources.h"

#include <QCoreApplication>
#include <QDir>

QString Global::BundledResourcesDirectory()
{
    QDir dir(QCoreApplication::applicationDirPath());
    dir.cdUp();
    dir.cd(QStringLiteral("Resources"));
    return dir.absolutePath();
}
