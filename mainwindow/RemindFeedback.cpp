#include "dialogs/Links.h"
#include "mainwindow/MainDialog.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPixmap>
#include <QSettings>

void MainDialog::RemindFeedback()
{
    const QString key = QStringLiteral("Application/Feedback");
    {
        QSettings settings;
        if (settings.value(key, false).toBool()) {
            return;
        }
        // Stored before the question is put: whatever becomes of it, it is never put again.
        settings.setValue(key, true);
    }

    QMessageBox box;
    box.setIconPixmap(QPixmap(QStringLiteral(":/app96.png")));
    box.addButton(QMessageBox::Ok);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Ok);
    box.setText(
        QStringLiteral("Thank you for using Kelvo. We hope you like it! Would you like to kindly leave a "
                       "feedback for Kelvo? Your feedback will be greatly appreciated."));
    // Else it would open behind a main window that is kept on top, and block it unseen.
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    // Not translated, nor is the text: the review page that it leads to speaks English.
    box.setWindowTitle(QStringLiteral("Feedback"));
    if (box.exec() == QMessageBox::Ok) {
        QDesktopServices::openUrl(Links::ReviewPage());
    }
}
