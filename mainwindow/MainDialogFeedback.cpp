// The main window's usage counters, and the one-time prompt for feedback.

#include "dialogs/DialogAbout.h"
#include "mainwindow/MainDialog.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPixmap>
#include <QSettings>

#include <limits>

void MainDialog::CountUse(const QString &key, int enough, int msDelay)
{
    QSettings settings;
    const int before = settings.value(key, 0).toInt();
    settings.setValue(key, before < std::numeric_limits<int>::max() ? before + 1 : before);
    if (before > enough) {
        QTimer::singleShot(msDelay, this, SLOT(RemindFeedback()));
    }
}

void MainDialog::RemindFeedback()
{
    const QString key = QStringLiteral("Application/Feedback");
    {
        QSettings settings;
        if (settings.value(key, false).toBool()) {
            return;
        }
        // Stored before the prompt is shown, so that it is never shown again, whatever happens.
        settings.setValue(key, true);
    }

    QMessageBox box;
    box.setIconPixmap(QPixmap(QStringLiteral(":/app96.png")));
    box.addButton(QMessageBox::Ok);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Ok);
    // Deliberately not translated, nor is the title: the review page is in English.
    box.setText(
        QStringLiteral("Thank you for using Kelvo. We hope you like it! Would you like to kindly leave a "
                       "feedback for Kelvo? Your feedback will be greatly appreciated."));
    box.setWindowTitle(QStringLiteral("Feedback"));
    // Otherwise it would open behind a main window that is kept on top, and block it unseen.
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.setAttribute(Qt::WA_ShowWithoutActivating); // the user is busy with something else
    if (box.exec() == QMessageBox::Ok) {
        QDesktopServices::openUrl(DialogAbout::ReviewPage());
    }
}
