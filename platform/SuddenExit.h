#pragma once

#include <functional>

class QObject;

/// Has something called, in an object's thread, when the process is about to end without destructors: Qt
/// calls exit() where the X server has gone, and _exit(), from a thread of its own, where the Wayland
/// compositor has.
///
/// @param receiver  the object; nullptr: nothing any more
/// @param call      may speak neither to the display nor to the user
void CallBeforeSuddenExit(QObject *receiver, const std::function<void()> &call);
