#pragma once

#include <QByteArray>
#include <QString>

/// What matters here of a file in the autostart directory.
struct DesktopEntry
{
    QString name;              ///< unlocalised, escapes resolved; empty: not a desktop entry
    QString exec;              ///< as it stands in the file
    bool bSwitchedOff = false; ///< by the user, in the desktop's settings
};

/// Reads the text of a desktop entry. Of a key that stands there twice, the first counts.
DesktopEntry ParseDesktopEntry(const QByteArray &text);

/// Whether every desktop would start a program of this path. The format cannot write an equals sign; readers
/// differ on control characters, and systemd's autostart generator halves backslashes.
bool IsExecutableName(const QString &program);

/// The value of an Exec line that starts this program without arguments.
/// @param program  an absolute path for which IsExecutableName() holds
QString ExecValue(const QString &program);

/// The text of an entry that starts Kelvo at login, in UTF-8.
QByteArray DesktopEntryText(const QString &name, const QString &program);
