// The controller applies the settings.

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
    if (NeedsWindowFlags(changed, settings, bVisible)) {
        mainDialog->setWindowFlags(MainWindowFlags(changed));
        mainDialog->KeepReadable();
    }
    if (number(changed, "WindowStyle") != number(settings, "WindowStyle")) {
        SetStyle(number(changed, "WindowStyle"));
    }
    if (bVisible) {
        // New flags hide a window. Shown again, it is back at its position; the panel gets the keyboard back.
        const bool bInPanel = dialogPreferences->isActiveWindow();
        mainDialog->setVisible(true);
        mainDialog->raise();
        if (bInPanel) {
            dialogPreferences->activateWindow();
        }
    }
    if (!flag("PieChartIcon") && settings[QStringLiteral("PieChartIcon")].toBool()) {
        settings[QStringLiteral("PieChartIcon")] = false; // which icon it is depends on that
        SetPlainIcon();
    }
    // Deliberate: at the start both are the stored record, so the window samples every 2 s whatever is
    // stored, until the user changes the period.
    if (number(changed, "UpdateFrequency") != number(settings, "UpdateFrequency")) {
        mainDialog->SetUpdateFrequency(number(changed, "UpdateFrequency"));
    }
    // Deliberately every time, also at every start: the login item follows the setting even after somebody
    // else changed it.
    Global::SetAutoLaunch(flag("AutoLaunch"));
    mainDialog->SetAutoHide(flag("AutoHide") &&
                            trayIcon); // without a tray, a hidden window could not be reached
    settings = changed;
    mainDialog->UpdateStats(false);
}

void MyApp::SetStyle(int style)
{
    QFile sheet(style ? QStringLiteral(":/mac_dark.qss") : QStringLiteral(":/mac.qss"));
    (void)sheet.open(QIODevice::ReadOnly);
    // Cleared first, so that every widget is polished again even if the text is the same.
    setStyleSheet(QString());
    setStyleSheet(QString::fromLatin1(sheet.readAll()));
    if (mainDialog) {
        mainDialog->SetStyle(style);
    }
}
