#include "platform/Global.h"

#include <QCoreApplication>
#include <QDir>

const QString Global::VersionString = QStringLiteral("1.2.2");

QString Global::BundledResourcesDirectory()
{
    QDir dir(QCoreApplication::applicationDirPath());
    dir.cdUp();
    dir.cd(QStringLiteral("Resources"));
    return dir.absolutePath();
}
