// Pictures, animations and style sheets as they are compiled in. The dialogs' texts under the sheets:
// TestReadableGround.

#include "tests/support/FailOnWarnings.h"

#include <QFile>
#include <QFrame>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QPalette>
#include <QtTest>

namespace {

// A window of the name that the sheets address, with one label of the given object name.
class MainDialog : public QFrame
{
    Q_OBJECT
public:
    explicit MainDialog(const QString &objectName) : label(this) { label.setObjectName(objectName); }
    QLabel label;
};

} // namespace

class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

    void Pictures_data();
    void Pictures();
    void GlyphReadsOnLightAndDark();
    void Animations_data();
    void Animations();
    void SheetColour_data();
    void SheetColour();
};

void TestResources::Pictures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("side");
    QTest::addColumn<bool>("bGrey");
    QTest::newRow("glyph") << ":/app16.png" << 16 << true;
    QTest::newRow("inverse glyph") << ":/app16_invert.png" << 16 << true;
    QTest::newRow("application icon") << ":/app96.png" << 96 << false;
    QTest::newRow("pie") << ":/piechart.png" << 16 << false;
}

void TestResources::Pictures()
{
    QFETCH(QString, path);
    QFETCH(int, side);
    const QImage image(path, "PNG");
    QCOMPARE(image.size(), QSize(side, side));
    QTEST(image.allGray(), "bGrey");
    for (const int x : {0, side - 1}) {
        QCOMPARE(qAlpha(image.pixel(x, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(x, side - 1)), 0);
    }
    QVERIFY(qAlpha(image.pixel(side / 2, side / 2)) > 200);
}

void TestResources::GlyphReadsOnLightAndDark()
{
    // The plain icon is the dark glyph, on whatever panel there is: on each ground a good part must stand
    // out.
    const QImage glyph(":/app16.png");
    for (const int ground : {255, 239, 120, 40, 0}) {
        int nClear = 0;
        for (int i = 0; i < 16 * 16; ++i) {
            const QRgb pixel = glyph.pixel(i % 16, i / 16);
            nClear += qAbs(qGray(pixel) - ground) * qAlpha(pixel) / 255 > 90 ? 1 : 0;
        }
        QVERIFY2(nClear >= 40, qPrintable(QString("ground %1: %2 pixels").arg(ground).arg(nClear)));
    }
    // A leg of the chip is the plain ink.
    QCOMPARE(glyph.pixel(3, 0), qRgb(0, 0, 0));
    QCOMPARE(QImage(":/app16_invert.png").pixel(3, 0), qRgb(255, 255, 255));
}

void TestResources::Animations_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("bLightInk");
    QTest::newRow("classic") << ":/wait_indicator.gif" << false;
    QTest::newRow("dark") << ":/wait_indicator_dark.gif" << true;
}

void TestResources::Animations()
{
    QFETCH(QString, path);
    QImageReader reader(path, "GIF");
    QCOMPARE(reader.loopCount(), -1); // for ever
    QList<QImage> frames;
    while (reader.canRead()) {
        const QImage frame = reader.read();
        QCOMPARE(reader.nextImageDelay(), 100);
        QCOMPARE(frame.size(), QSize(32, 32));
        // See-through outside and in the hub: nothing of an earlier frame is left behind either.
        QCOMPARE(qAlpha(frame.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(frame.pixel(16, 16)), 0);
        QVERIFY(!frames.contains(frame));
        frames.append(frame);
    }
    QCOMPARE(frames.size(), 12);
    // The strongest spoke goes round clockwise: top at first, right after three steps.
    QTEST(qGray(frames.at(0).pixel(16, 5)) > 128, "bLightInk");
    QCOMPARE(frames.at(3).pixel(27, 16), frames.at(0).pixel(16, 5));
}

void TestResources::SheetColour_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QColor>("classic");
    QTest::addColumn<QColor>("dark");
    for (const char *name : {"labelFree", "labelJustFreed", "labelReturned"}) {
        QTest::newRow(name) << name << QColor(0, 128, 0) << QColor(0, 255, 0);
    }
    QTest::newRow("labelInactive") << "labelInactive" << QColor(0, 0, 255) << QColor(0x66, 0x66, 255);
    QTest::newRow("labelWired") << "labelWired" << QColor(255, 0, 0) << QColor(255, 0, 0);
    QTest::newRow("labelActive") << "labelActive" << QColor(0xaa, 0xaa, 0) << QColor(255, 255, 0);
    const QColor untouched = qApp->palette().color(QPalette::WindowText);
    QTest::newRow("labelUsed") << "labelUsed" << untouched << QColor(0xee, 0xee, 0xee);
}

void TestResources::SheetColour()
{
    QFETCH(QString, objectName);
    MainDialog window(objectName);
    for (const char *style : {"classic", "dark"}) {
        QFile sheet(style == QLatin1String("dark") ? ":/mac_dark.qss" : ":/mac.qss");
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(QString());
        qApp->setStyleSheet(QString::fromLatin1(sheet.readAll()));
        window.label.ensurePolished();
        QTEST(window.label.palette().color(QPalette::WindowText), style);
        QCOMPARE(window.label.font().pointSize(), 12);
    }
    qApp->setStyleSheet(QString());
}

QTEST_MAIN(TestResources)
#include "TestResources.moc"
