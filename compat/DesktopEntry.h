#pragma once

#include <string>
#include <string_view>

/// What matters here of a file in the autostart directory.
struct DesktopEntry
{
    std::string name;          ///< unlocalised, escapes resolved; empty: the file is no desktop entry
    std::string exec;          ///< as it stands in the file
    bool bSwitchedOff = false; ///< by the user, in the desktop's own settings
};

/// Reads the text of a desktop entry; of a line that stands there twice the first counts.
DesktopEntry ParseDesktopEntry(std::string_view text);

/// Whether readers of desktop entries would start this program. The format has no way to write an equals
/// sign, and readers differ on control characters. (On backslashes too, but only in that systemd 252 refuses
/// the entry, and says so in its log.)
bool IsExecutableName(std::string_view program);

/// The value of an Exec line that starts this program without arguments.
/// @param program  an absolute path for which IsExecutableName holds
std::string ExecValue(const std::string &program);

/// The text of an entry that starts the program at login.
/// @param icon  of the theme, by name
std::string DesktopEntryText(const std::string &name, const std::string &comment, const std::string &icon,
                             const std::string &program);
