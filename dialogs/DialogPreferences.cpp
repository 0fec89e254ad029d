#include "dialogs/DialogPreferences.h"

#include "platform/WindowPlacement.h"
#include "ui_DialogPreferences.h"

#include <QScreen>

DialogPreferences::DialogPreferences(QWidget *parent)
    : QFrame(parent), ui(new Ui_DialogPreferences), placement(new WindowPlacement(this))
{
    ui->setupUi(this);
    if (!WindowPlacement::CanPlace()) {
        ui->checkBoxStayOnTop->setEnabled(false);
        ui->checkBoxStayOnTop->setToolTip(tr("On Wayland, a program cannot keep its window on top."));
    }

    // Deliberately both radio buttons: a change of style is announced twice, and the receiver rereads
    // everything each time.
    connect(ui->checkBoxAutoHide, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxAutoLaunch, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxStayOnTop, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->radioButtonStyleClassic, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->radioButtonStyleDark, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxPieChartIcon, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxRemind, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->doubleSpinBoxThreshold, SIGNAL(valueChanged(double)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxNoTitleBar, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxMonoColor, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->checkBoxHideAtStartUp, SIGNAL(toggled(bool)), this, SIGNAL(SettingChanged()));
    connect(ui->comboBoxFrequency, SIGNAL(currentIndexChanged(int)), this, SIGNAL(SettingChanged()));
}

DialogPreferences::~DialogPreferences()
{
    delete ui;
}

void DialogPreferences::SetSettings(const QMap<QString, QVariant> &settings)
{
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        widget->blockSignals(true);
    }

    const bool bRemind = settings.value("Remind").toBool();
    const bool bPieChartIcon = settings.value("PieChartIcon").toBool();
    const bool bDark = settings.value("WindowStyle").toInt() != 0;
    ui->checkBoxAutoHide->setChecked(settings.value("AutoHide").toBool());
    ui->checkBoxAutoLaunch->setChecked(settings.value("AutoLaunch").toBool());
    ui->checkBoxStayOnTop->setChecked(settings.value("StayOnTop").toBool());
    ui->radioButtonStyleClassic->setChecked(!bDark);
    ui->radioButtonStyleDark->setChecked(bDark);
    ui->checkBoxPieChartIcon->setChecked(bPieChartIcon);
    ui->checkBoxMonoColor->setChecked(settings.value("MonoColor").toBool());
    ui->checkBoxRemind->setChecked(bRemind);
    ui->doubleSpinBoxThreshold->setValue(settings.value("RemindThreshold").toDouble());
    ui->checkBoxNoTitleBar->setChecked(settings.value("NoTitleBar").toBool());
    ui->checkBoxHideAtStartUp->setChecked(settings.value("HideAtStartUp").toBool());
    // Deliberately any other value than 0 is the slower one, as in the main window.
    ui->comboBoxFrequency->setCurrentIndex(settings.value("UpdateFrequency").toInt() != 0 ? 1 : 0);
    // What the form's connections do otherwise: they were blocked too.
    ui->doubleSpinBoxThreshold->setEnabled(bRemind);
    ui->checkBoxMonoColor->setVisible(bPieChartIcon);

    for (QWidget *widget : widgets) {
        widget->blockSignals(false);
    }
}

QMap<QString, QVariant> DialogPreferences::GetSettings() const
{
    QMap<QString, QVariant> settings;
    settings.insert("AutoHide", ui->checkBoxAutoHide->isChecked());
    settings.insert("AutoLaunch", ui->checkBoxAutoLaunch->isChecked());
    settings.insert("StayOnTop", ui->checkBoxStayOnTop->isChecked());
    settings.insert("WindowStyle", ui->radioButtonStyleClassic->isChecked() ? 0 : 1);
    settings.insert("PieChartIcon", ui->checkBoxPieChartIcon->isChecked());
    settings.insert("MonoColor", ui->checkBoxMonoColor->isChecked());
    settings.insert("Remind", ui->checkBoxRemind->isChecked());
    settings.insert("RemindThreshold", ui->doubleSpinBoxThreshold->value());
    settings.insert("NoTitleBar", ui->checkBoxNoTitleBar->isChecked());
    settings.insert("HideAtStartUp", ui->checkBoxHideAtStartUp->isChecked());
    settings.insert("UpdateFrequency", ui->comboBoxFrequency->currentIndex());
    return settings;
}

void DialogPreferences::PlaceBeside(const QWidget *other)
{
    const QRect taken = other->frameGeometry();
    const bool bCovers = other->isVisible() && other->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    // An open panel is where the user wants it. Before its first show only the window manager knows where it
    // would open.
    if (!bCovers || isVisible() || (windowHandle() && !frameGeometry().intersects(taken))) {
        return;
    }
    constexpr int gap = 16; // and what the panel's own frame needs
    const QRect screen = other->screen()->availableGeometry();
    const QSize size = sizeHint();
    const bool bRight = taken.right() + 2 * gap + size.width() <= screen.right();
    placement->MoveTo({bRight ? taken.right() + gap : qMax(screen.left(), taken.left() - gap - size.width()),
                       qMin(taken.top(), screen.bottom() - 2 * gap - size.height())});
}
