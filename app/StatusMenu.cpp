// The status icon and its menu.

#include "app/MyApp.h"
#include "dialogs/DialogAbout.h"
#include "mainwindow/MainDialog.h"
#include "platform/Global.h"
#include "platform/TrayHost.h"
#include "stats/PieChart.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QSettings>
#include <QSystemTrayIcon>

void MyApp::InitializeTrayIcon()
{
    // Without parent, and never deleted: a menu of the desktop's outlives the controller's windows.
    auto *menu = new QMenu;
    const auto addEntry = [&](const QString &text, QObject *receiver, const char *slot) {
        auto *entry = new QAction(text, this);
        connect(entry, SIGNAL(triggered()), receiver, slot);
        menu->addAction(entry);
    };
    // Free first, then by what can be had back: wired never, active hardly, inactive, and right below it the
    // way to it.
    menu->addAction(actionFree);
    menu->addAction(actionWired);
    menu->addAction(actionActive);
    menu->addAction(actionInactive);
    menu->addSeparator();
    addEntry(tr("Free Memory Now!"), this, SLOT(OnFreeMemory()));
    menu->addSeparator();
    addEntry(tr("Kelvo Preferences..."), this, SLOT(OnPreferences()));
    addEntry(tr("About Kelvo"), dialogAbout, SLOT(show()));
    menu->addSeparator();
    addEntry(tr("Quit"), this, SLOT(quit()));

    // A session may start us before its panel, or have none: the icon waits for a tray, and without one the
    // window is the only way in, whatever HideAtStartUp says.
    auto *trayHost = new TrayHost(this);
    connect(trayHost, SIGNAL(Clicked()), this, SLOT(OnShowMainDialog()));
    connect(trayHost, SIGNAL(Absent()), this, SLOT(OnShowMainDialog()));
    trayHost->WhenAvailable([this, menu, trayHost] {
        ShowTrayIcon(menu);
        trayHost->Attach(trayIcon);
    });

    if (!settings[QStringLiteral("HideAtStartUp")].toBool()) {
        mainDialog->setVisible(true);
    }

    // The move out of the Dock was news in version 1.1 only; nobody who starts with a later one has to be
    // told.
    if (Global::VersionString == QLatin1String("1.1")) {
        QSettings store;
        const QString key = QStringLiteral("Application/StartUpMessageShown");
        if (!store.value(key).toBool()) {
            mainDialog->ShowStartUpMessage();
            store.setValue(key, true);
        }
    }
}

void MyApp::ShowTrayIcon(QMenu *menu)
{
    trayIcon = new QSystemTrayIcon(this);
    SetPlainIcon();
    trayIcon->setVisible(true);
    trayIcon->setToolTip(applicationName());
    trayIcon->setContextMenu(menu);
    // The fixed name last: an application name from elsewhere (a test, a wrapper) must not be what the panel
    // says.
    trayIcon->setToolTip(QStringLiteral("Kelvo"));
}

void MyApp::SetPlainIcon()
{
    if (!trayIcon) {
        return;
    }
    QIcon icon(QStringLiteral(":/app16.png"));
    icon.addFile(QStringLiteral(":/app16_invert.png"), QSize(), QIcon::Selected, QIcon::Off);
    trayIcon->setIcon(icon);
    pieShown.reset();
}

void MyApp::UpdateMenu(const QMap<QString, QVariant> &stats)
{
    const auto text = [&](const char *key) { return stats.value(QLatin1String(key)).toString(); };
    actionFree->setText(tr("Free: ") + text("FormattedFree"));
    actionActive->setText(tr("Active: ") + text("FormattedActive"));
    actionInactive->setText(tr("Inactive: ") + text("FormattedInactive"));
    actionWired->setText(tr("Wired: ") + text("FormattedWired"));

    UpdateIcon(stats);
    Remind(stats);
}

void MyApp::UpdateIcon(const QVariantMap &stats)
{
    const auto slices = SlicesOf(stats);
    if (!trayIcon || !slices || !settings[QStringLiteral("PieChartIcon")].toBool()) {
        return;
    }
    // Drawing an icon and having a panel show it costs more than taking the sample, so it is done when there
    // is something to see. The black-and-white one shows free memory only.
    const bool bMono = settings[QStringLiteral("MonoColor")].toBool();
    const PieSlices pie = bMono ? PieSlices{slices->nFree} : *slices;
    if (!pieShown || pieShown->bMono != bMono || !pie.LooksLike(pieShown->slices)) {
        QIcon icon(bMono ? DrawMonoPie(pie) : DrawColorPie(pie));
        if (bMono) {
            icon.addPixmap(DrawMonoPie(pie, 2)); // large panels do not enlarge what they get, or blur it
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
