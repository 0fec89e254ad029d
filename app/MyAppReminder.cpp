// The reminder of inactive memory: when it is shown, and what its answers do.

#include "app/MyApp.h"
#include "app/SettingsRecord.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "mainwindow/MainDialog.h"

#include <QTimer>

void MyApp::Remind(const QVariantMap &stats)
{
    if (!mainDialog || !dialogPreferences || !dialogReminder || bRemindSuppressed) {
        return;
    }
    // A user with one of these windows open sees the figures already.
    if (mainDialog->isVisible() || dialogPreferences->isVisible() || !IsReminderDue(settings, stats)) {
        return;
    }
    // Set for an open reminder too: it follows the figure.
    dialogReminder->SetMessage(tr("Your inactive memory has reached %1. Do you want to free memory now?")
                                   .arg(stats.value(QStringLiteral("FormattedInactive")).toString()));
    if (!dialogReminder->isVisible()) {
        dialogReminder->setVisible(true);
    }
}

void MyApp::OnRemindRejected()
{
    // Deliberately a flag, not a counter: a second "No" does not extend the five minutes of the first.
    bRemindSuppressed = true;
    QTimer::singleShot(300000, this, SLOT(ResetReminder()));
}

void MyApp::ResetReminder()
{
    bRemindSuppressed = false;
}

void MyApp::OnDoNotRemind()
{
    // Deliberately the panel's record, which has what the user chose last. It is stored at the end, as
    // always.
    settings = dialogPreferences->GetSettings();
    settings[QStringLiteral("Remind")] = false;
    dialogPreferences->SetSettings(settings);
}
