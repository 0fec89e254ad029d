#pragma once

#include "platform/QtSingleApplication.h"
#include "stats/PieSlices.h"

#include <QVariantMap>

class DialogAbout;
class DialogPreferences;
class DialogReminder;
class MainDialog;
class QAction;
class QMenu;
class QSystemTrayIcon;
class TrayHost;

/// The controller and application object: owns the status icon with its menu, every window and the settings
/// record, gets every sample from the main window and answers the user's choices.
class MyApp : public QtSingleApplication
{
    Q_OBJECT

public:
    MyApp(int &argc, char **argv);
    /// Saves the settings record, whatever state the controller is in, and deletes the windows.
    ~MyApp() override;

    /// Builds everything that is visible; for the copy that runs.
    void InitializeWidgets();
    /// Shows a sample in the menu and the status icon, then applies the reminder rule to it. The main window
    /// calls it for every sample, also before the status icon exists.
    void UpdateMenu(const QMap<QString, QVariant> &stats);
    /// Applies the light (0) or the dark style sheet to the whole application, and the style to the main
    /// window.
    void SetStyle(int style);
    /// A 16 x 16 swatch for a line of figures in the menu.
    static QIcon CreateColorIcon(const QColor &color);

public slots:
    void OnShowMainDialog();
    void OnFreeMemory();
    void OnPreferences();
    void OnSettingChanged();
    void OnDoNotRemind();
    void OnRemindRejected();
    void OnMessageReceived(QString message);
    void ResetReminder();

protected:
    bool event(QEvent *event) override;

private:
    /// Saves what the end of the program would, for an end that comes without a destructor.
    void Save();
    void InitializeTrayIcon();
    void ShowTrayIcon(QMenu *menu);
    void SetPlainIcon();
    void UpdateIcon(const QVariantMap &stats);
    void Remind(const QVariantMap &stats);

    QSystemTrayIcon *trayIcon = nullptr;
    QAction *actionFree = nullptr;
    QAction *actionActive = nullptr;
    QAction *actionInactive = nullptr;
    QAction *actionWired = nullptr;
    MainDialog *mainDialog = nullptr;
    DialogPreferences *dialogPreferences = nullptr;
    DialogAbout *dialogAbout = nullptr;
    DialogReminder *dialogReminder = nullptr;
    bool bRemindSuppressed = false;
    QVariantMap settings;

    /// What the status icon shows, so that a sample that would look the same sets nothing; empty: the plain
    /// icon.
    struct PieIcon
    {
        PieSlices slices;
        bool bMono;
    };
    std::optional<PieIcon> pieShown;
};
