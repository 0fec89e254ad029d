#pragma once

#include <QDialog>

class Ui_DialogReminder;

/// Asks whether to free memory now, above all other windows. "No" and Escape reject the dialog. The two other
/// buttons deliberately only hide it: they count neither as accepted nor as rejected.
class DialogReminder : public QDialog
{
    Q_OBJECT

public:
    explicit DialogReminder(QWidget *parent);
    ~DialogReminder() override;

    /// Sets the question, as plain or rich text.
    void SetMessage(const QString &message);

protected:
    void showEvent(QShowEvent *event) override;

signals:
    void Accepted();    ///< "Yes", after the dialog has been hidden.
    void DoNotRemind(); ///< "Do Not Remind Me", after the dialog has been hidden.

private:
    Ui_DialogReminder *ui;
};
