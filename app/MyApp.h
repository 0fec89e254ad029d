#pragma once

#include "figures/PieSlices.h"
#include "platform/QtSingleApplication.h"

#include <QVariantMap>

#include <optional>

class DialogAbout;
class DialogPreferences;
class DialogReminder;
class MainDialog;
class QAction;
class QMenu;
class QSystemTrayIcon;
class TrayHost;

/// The controller and application object: owns the status icon with its menu, the windows and the settings
/// record, receives every sample from the main window and handles the user's choices.
class MyApp : public QtSingleApplication
{
    Q_OBJECT

public:
    MyApp(int &argc, char **argv);
    /// Saves the settings record, in whatever state the controller is, and deletes the windows.
    ~MyApp() override;

    /// Builds everything that is visible, in the running copy.
    void InitializeWidgets();
    /// Shows a sample in the menu and the status icon, then applies the reminder rule. The main window calls
    /// it for every sample, also before menu and icon exist.
    void UpdateMenu(const QMap<QString, QVariant> &stats);
    /// Applies the light (0) or the dark style sheet to the application, and the style to the main window.
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
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnAbout();
    void OnTrayAbsent();
    void OnContextMenu(const QPoint &position = {});

private:
    /// Saves everything, for an end without destructors: Qt calls exit() when the X server has gone.
    void SaveAll();
    void InitializeTrayIcon();
    void ShowTrayIcon();
    void SetPlainIcon();
    void UpdateIcon(const QVariantMap &stats);
    void Remind(const QVariantMap &stats);

    QSystemTrayIcon *trayIcon = nullptr;
    QMenu *statusMenu = nullptr;
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

    /// The pie that the status icon shows, so that it is not set to one that looks the same; nothing: the
    /// plain icon.
    struct PieIcon
    {
        PieSlices slices;
        bool bMono = false;
    };
    std::optional<PieIcon> pieShown;
};
