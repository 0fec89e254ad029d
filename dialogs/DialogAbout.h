#pragma once

#include <QDialog>
#include <QUrl>

class Ui_DialogAbout;

/// Icon, name, version and maker, and a button that opens the review page.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget *parent);
    ~DialogAbout() override;

    void Show();

    /// The store page on which a user leaves a review.
    static QUrl ReviewPage();

public slots:
    void OnFeedback();
    /// Writes the text, in double quotes, to Qt's message output; nothing is shown.
    void OnError(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;

private:
    Ui_DialogAbout *ui;
};
