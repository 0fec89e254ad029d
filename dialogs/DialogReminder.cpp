#include "dialogs/DialogReminder.h"

#include "ui_DialogReminder.h"

DialogReminder::DialogReminder(QWidget *parent) : QDialog(parent), ui(new Ui_DialogReminder)
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
    // After the form's own connections: the dialog is hidden before the answer is emitted.
    connect(ui->pushButtonYes, SIGNAL(clicked()), this, SIGNAL(Accepted()));
    connect(ui->pushButtonNoRemind, SIGNAL(clicked()), this, SIGNAL(DoNotRemind()));
}

DialogReminder::~DialogReminder()
{
    delete ui;
}

void DialogReminder::SetMessage(const QString &message)
{
    ui->labelMessage->setText(message);
}
