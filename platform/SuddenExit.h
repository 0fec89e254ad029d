#pragma once

class QObject;

/// Has a slot called, in its object's thread, when the process is about to end without destructors: Qt calls
/// exit() where the X server has gone, and _exit(), from a thread of its own, where the Wayland compositor
/// has.
///
/// @param slot  its name, without the parentheses; it may speak neither to the display nor to the user
void CallBeforeSuddenExit(QObject *receiver, const char *slot);
