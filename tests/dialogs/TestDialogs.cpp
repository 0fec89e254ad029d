#include "dialogs/DialogAbout.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "tests/support/FailOnWarnings.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

class TestDialogs : public QObject
{
    Q_OBJECT

public slots:
    void OpenUrl(const QUrl &url) { opened.append(url); }

private slots:
    void initTestCase();
    void init() { FailOnWarnings(); }
    void NoticeShowsBothIcons();
    void WarningAnswer();
    void ReminderClosedWithEscape();
    void ReminderGrowsWithItsMessage();
    void AboutOpensNothingAtReturn();
    void AboutLinkIsReadableOnDark();
    void SizeIsFixed();

private:
    QList<QUrl> opened;
};

void TestDialogs::initTestCase()
{
    QDesktopServices::setUrlHandler("https", this, "OpenUrl");
}

void TestDialogs::NoticeShowsBothIcons()
{
    const QString notice = DialogStartUpInfo(nullptr).findChild<QLabel *>("label")->text();
    for (const char *icon : {":/app16.png", ":/piechart.png"}) {
        QVERIFY2(notice.contains(icon) && QImage(icon).size() == QSize(16, 16), icon);
    }
}

void TestDialogs::WarningAnswer()
{
    for (const bool bTick : {false, true}) {
        DialogWarning dialog(nullptr);
        QVERIFY(!dialog.GetShowNoWarning());
        QTimer::singleShot(0, &dialog, [&] {
            if (bTick) {
                QTest::keyClick(dialog.findChild<QCheckBox *>("checkBoxDoNotShow"), Qt::Key_Space);
            }
            QTest::keyClick(&dialog, bTick ? Qt::Key_Escape : Qt::Key_Return);
        });
        QCOMPARE(dialog.exec(), bTick ? int(QDialog::Rejected) : int(QDialog::Accepted));
        QCOMPARE(dialog.GetShowNoWarning(), bTick);
    }
}

/// The same as "No", every time: one dialog serves the whole run.
void TestDialogs::ReminderClosedWithEscape()
{
    DialogReminder dialog(nullptr);
    const QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    for (int nTimes = 1; nTimes <= 2; ++nTimes) {
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(rejected.count(), nTimes);
    }
}

void TestDialogs::ReminderGrowsWithItsMessage()
{
    DialogReminder dialog(nullptr);
    dialog.SetMessage("short");
    dialog.show();
    const int nHeight = dialog.height();
    dialog.SetMessage(QString("a long message ").repeated(30));
    QTRY_VERIFY(dialog.height() > 2 * nHeight);
}

void TestDialogs::AboutOpensNothingAtReturn()
{
    DialogAbout dialog(nullptr);
    dialog.Show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(opened.isEmpty());
}

void TestDialogs::AboutLinkIsReadableOnDark()
{
    const auto link = [] { return DialogAbout(nullptr).findChild<QLabel *>("label_4")->text(); };
    QVERIFY(!link().contains("color"));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 44)));
    const QString onDark = link();
    QApplication::setPalette(light);
    QVERIFY(onDark.contains("color:#ffffff"));
}

void TestDialogs::SizeIsFixed()
{
    DialogPreferences preferences(nullptr);
    DialogWarning warning(nullptr);
    DialogStartUpInfo startUpInfo(nullptr);
    DialogReminder reminder(nullptr);
    DialogAbout about(nullptr);
    for (QWidget *dialog :
         std::initializer_list<QWidget *>{&preferences, &warning, &startUpInfo, &reminder, &about}) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QCOMPARE(dialog->minimumSize(), dialog->maximumSize());
        QCOMPARE(dialog->size(), dialog->layout()->sizeHint());
    }
}

QTEST_MAIN(TestDialogs)
#include "TestDialogs.moc"
