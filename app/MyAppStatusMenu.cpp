// The status icon and its menu.

#include "app/MyApp.h"
#include "app/StatusMenu.h"
#include "dialogs/DialogAbout.h"
#include "dialogs/DialogPreferences.h"
#include "figures/PieChart.h"
#include "mainwindow/MainDialog.h"
#include "platform/Global.h"
#include "platform/LaunchFeedback.h"
#include "platform/TrayHost.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QSettings>
#include <QShortcut>
#include <QSystemTrayIcon>

void MyApp::InitializeTrayIcon()
{
    // Deliberately without a parent and never deleted: the desktop may hold on to it until the process ends.
    statusMenu = new StatusMenu;
    const auto addEntry = [&](const QString &text, QObject *receiver, const char *slot) {
        auto *entry = new QAction(text, this);
        connect(entry, SIGNAL(triggered()), receiver, slot);
        statusMenu->addAction(entry);
        return entry;
    };
    // Deliberately another order than that of creation: free first, then by what freeing can give back.
    statusMenu->addAction(actionFree);
    statusMenu->addAction(actionWired);
    statusMenu->addAction(actionActive);
    statusMenu->addAction(actionInactive);
    statusMenu->addSeparator();
    addEntry(tr("Free Memory Now!"), this, SLOT(OnFreeMemory()));
    statusMenu->addSeparator();
    QAction *preferences = addEntry(tr("Kelvo Preferences..."), this, SLOT(OnPreferences()));
    QAction *about = addEntry(tr("About Kelvo"), this, SLOT(OnAbout()));
    connect(about, SIGNAL(triggered()), dialogAbout, SLOT(show()));
    statusMenu->addSeparator();
    QAction *quitEntry = addEntry(tr("Quit"), this, SLOT(quit()));

    // The same menu and its keys in the windows, for desktops without a tray. Not in the reminder: it may get
    // keys that were meant for another program.
    preferences->setShortcut(Qt::CTRL | Qt::Key_Comma);
    quitEntry->setShortcut(Qt::CTRL | Qt::Key_Q);
    for (QWidget *window : std::initializer_list<QWidget *>{mainDialog, dialogPreferences, dialogAbout}) {
        window->addActions({preferences, quitEntry});
    }
    mainDialog->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mainDialog, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(OnContextMenu(QPoint)));
    auto *menuKey = new QShortcut(Qt::SHIFT | Qt::Key_F10, mainDialog);
    connect(menuKey, SIGNAL(activated()), this, SLOT(OnContextMenu()));

    // A session may start Kelvo before its panel, or have none. The icon waits for a tray. Without one, the
    // window is the only way to use Kelvo, so it is shown whatever HideAtStartUp says.
    auto *trayHost = new TrayHost(this);
    connect(trayHost, SIGNAL(Clicked()), this, SLOT(OnShowMainDialog()));
    connect(trayHost, SIGNAL(Absent()), this, SLOT(OnTrayAbsent()));
    trayHost->WhenAvailable([this, trayHost] {
        ShowTrayIcon();
        trayHost->Attach(trayIcon);
    });

    if (!settings[QStringLiteral("HideAtStartUp")].toBool()) {
        mainDialog->setVisible(true);
    } else {
        EndLaunchFeedback();
    }

    // Deliberate: only version 1.1 tells that Kelvo has left the Dock. Later ones never show this.
    if (Global::VersionString == QLatin1String("1.1")) {
        QSettings store;
        const QString key = QStringLiteral("Application/StartUpMessageShown");
        if (!store.value(key).toBool()) {
            mainDialog->ShowStartUpMessage();
            store.setValue(key, true);
        }
    }
}

void MyApp::OnTrayAbsent()
{
    mainDialog->setVisible(true); // not asked for, so neither raised nor activated
}

void MyApp::OnContextMenu(const QPoint &position)
{
    statusMenu->popup(mainDialog->mapToGlobal(position.isNull() ? mainDialog->rect().center() : position));
}

void MyApp::ShowTrayIcon()
{
    trayIcon = new QSystemTrayIcon(this);
    SetPlainIcon();
    trayIcon->setVisible(true);
    trayIcon->setToolTip(applicationName());
    trayIcon->setContextMenu(statusMenu);
    // Deliberately set again: the panel shows this name, whatever the application is called.
    trayIcon->setToolTip(QStringLiteral("Kelvo"));
    mainDialog->SetAutoHide(settings[QStringLiteral("AutoHide")].toBool());
}

void MyApp::SetPlainIcon()
{
    if (!trayIcon) {
        return;
    }
    QIcon icon(QStringLiteral(":/app16.png"));
    icon.addFile(QStringLiteral(":/app16_invert.png"), QSize(), QIcon::Selected, QIcon::Off);
    // By its name, a panel shows the symbolic icon sharp and in its own colour. Not for the first moments
    // before the pie: looking the name up is slow.
    if (!settings[QStringLiteral("PieChartIcon")].toBool() && TrayHost::TakesIconNames()) {
        icon = QIcon::fromTheme(QStringLiteral("kelvo-symbolic"), icon);
    }
    trayIcon->setIcon(icon);
    pieShown.reset();
}

void MyApp::UpdateMenu(const QMap<QString, QVariant> &stats)
{
    const auto show = [&](QAction *entry, const QString &label, const char *key) {
        if (entry) {
            entry->setText(label + stats.value(QLatin1String(key)).toString());
        }
    };
    show(actionFree, tr("Free: "), "FormattedFree");
    show(actionActive, tr("Active: "), "FormattedActive");
    show(actionInactive, tr("Inactive: "), "FormattedInactive");
    show(actionWired, tr("Wired: "), "FormattedWired");

    UpdateIcon(stats);
    Remind(stats);
}

void MyApp::UpdateIcon(const QVariantMap &stats)
{
    const auto slices = SlicesOf(stats);
    if (!trayIcon || !slices || !settings[QStringLiteral("PieChartIcon")].toBool()) {
        return;
    }
    // Drawing the icon and showing it in a panel costs more than the sample, so it is set when it looks
    // different. The black-and-white one shows free memory only.
    const bool bMono = settings[QStringLiteral("MonoColor")].toBool();
    const PieSlices pie = bMono ? PieSlices{slices->freeSpan} : *slices;
    if (!pieShown || pieShown->bMono != bMono || !pie.LooksLike(pieShown->slices)) {
        QIcon icon(bMono ? DrawMonoPie(pie) : DrawColorPie(pie));
        if (bMono) {
            icon.addPixmap(DrawMonoPie(pie, 2)); // large panels do not enlarge the icon, or blur it
        }
        trayIcon->setIcon(icon);
        pieShown = {pie, bMono};
    }
}

QIcon MyApp::CreateColorIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.setBrush(color);
    painter.drawRect(pixmap.rect().adjusted(3, 3, -3, -3));
    painter.end();
    return QIcon(pixmap);
}
