// The reminder of inactive memory: when it is shown, and what its answers do.

#include "app/MyApp.h"
#include "app/ReminderRule.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "mainwindow/MainDialog.h"

#include <QTimer>

void MyApp::Remind(const QVariantMap &stats)
{
    if (!mainDialog || !dialogPreferences || !dialogReminder || bRemindSuppressed) {
        return;
    }
    // Whoever has a window of ours open is looking at the figures already.
    if (mainDialog->isVisible() || dialogPreferences->isVisible() || !IsReminderDue(settings, stats)) {
        return;
    }
    // An open reminder follows the figure, sample by sample.
    dialogReminder->SetMessage(tr("Your inactive memory has reached %1. Do you want to free memory now?")
                                   .arg(stats.value(QStringLiteral("FormattedInactive")).toString()));
    if (!dialogReminder->isVisible()) {
        dialogReminder->setVisible(true);
    }
}

void MyApp::OnRemindRejected()
{
    // A flag, not a count: whichever of several timers fires first ends the silence, so that saying "No"
    // again does not put the reminder off for longer than was promised.
    bRemindSuppressed = true;
    QTimer::singleShot(300000, this, SLOT(ResetReminder()));
}

void MyApp::ResetReminder()
{
    bRemindSuppressed = false;
}

void MyApp::OnDoNotRemind()
{
    // The panel's record, since it has what the user chose last; nothing else changes now, and it is stored
    // at the end with the rest.
    settings = dialogPreferences->GetSettings();
    settings[QStringLiteral("Remind")] = false;
    dialogPreferences->SetSettings(settings);
}
