#pragma once

#include <QDialog>

class Ui_DialogAbout;

/// Icon, name, version, maker, and the way to the review page.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget *parent);
    ~DialogAbout() override;

    void Show();

public slots:
    void OnFeedback();
    /// Writes the text, in double quotes, to Qt's message output; nothing is shown.
    void OnError(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;

private:
    Ui_DialogAbout *ui;
};
