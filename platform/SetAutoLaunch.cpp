#include "platform/Global.h"

#include <QCoreApplication>

namespace {

/// A directory's name can contain script text, which would be run if it were not escaped.
QString Escaped(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('"'), QLatin1String("\\\""));
}

} // namespace

QString Global::AddLoginItemScript(const QString &bundlePath)
{
    return QStringLiteral("tell application \"System Events\"\n"
                          "    make login item at end with properties {path:\"%1\", kind:application}\n"
                          "end tell\n")
        .arg(Escaped(bundlePath));
}

QString Global::RemoveLoginItemScript(const QString &itemName)
{
    return QStringLiteral("tell application \"System Events\"\n"
                          "    get the name of every login item\n"
                          "    if login item \"%1\" exists then\n"
                          "        delete login item \"%1\"\n"
                          "    end if\n"
                          "end tell\n")
        .arg(Escaped(itemName));
}

QString Global::BundlePath(const QString &applicationDirPath)
{
    const qsizetype end = applicationDirPath.lastIndexOf(QStringLiteral("/Contents/MacOS"));
    // Deliberately not checked any further: outside a bundle, the directory itself is used.
    return end > 0 ? applicationDirPath.left(end) : applicationDirPath;
}

QString Global::LoginItemName(const QString &applicationName)
{
    // The system shows a hyphenated application name with blanks, and the item is found by the name shown.
    return QString(applicationName).replace(QLatin1Char('-'), QLatin1Char(' '));
}

void Global::SetAutoLaunch(bool bOn)
{
    // Deliberately added without a test whether it exists: whoever keeps the list knows that best.
    const QString script = bOn ? AddLoginItemScript(BundlePath(QCoreApplication::applicationDirPath()))
                               : RemoveLoginItemScript(LoginItemName(QCoreApplication::applicationName()));
    RunAppleScript(script, QCoreApplication::instance(), true);
}
