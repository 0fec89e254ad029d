#pragma once

#include <QString>

/// Makes Kelvo in a directory a login item: an entry in the user's autostart directory, written whole or not
/// at all. An entry that starts this program already stays as it is, and one that the user switched off in
/// the desktop's settings stays off.
/// @param path  absolute: the directory of Kelvo's executable
void MakeLoginItem(const QString &path);

/// Deletes every autostart entry of that name.
void DeleteLoginItem(const QString &name);
