#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "dialogs/ReadableGround.h"
#include "tests/support/FailOnWarnings.h"

#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QtTest>

namespace {

// Carries the class and object names that the style sheets address.
class MainDialog : public QFrame
{
    Q_OBJECT

public:
    MainDialog() : QFrame(nullptr), figure("1.23 GB", this), plain("Used:", this), button("Free Memory", this)
    {
        figure.setObjectName("labelInactive");
        auto *column = new QVBoxLayout(this);
        column->addWidget(&figure);
        column->addWidget(&plain);
        column->addWidget(&button);
    }

    QLabel figure;
    QLabel plain;
    QPushButton button;
};

const QColor lightDesktop(0xee, 0xee, 0xec);
const QColor darkDesktop(0x2a, 0x2e, 0x32);

void UseSheet(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString());
    qApp->setStyleSheet(QString::fromLatin1(file.readAll()));
}

// What is on the screen: the difference in brightness between a widget's most frequent grey and the one
// farthest off.
int PaintedContrast(QWidget *widget)
{
    const QImage image = widget->window()->grab().toImage();
    const QRect area(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
    QMap<int, int> greys;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            ++greys[qGray(image.pixel(x, y))];
        }
    }
    int ground = greys.firstKey();
    for (auto it = greys.cbegin(); it != greys.cend(); ++it) {
        ground = it.value() > greys.value(ground) ? it.key() : ground;
    }
    return qMax(ground - greys.firstKey(), greys.lastKey() - ground);
}

} // namespace

class TestReadableGround : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }
    void cleanup();
    void Texts_data();
    void Texts();
    void TheNextSheetUndoesIt();
    void AGoodGroundIsTheDesktopsOwn();
};

void TestReadableGround::cleanup()
{
    qApp->setStyleSheet(QString());
    qApp->setPalette(QPalette());
}

void TestReadableGround::Texts_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QColor>("desktop");
    QTest::newRow("classic on light") << ":/mac.qss" << lightDesktop;
    QTest::newRow("classic on dark") << ":/mac.qss" << darkDesktop;
    QTest::newRow("dark on light") << ":/mac_dark.qss" << lightDesktop;
    QTest::newRow("dark on dark") << ":/mac_dark.qss" << darkDesktop;
}

void TestReadableGround::Texts()
{
    QFETCH(QString, sheet);
    QFETCH(QColor, desktop);
    qApp->setPalette(QPalette(desktop));
    UseSheet(sheet);
    MainDialog window;
    SetReadableGround(&window, &window.figure);
    DialogWarning warning(
        &window); // as in the program: the sheet's rule for the main window reaches its dialogs
    DialogStartUpInfo startUpInfo(&window);
    for (QWidget *dialog : {static_cast<QWidget *>(&window), static_cast<QWidget *>(&warning),
                            static_cast<QWidget *>(&startUpInfo)}) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        for (QWidget *text : dialog->findChildren<QWidget *>()) {
            if (text->window() == dialog &&
                (qobject_cast<QLabel *>(text) || qobject_cast<QAbstractButton *>(text))) {
                const int nContrast = PaintedContrast(text);
                QVERIFY2(nContrast >= 100,
                         qPrintable(QString("%1 in %2: %3")
                                        .arg(text->objectName(), dialog->metaObject()->className())
                                        .arg(nContrast)));
            }
        }
    }
}

void TestReadableGround::TheNextSheetUndoesIt()
{
    qApp->setPalette(QPalette(darkDesktop));
    MainDialog window;
    window.show();
    UseSheet(":/mac.qss");
    SetReadableGround(&window, &window.figure);
    QVERIFY(window.button.palette().color(QPalette::Button).lightness() > 200);
    UseSheet(":/mac_dark.qss");
    SetReadableGround(&window, &window.figure);
    QCOMPARE(window.button.palette().color(QPalette::Button), darkDesktop);
    QCOMPARE(window.figure.palette().color(QPalette::WindowText), QColor(0x66, 0x66, 0xff));
    UseSheet(":/mac.qss");
    SetReadableGround(&window, &window.figure);
    QCOMPARE(window.figure.palette().color(QPalette::WindowText), QColor(0, 0, 255));
    QCOMPARE(window.plain.palette().color(QPalette::WindowText), QColor(Qt::black));
}

void TestReadableGround::AGoodGroundIsTheDesktopsOwn()
{
    for (const QColor &desktop : {lightDesktop, darkDesktop}) {
        qApp->setPalette(QPalette(desktop));
        UseSheet(":/mac.qss");
        const DialogWarning dialog(nullptr);
        QCOMPARE(dialog.palette().color(QPalette::Window), desktop);
    }
}

QTEST_MAIN(TestReadableGround)
#include "TestReadableGround.moc"
