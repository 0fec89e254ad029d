#include "dialogs/DialogReminder.h"

#include "ui_DialogReminder.h"

DialogReminder::DialogReminder(QWidget *parent) : QDialog(parent), ui(new Ui_DialogReminder)
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    // After the form's own connections: the dialog is hidden before the answer is emitted.
    connect(ui->pushButtonYes, SIGNAL(clicked()), this, SIGNAL(Accepted()));
    connect(ui->pushButtonNoRemind, SIGNAL(clicked()), this, SIGNAL(DoNotRemind()));
}

DialogReminder::~DialogReminder()
{
    delete ui;
}

void DialogReminder::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // On Wayland it gets the keyboard all the same, with what the user is typing elsewhere. So no button has
    // the focus or is the default until the user clicks or tabs.
    for (QPushButton *button : {ui->pushButtonYes, ui->pushButtonNo, ui->pushButtonNoRemind}) {
        button->setDefault(false);
    }
    setFocus();
}

void DialogReminder::SetMessage(const QString &message)
{
    ui->labelMessage->setText(message);
}
