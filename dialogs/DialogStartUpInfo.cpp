#include "dialogs/DialogStartUpInfo.h"

#include "dialogs/ReadableGround.h"
#include "ui_DialogStartUpInfo.h"

DialogStartUpInfo::DialogStartUpInfo(QWidget *parent) : QDialog(parent), ui(new Ui_DialogStartUpInfo)
{
    ui->setupUi(this);
    SetReadableGround(this, ui->label);
}

DialogStartUpInfo::~DialogStartUpInfo()
{
    delete ui;
}
