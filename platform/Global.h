#pragma once

#include <QString>

class QObject;

/// Process-wide helpers: the version, the bundled files, and the two ways of asking the system for something.
namespace Global {

/// The program's version, as the About dialog shows it.
extern const QString VersionString;

/// The directory of the bundled helper and catalogues: the executable's directory, one up, then Resources.
/// Absolute, no trailing slash. Needs an application object. A missing directory is not an error: its files
/// are missing then.
QString BundledResourcesDirectory();

/// Runs AppleScript source: by /usr/bin/osascript where it can be executed, otherwise by SystemAnswer().
///
/// @param script  complete source, lines separated by line feeds; passed on as UTF-8, unescaped
/// @param parent  Qt parent of the process object
/// @param bWait   true: block, with no time-out, until the first output; false: start, pass the script,
/// return
/// @return with bWait, the first block of standard output, cut at a NUL byte, decoded as Latin-1 and trimmed;
///         otherwise, and whenever there is no answer, the empty string
QString RunAppleScript(const QString &script, QObject *parent, bool bWait);

/// The process of RunAppleScript(), with the interpreter's path as an argument.
QString RunInterpreter(const QString &program, const QString &script, QObject *parent, bool bWait);

/// The two System Events scripts that SetAutoLaunch sends, and what it derives their arguments from.
QString AddLoginItemScript(const QString &bundlePath);
QString RemoveLoginItemScript(const QString &itemName);
QString BundlePath(const QString &applicationDirPath);
QString LoginItemName(const QString &applicationName);

/// Adds the application to the user's login items (true) or removes it (false). Nothing is reported.
void SetAutoLaunch(bool bOn);

} // namespace Global
