#include "platform/linux/LoginItem.h"

#include "platform/Global.h"
#include "platform/linux/DesktopEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace {

struct LoginItem
{
    QString file;
    DesktopEntry entry;
};

/// The user's autostart directory; empty if there is none.
QString AutostartDirectory()
{
    QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (QDir::isRelativePath(config)) {
        // Qt 6.4 takes a relative XDG_CONFIG_HOME, which is to be ignored.
        config = QDir::homePath() + QStringLiteral("/.config");
    }
    // Without HOME, Qt takes the root directory for it.
    const bool bUsable = QDir::isAbsolutePath(config) && !config.startsWith(QLatin1String("//"));
    return bUsable ? config + QStringLiteral("/autostart") : QString();
}

/// The entries of the directory, by file name in order. One that cannot be read is empty here.
QList<LoginItem> LoginItems(const QString &directory)
{
    QList<LoginItem> items;
    const QFileInfoList files =
        QDir(directory).entryInfoList({QStringLiteral("*.desktop")}, QDir::Files, QDir::Name);
    for (const QFileInfo &info : files) {
        // A link may lead to a pipe, which would block.
        QFile file(info.filePath());
        const bool bOpen = info.isFile() && file.open(QIODevice::ReadOnly);
        const QByteArray text = bOpen ? file.read(1 << 20) : QByteArray();
        items << LoginItem{info.filePath(), ParseDesktopEntry(text)};
    }
    return items;
}

} // namespace

void MakeLoginItem(const QString &path)
{
    const QString directory = AutostartDirectory();
    const QString program = QDir(path).filePath(QStringLiteral("kelvo"));
    const QFileInfo info(program);
    if (directory.isEmpty() || !info.isAbsolute() || !info.isFile() || !info.isExecutable() ||
        !IsExecutableName(program)) {
        return;
    }
    const QString name = Global::LoginItemName(QCoreApplication::applicationName());
    QString file = directory + QLatin1Char('/') + name + QStringLiteral(".desktop");
    const QList<LoginItem> items = LoginItems(directory);
    // By name or by file: under another file name it would be started twice, and the file that switches it
    // off need not have a name.
    const auto item = std::find_if(items.begin(), items.end(), [&](const LoginItem &known) {
        return known.entry.name == name || known.file == file;
    });
    if (item != items.end()) {
        if (item->entry.bSwitchedOff || item->entry.exec == ExecValue(program)) {
            return;
        }
        file = item->file;
    }
    if (const QFileInfo target(file); target.exists() && !target.isFile()) {
        return; // a link to /dev/null, for example: masked by the user
    }
    QSaveFile entry(file);
    if (QDir().mkpath(directory) && entry.open(QIODevice::WriteOnly)) {
        entry.write(DesktopEntryText(name, program));
        // Qt 6.4 commits what a full disk has cut short in the file's own buffer.
        if (entry.flush()) {
            entry.commit();
        }
    }
}

void DeleteLoginItem(const QString &name)
{
    const QString directory = AutostartDirectory();
    const QList<LoginItem> items = directory.isEmpty() ? QList<LoginItem>() : LoginItems(directory);
    for (const LoginItem &item : items) {
        if (item.entry.name == name) {
            QFile::remove(item.file);
        }
    }
}
