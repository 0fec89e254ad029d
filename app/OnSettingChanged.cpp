// How the settings reach the running program.

#include "app/MyApp.h"
#include "app/SettingsRecord.h"
#include "dialogs/DialogPreferences.h"
#include "mainwindow/MainDialog.h"
#include "platform/Global.h"

#include <QFile>

void MyApp::OnSettingChanged()
{
    const QVariantMap changed = dialogPreferences->GetSettings();
    const auto flag = [&](const char *key) { return changed[QLatin1String(key)].toBool(); };
    const auto number = [](const QVariantMap &record, const char *key) {
        return record[QLatin1String(key)].toInt();
    };

    const bool bVisible = mainDialog->isVisible();
    const QPoint position = mainDialog->pos();
    if (NeedsWindowFlags(changed, settings, bVisible)) {
        mainDialog->setWindowFlags(MainWindowFlags(changed));
        mainDialog->KeepReadable();
    }
    if (number(changed, "WindowStyle") != number(settings, "WindowStyle")) {
        SetStyle(number(changed, "WindowStyle"));
    }
    if (bVisible) {
        // New flags hide a window; this brings it back in its place, and the keyboard back to the panel.
        const bool bInPanel = dialogPreferences->isActiveWindow();
        mainDialog->setVisible(true);
        mainDialog->raise();
        mainDialog->Place(position);
        if (bInPanel) {
            dialogPreferences->activateWindow();
        }
    }
    if (!flag("PieChartIcon") && settings[QStringLiteral("PieChartIcon")].toBool()) {
        SetPlainIcon();
    }
    // At the start both are the stored record, so the window begins with its own 2 s whatever is stored: the
    // first figures come quickly, and the slower pace is for whoever chooses it while Kelvo runs.
    if (number(changed, "UpdateFrequency") != number(settings, "UpdateFrequency")) {
        mainDialog->SetUpdateFrequency(number(changed, "UpdateFrequency"));
    }
    // Changed or not, and so at every start too: the login item follows the setting even after somebody else
    // touched it.
    Global::SetAutoLaunch(flag("AutoLaunch"));
    mainDialog->SetAutoHide(flag("AutoHide"));
    settings = changed;
    mainDialog->UpdateStats(false);
}

void MyApp::SetStyle(int style)
{
    QFile sheet(style ? QStringLiteral(":/mac_dark.qss") : QStringLiteral(":/mac.qss"));
    (void)sheet.open(QIODevice::ReadOnly);
    // Emptied first, so that every widget is polished anew even under the same text.
    setStyleSheet(QString());
    setStyleSheet(QString::fromLatin1(sheet.readAll()));
    mainDialog->SetStyle(style);
}
