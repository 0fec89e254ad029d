#pragma once

#include "compat/ScriptError.h"

#include <vector>

/// The user's login items: the entries of the autostart directory that have a name. Those that the user
/// switched off in the desktop's settings are among them, as they are listed there too.

/// All names, by file name in order.
Failure LoginItemNames(std::vector<std::string> &names);

/// Makes the application at the path a login item. One item has one file, so a second time changes nothing;
/// an item of that name that the user switched off stays off, one that starts this program already stays as
/// it is.
///
/// @param path  absolute: an executable file, or the directory that Kelvo's executable lies in (on macOS its
/// bundle)
/// @param name  set to the item's name: "Kelvo" for Kelvo's executable, else the file's name
Failure MakeLoginItem(const std::string &path, std::string &name);

/// Deletes every entry of that name; that there is none is no failure.
Failure DeleteLoginItem(const std::string &name);
