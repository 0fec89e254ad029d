#pragma once

class QByteArray;

/// Ends what the desktop shows while a program starts (a busy cursor), for a launch that opens no window.
/// @param startupId  DESKTOP_STARTUP_ID of the launch; empty: nothing is done
void EndLaunchFeedback(const QByteArray &startupId);
