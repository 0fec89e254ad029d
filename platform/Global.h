#pragma once

#include <QString>

class QObject;

/// Process-wide helpers: the version and the two ways of asking the system for something.
namespace Global {

/// The program's version, as the About dialog shows it.
extern const QString VersionString;

/// Runs AppleScript source through the system's interpreter, or through the bundled one where the system has
/// none.
///
/// @param script  complete source, lines separated by line feeds; fed to the interpreter as UTF-8, unescaped
/// @param parent  Qt parent of the process object
/// @param bWait   true: block, with no time-out, until the first output; false: start, feed and return
/// @return with bWait, the first burst of standard output, trimmed, decoded as Latin-1 and cut at a NUL byte;
///         otherwise, and whenever there is no answer, the empty string
QString RunAppleScript(const QString &script, QObject *parent, bool bWait);

/// The two System Events scripts that SetAutoLaunch sends, and what it derives their arguments from.
QString AddLoginItemScript(const QString &bundlePath);
QString RemoveLoginItemScript(const QString &itemName);
QString BundlePath(const QString &applicationDirPath);
QString LoginItemName(const QString &applicationName);

/// Adds the application to the user's login items (true) or removes it (false). Nothing is reported.
void SetAutoLaunch(bool bOn);

} // namespace Global
