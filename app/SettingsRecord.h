#pragma once

#include <QVariantMap>

// The settings record, eleven keys in one map, stored as one value under "Application/Settings":
//
//   AutoLaunch      bool    launch at login                         false
//   StayOnTop       bool    main window above others                true
//   AutoHide        bool    hide the window after a freeing run     false
//   HideAtStartUp   bool    start with the status icon only         false
//   WindowStyle     int     0 classic, any other value dark         0
//   PieChartIcon    bool    pie chart as status icon                true
//   Remind          bool    remind above the threshold              false
//   RemindThreshold double  GB of 2^30 bytes                        1.0
//   NoTitleBar      bool    frameless main window                   false
//   UpdateFrequency int     0 every 2 s, any other value every 5 s  0
//   MonoColor       bool    pie chart in black and white            (none)

/// To be called before the first use of QSettings. If a settings file or its lock is something else than a
/// file (a pipe, a directory), QSettings would wait for ever: it is pointed to nowhere then, so that the
/// defaults hold and nothing is stored.
void AvoidBlockingSettings();

/// Gives every missing key its default. Values that are there stay as they are, whatever their type.
/// MonoColor deliberately has no default: it reads false until the preferences panel adds it.
void AddDefaultSettings(QVariantMap &record);

/// Reads the stored record and adds defaults; an absent or unreadable one gives the defaults alone.
QVariantMap LoadSettings();

/// Stores the record, whatever it holds. A record that is stored already, with the same types, is not written
/// again: fifty copies started at once would wait for each other at Qt's lock file, for a minute in all.
void SaveSettings(const QVariantMap &record);

/// Whether applying newRecord over oldRecord has to set the main window's flags: when a flag changed, and
/// always while the window is hidden.
bool NeedsWindowFlags(const QVariantMap &newRecord, const QVariantMap &oldRecord, bool bWindowVisible);

/// The main window's flags under a record.
Qt::WindowFlags MainWindowFlags(const QVariantMap &record);

/// Whether the record asks for a reminder at this sample: Remind is on and inactive memory (bytes) is above
/// RemindThreshold (GB of 2^30 bytes). Exactly at the threshold does not remind; a record without a threshold
/// reminds of any inactive memory.
bool IsReminderDue(const QVariantMap &record, const QVariantMap &stats);
