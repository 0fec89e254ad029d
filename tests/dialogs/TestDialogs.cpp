#include "dialogs/DialogAbout.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "dialogs/Links.h"
#include "platform/Global.h"
#include "tests/support/FailOnWarnings.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>
#include <QtTest>

class TestDialogs : public QObject
{
    Q_OBJECT

public slots:
    void OpenUrl(const QUrl &url) { opened.append(url); }
    void RecordAccepted() { events.append(reminder->isVisible() ? "Accepted while shown" : "Accepted"); }
    void RecordDoNotRemind()
    {
        events.append(reminder->isVisible() ? "DoNotRemind while shown" : "DoNotRemind");
    }

private slots:
    void initTestCase();
    void init() { FailOnWarnings(); }
    void cleanupTestCase();
    void Notice_data();
    void Notice();
    void NoticeShowsBothIcons();
    void WarningAnswer_data();
    void WarningAnswer();
    void ReminderAnswer_data();
    void ReminderAnswer();
    void ReminderStaysOnTopAndGrowsWithItsMessage();
    void AboutTexts();
    void AboutOpensTheReviewPageAndHides();
    void AboutOpensTheMakersPage();
    void AboutWritesErrorsToTheLog();
    void SizeIsFixed_data();
    void SizeIsFixed();

private:
    QList<QUrl> opened;
    QStringList events;
    DialogReminder *reminder = nullptr;
};

namespace {

QWidget *NewWindow(const QString &name)
{
    if (name == "preferences") {
        return new DialogPreferences(nullptr);
    }
    if (name == "warning") {
        return new DialogWarning(nullptr);
    }
    if (name == "start-up notice") {
        return new DialogStartUpInfo(nullptr);
    }
    if (name == "reminder") {
        return new DialogReminder(nullptr);
    }
    return new DialogAbout(nullptr);
}

} // namespace

void TestDialogs::initTestCase()
{
    QDesktopServices::setUrlHandler("https", this, "OpenUrl");
    QCoreApplication::setApplicationName("Kelvo");
}

void TestDialogs::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler("https");
}

void TestDialogs::Notice_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text"); // the two inline pictures are U+FFFC
    QTest::addColumn<QString>("bold");
    QTest::newRow("warning")
        << "warning"
        << "Note: During memory freeing process, your system may appear to be non-responsive for a short "
           "period of "
           "time. This is normal behavior during memory re-organization process. It is recommended you do "
           "not start "
           "any other applications during that time. \nThe process may take up to one minute. In some "
           "occasion, you "
           "may need to run \"Free Memory\" a few times to shrink inactive memory to minimal size."
        << "Note";
    QTest::newRow("start-up notice")
        << "start-up notice"
        << QString::fromUtf8(
               "NOTE: From this version on, Kelvo will be a menubar-only app and will not show icon on "
               "the Dock.  Look for icon \xEF\xBF\xBC or \xEF\xBF\xBC on the menubar if you have not "
               "noticed it.\nThis message will not show up again.")
        << "NOTE";
}

void TestDialogs::Notice()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, bold);
    const QScopedPointer<QWidget> dialog(NewWindow(name));
    QCOMPARE(dialog->windowTitle(), QString("Kelvo"));
    const auto *label = dialog->findChild<QLabel *>("label");
    QVERIFY(label->wordWrap());
    QVERIFY(Qt::mightBeRichText(label->text()));

    QTextDocument document;
    document.setHtml(label->text());
    QCOMPARE(document.toPlainText(), text);
    QTextCursor cursor(&document);
    cursor.setPosition(int(bold.size()));
    QCOMPARE(cursor.charFormat().fontWeight(), int(QFont::DemiBold));
    QCOMPARE(cursor.charFormat().fontPointSize(), 13.0);
    cursor.setPosition(int(bold.size()) + 1);
    QCOMPARE(cursor.charFormat().fontWeight(), int(QFont::Normal));
}

void TestDialogs::NoticeShowsBothIcons()
{
    const DialogStartUpInfo dialog(nullptr);
    QTextDocument document;
    document.setHtml(dialog.findChild<QLabel *>("label")->text());
    QStringList icons;
    const QTextBlock block = document.firstBlock();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().isImageFormat()) {
            icons.append(it.fragment().charFormat().toImageFormat().name());
            QCOMPARE(QImage(icons.last()).size(), QSize(16, 16));
        }
    }
    QCOMPARE(icons, QStringList({":/app16.png", ":/piechart.png"}));
}

void TestDialogs::WarningAnswer_data()
{
    QTest::addColumn<bool>("bTick");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << false << int(Qt::Key_Return) << int(QDialog::Accepted);
    QTest::newRow("Escape") << false << int(Qt::Key_Escape) << int(QDialog::Rejected);
    QTest::newRow("ticked, OK") << true << int(Qt::Key_Return) << int(QDialog::Accepted);
    QTest::newRow("ticked, Escape") << true << int(Qt::Key_Escape) << int(QDialog::Rejected);
}

void TestDialogs::WarningAnswer()
{
    QFETCH(bool, bTick);
    QFETCH(int, key);
    QFETCH(int, result);
    DialogWarning dialog(nullptr);
    QVERIFY(!dialog.GetShowNoWarning());
    QTimer::singleShot(0, &dialog, [&] {
        if (bTick) {
            QTest::keyClick(dialog.findChild<QCheckBox *>("checkBoxDoNotShow"), Qt::Key_Space);
        }
        QTest::keyClick(&dialog, Qt::Key(key));
    });
    QCOMPARE(dialog.exec(), result);
    QCOMPARE(dialog.GetShowNoWarning(), bTick);
}

void TestDialogs::ReminderAnswer_data()
{
    QTest::addColumn<QString>("button"); // none: Escape
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("nRejected");
    QTest::newRow("Yes") << "pushButtonYes" << QStringList("Accepted") << 0;
    QTest::newRow("No") << "pushButtonNo" << QStringList() << 1;
    QTest::newRow("Do Not Remind Me") << "pushButtonNoRemind" << QStringList("DoNotRemind") << 0;
    QTest::newRow("Escape") << "" << QStringList() << 1;
}

void TestDialogs::ReminderAnswer()
{
    QFETCH(QString, button);
    QFETCH(QStringList, expected);
    QFETCH(int, nRejected);
    DialogReminder dialog(nullptr);
    reminder = &dialog;
    connect(&dialog, SIGNAL(Accepted()), this, SLOT(RecordAccepted()));
    connect(&dialog, SIGNAL(DoNotRemind()), this, SLOT(RecordDoNotRemind()));
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    for (int nRound = 1; nRound <= 2; ++nRound) { // one dialog serves the whole run
        events.clear();
        dialog.show();
        if (button.isEmpty()) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
        } else {
            QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
        }
        QVERIFY(!dialog.isVisible());
        QCOMPARE(events, expected);
        QCOMPARE(accepted.count(), 0);
        QCOMPARE(rejected.count(), nRejected * nRound);
        QCOMPARE(finished.count(), nRejected * nRound);
    }
}

void TestDialogs::ReminderStaysOnTopAndGrowsWithItsMessage()
{
    DialogReminder dialog(nullptr);
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(dialog.windowTitle(), QString("Kelvo"));
    dialog.SetMessage("short");
    dialog.show();
    const int nHeight = dialog.height();
    dialog.SetMessage(QString("a long message ").repeated(30));
    QTRY_VERIFY(dialog.height() > 2 * nHeight);
    QCOMPARE(dialog.findChild<QLabel *>("labelMessage")->text(), QString("a long message ").repeated(30));
}

void TestDialogs::AboutTexts()
{
    QCoreApplication::setApplicationName("Kelvo-Test-2");
    DialogAbout dialog(nullptr);
    QCoreApplication::setApplicationName("Kelvo");
    QCOMPARE(dialog.windowTitle(), QString("About Kelvo Test 2"));
    auto *title = dialog.findChild<QLabel *>("labelAppTitle");
    auto *version = dialog.findChild<QLabel *>("labelVersion");
    QCOMPARE(title->text(), QString("Kelvo Test 2"));
    QCOMPARE(version->text(), "version " + Global::VersionString);
    dialog.Show();
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.isModal());
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(title->font().pointSize(), 14);
    QVERIFY(title->font().bold());
    QCOMPARE(version->font().pointSize(), 12);
    QVERIFY(!version->font().bold());
    QCOMPARE(dialog.findChild<QLabel *>("labelIcon")->pixmap().size(), QSize(96, 96));
}

void TestDialogs::AboutOpensTheReviewPageAndHides()
{
    opened.clear();
    DialogAbout dialog(nullptr);
    dialog.Show();
    // Not a default button: Return must not send anyone to a web page.
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(opened.isEmpty());
    QTest::mouseClick(dialog.findChild<QPushButton *>("pushButton"), Qt::LeftButton);
    QCOMPARE(opened, QList<QUrl>({Links::ReviewPage()}));
    QVERIFY(!dialog.isVisible());
}

void TestDialogs::AboutOpensTheMakersPage()
{
    opened.clear();
    DialogAbout dialog(nullptr);
    dialog.Show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *maker = dialog.findChild<QLabel *>("label_4");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), maker);
    QTest::keyClick(maker, Qt::Key_Return);
    QCOMPARE(opened, QList<QUrl>({Links::MakerPage()}));
    QVERIFY(maker->text().contains("Orvanta"));
    // Blue as it is on a light desktop, and not blue on a dark one that says nothing of links.
    QVERIFY(!maker->text().contains("color"));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 44)));
    const DialogAbout onDark(nullptr);
    QApplication::setPalette(light);
    QVERIFY(onDark.findChild<QLabel *>("label_4")->text().contains("color:#ffffff"));
}

void TestDialogs::AboutWritesErrorsToTheLog()
{
    DialogAbout dialog(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "\"a \"quoted\" text\\\"");
    QVERIFY(QMetaObject::invokeMethod(&dialog, "OnError", Q_ARG(QString, R"(a "quoted" text\)")));
}

void TestDialogs::SizeIsFixed_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"warning", "start-up notice", "reminder", "about", "preferences"}) {
        QTest::newRow(name) << name;
    }
}

void TestDialogs::SizeIsFixed()
{
    QFETCH(QString, name);
    const QScopedPointer<QWidget> dialog(NewWindow(name));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.data()));
    QCOMPARE(dialog->minimumSize(), dialog->maximumSize());
    QCOMPARE(dialog->size(), dialog->layout()->sizeHint());
}

QTEST_MAIN(TestDialogs)
#include "TestDialogs.moc"
