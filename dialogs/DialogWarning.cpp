#include "dialogs/DialogWarning.h"

#include "dialogs/ReadableGround.h"
#include "ui_DialogWarning.h"

DialogWarning::DialogWarning(QWidget *parent) : QDialog(parent), ui(new Ui_DialogWarning)
{
    ui->setupUi(this);
    SetReadableGround(this, ui->label);
}

DialogWarning::~DialogWarning()
{
    delete ui;
}

bool DialogWarning::GetShowNoWarning() const
{
    return ui->checkBoxDoNotShow->isChecked();
}
