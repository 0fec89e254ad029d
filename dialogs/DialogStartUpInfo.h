#pragma once

#include <QDialog>

class Ui_DialogStartUpInfo;

/// Tells a user, once, that Kelvo lives in the menu bar only.
class DialogStartUpInfo : public QDialog
{
    Q_OBJECT

public:
    explicit DialogStartUpInfo(QWidget *parent);
    ~DialogStartUpInfo() override;

private:
    Ui_DialogStartUpInfo *ui;
};
