#pragma once

class QWidget;

/// Gives the keyboard to a shown window that the user has asked for just now. X11: on the user's workspace,
/// at the server's time. Qt knows only the time of the last event of its own windows, and a window manager
/// refuses what is older than the user's last key in another one. A click on the status icon or a second
/// launch brings no such event.
void Activate(QWidget *window);
