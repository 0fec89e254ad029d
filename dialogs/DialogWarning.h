#pragma once

#include <QDialog>

class Ui_DialogWarning;

/// Says, before memory is freed, that the system may stall for a while.
class DialogWarning : public QDialog
{
    Q_OBJECT

public:
    explicit DialogWarning(QWidget *parent);
    ~DialogWarning() override;

    /// True when the user asks not to be warned again.
    bool GetShowNoWarning() const;

private:
    Ui_DialogWarning *ui;
};
