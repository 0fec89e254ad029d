#include "app/MyApp.h"

#include "app/SettingsRecord.h"
#include "dialogs/DialogAbout.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "mainwindow/MainDialog.h"
#include "platform/Activation.h"
#include "platform/TrayHost.h"

#include <QAction>
#include <QEvent>
#include <QIcon>
#include <QPixmapCache>

#include <cstdlib>
#include <utility>

MyApp::MyApp(int &argc, char **argv) : QtSingleApplication(argc, argv, true)
{
    setQuitOnLastWindowClosed(false);
    // Qt would keep every icon that is scaled for a tray, up to 10 MiB, and some 300 bytes of each for ever.
    QPixmapCache::setCacheLimit(0);
    setOrganizationName(QStringLiteral("Orvanta"));
    setOrganizationDomain(QStringLiteral("orvanta.example"));
    setApplicationName(QStringLiteral("Kelvo"));
    setDesktopFileName(QStringLiteral("kelvo"));
    AvoidBlockingSettings();
    connect(this, SIGNAL(messageReceived(QString)), this, SLOT(OnMessageReceived(QString)));
}

MyApp::~MyApp()
{
    // Deliberately unconditional: a copy that only delivered its message stores an empty record, and the
    // running copy puts the full one back at its end.
    SaveSettings(settings);
    delete dialogPreferences;
    delete std::exchange(mainDialog, nullptr);
    delete dialogAbout;
    delete dialogReminder;
}

void MyApp::SaveAll()
{
    SaveSettings(settings);
    if (mainDialog) {
        mainDialog->SaveState();
    }
}

void MyApp::InitializeWidgets()
{
    setWindowIcon(QIcon(QStringLiteral(":/app96.png")));

    // Deliberately the same text for all four, until the first sample a moment later.
    const auto createEntry = [this](const QColor &color) {
        return new QAction(CreateColorIcon(color), tr("Free:"), this);
    };
    actionFree = createEntry(Qt::green);
    actionActive = createEntry(Qt::yellow);
    actionWired = createEntry(Qt::red);
    actionInactive = createEntry(Qt::blue);
    for (QAction *entry : {actionFree, actionActive, actionWired, actionInactive}) {
        connect(entry, SIGNAL(triggered()), this, SLOT(OnShowMainDialog()));
    }

    mainDialog = new MainDialog(nullptr);
    mainDialog->setVisible(false);
    mainDialog->installEventFilter(this);

    dialogAbout = new DialogAbout(nullptr);
    dialogAbout->setVisible(false);

    dialogPreferences = new DialogPreferences(nullptr);
    dialogPreferences->setVisible(false);
    connect(dialogPreferences, SIGNAL(SettingChanged()), this, SLOT(OnSettingChanged()),
            Qt::QueuedConnection);

    dialogReminder = new DialogReminder(nullptr);
    dialogReminder->setVisible(false);
    connect(dialogReminder, SIGNAL(Accepted()), this, SLOT(OnFreeMemory()));
    connect(dialogReminder, SIGNAL(DoNotRemind()), this, SLOT(OnDoNotRemind()));
    connect(dialogReminder, SIGNAL(rejected()), this, SLOT(OnRemindRejected()));

    settings = LoadSettings();
    std::atexit([] {
        // Null after the controller's destructor.
        if (auto *app = qobject_cast<MyApp *>(QCoreApplication::instance())) {
            app->SaveAll();
        }
    });
    SetStyle(settings[QStringLiteral("WindowStyle")].toInt());
    dialogPreferences->SetSettings(settings);
    OnSettingChanged();

    InitializeTrayIcon();
}

/// Shows a window that the user has asked for, above all others and with the keyboard.
static void BringToFront(QWidget *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    const bool bWayland = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (bWayland && !window->isActiveWindow() && !qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN")) {
        // Without a token the compositor leaves a window where it is, but puts a new one on top.
        window->setVisible(false);
    }
    window->setVisible(true);
    // In this order: before it is active, a window manager may refuse to raise it, and then leaves it below
    // the window that had the keyboard.
    Activate(window);
    window->raise();
}

void MyApp::OnShowMainDialog()
{
    BringToFront(mainDialog);
}

void MyApp::OnFreeMemory()
{
    OnShowMainDialog();
    mainDialog->OnFreeMem();
}

void MyApp::OnPreferences()
{
    dialogPreferences->PlaceBeside(mainDialog);
    BringToFront(dialogPreferences);
}

void MyApp::OnAbout()
{
    BringToFront(dialogAbout);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the slot's given signature
void MyApp::OnMessageReceived(QString)
{
    if (mainDialog) {
        OnShowMainDialog();
    }
}

bool MyApp::event(QEvent *event)
{
    // A session's request to quit. The program outlives its last window, so nothing else would end it.
    if (event->type() == QEvent::Close) {
        quit();
    }
    return QtSingleApplication::event(event);
}

bool MyApp::eventFilter(QObject *watched, QEvent *event)
{
    // Without a tray, a program without a window could not be reached any more. Queued, since quit() closes
    // every window itself.
    if (watched == mainDialog && event->type() == QEvent::Close && (!trayIcon || TrayHost::IsGone())) {
        QMetaObject::invokeMethod(this, "quit", Qt::QueuedConnection);
    }
    return QtSingleApplication::eventFilter(watched, event);
}
