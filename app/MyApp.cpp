#include "app/MyApp.h"

#include "app/SettingsRecord.h"
#include "dialogs/DialogAbout.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "mainwindow/MainDialog.h"
#include "platform/StartUpMemory.h"
#include "platform/SuddenExit.h"

#include <QAction>
#include <QEvent>
#include <QIcon>
#include <QTimer>

#include <utility>

MyApp::MyApp(int &argc, char **argv) : QtSingleApplication(argc, argv, true)
{
    setQuitOnLastWindowClosed(false);
    setOrganizationName(QStringLiteral("Orvanta"));
    setOrganizationDomain(QStringLiteral("orvanta.example"));
    setApplicationName(QStringLiteral("Kelvo"));
    setDesktopFileName(QStringLiteral("kelvo"));
    connect(this, SIGNAL(messageReceived(QString)), this, SLOT(OnMessageReceived(QString)));
}

MyApp::~MyApp()
{
    // Unconditional: a copy that only handed its message over stores an empty record here, and the running
    // copy's own end puts the full one back.
    SaveSettings(settings);
    delete dialogPreferences;
    // At the end of a session the display often goes just now: until the window has stored its own state,
    // such an end still waits for this one.
    delete std::exchange(mainDialog, nullptr);
    CallBeforeSuddenExit(nullptr, {});
    delete dialogAbout;
    delete dialogReminder;
}

void MyApp::Save()
{
    SaveSettings(settings);
    if (mainDialog) {
        mainDialog->SaveState();
    }
}

void MyApp::InitializeWidgets()
{
    setWindowIcon(QIcon(QStringLiteral(":/app96.png")));

    // All four say "Free:" until the first sample, a moment later, gives each its own text.
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
    CallBeforeSuddenExit(this, [this] { Save(); });
    SetStyle(settings[QStringLiteral("WindowStyle")].toInt());
    dialogPreferences->SetSettings(settings);
    OnSettingChanged();

    InitializeTrayIcon();
    // By then the icon is in its tray, and the first timed sample is taken.
    QTimer::singleShot(3000, this, [] { ReleaseStartUpCode(); });
}

void MyApp::OnShowMainDialog()
{
    mainDialog->setWindowState(mainDialog->windowState() & ~Qt::WindowMinimized);
    mainDialog->setVisible(true);
    mainDialog->raise();
}

void MyApp::OnFreeMemory()
{
    OnShowMainDialog();
    mainDialog->OnFreeMem();
}

void MyApp::OnPreferences()
{
    dialogPreferences->StandClearOf(mainDialog);
    dialogPreferences->setVisible(true);
    dialogPreferences->raise();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the slot's signature, and one message in a while
void MyApp::OnMessageReceived(QString)
{
    if (mainDialog) {
        OnShowMainDialog();
    }
}

bool MyApp::event(QEvent *event)
{
    // How a session asks the program to end: nothing else would, since it outlives its last window.
    if (event->type() == QEvent::Close) {
        quit();
    }
    return QtSingleApplication::event(event);
}
