#pragma once

#include <QByteArray>

/// The token by which the desktop lets the windows of this launch come to the front; empty without one.
QByteArray LaunchToken();

/// Ends what the desktop shows while a program starts (a busy cursor), for a launch that opens no window.
void EndLaunchFeedback();
