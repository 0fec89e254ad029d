// Pictures, animations and style sheets as they are compiled in. Texts under the sheets: TestController.

#include "tests/support/FailOnWarnings.h"

#include <QImageReader>
#include <QLabel>
#include <QtTest>

// A window of the name that the sheets address.
class MainDialog : public QFrame
{
    Q_OBJECT
};

class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }
    void Pictures();
    void GlyphReadsOnLightAndDark();
    void Animations();
    void SheetColours();
};

void TestResources::Pictures()
{
    const QMap<QString, int> sides = {
        {":/app16.png", 16}, {":/app16_invert.png", 16}, {":/app96.png", 96}, {":/piechart.png", 16}};
    for (auto it = sides.begin(); it != sides.end(); ++it) {
        const QImage image(it.key(), "PNG");
        QCOMPARE(image.size(), QSize(it.value(), it.value()));
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QVERIFY(qAlpha(image.pixel(it.value() / 2, it.value() / 2)) > 200);
    }
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

void TestResources::Animations()
{
    for (const bool bDark : {false, true}) {
        QImageReader reader(bDark ? ":/wait_indicator_dark.gif" : ":/wait_indicator.gif", "GIF");
        QCOMPARE(reader.loopCount(), -1); // for ever
        QList<QImage> frames;
        while (reader.canRead()) {
            frames << reader.read();
            QCOMPARE(reader.nextImageDelay(), 100);
            QCOMPARE(frames.last().size(), QSize(32, 32));
            // See-through outside and in the hub: nothing of an earlier frame is left behind either.
            QCOMPARE(qAlpha(frames.last().pixel(0, 0)), 0);
            QCOMPARE(qAlpha(frames.last().pixel(16, 16)), 0);
            QCOMPARE(frames.count(frames.last()), 1);
        }
        QCOMPARE(frames.size(), 12);
        // The strongest spoke goes round clockwise: top at first, right after three steps. Light ink on dark.
        QCOMPARE(qGray(frames.at(0).pixel(16, 5)) > 128, bDark);
        QCOMPARE(frames.at(3).pixel(27, 16), frames.at(0).pixel(16, 5));
    }
}

void TestResources::SheetColours()
{
    const QString colours[][3] = {
        // object, classic, dark
        {"labelFree", "#008000", "#00ff00"},     {"labelJustFreed", "#008000", "#00ff00"},
        {"labelReturned", "#008000", "#00ff00"}, {"labelInactive", "#0000ff", "#6666ff"},
        {"labelWired", "#ff0000", "#ff0000"},    {"labelActive", "#aaaa00", "#ffff00"},
        {"labelUsed", "#000000", "#eeeeee"},
    };
    for (const int dark : {0, 1}) {
        QFile sheet(dark ? ":/mac_dark.qss" : ":/mac.qss");
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(QString::fromLatin1(sheet.readAll()));
        for (const auto &row : colours) {
            MainDialog window;
            QLabel label(&window);
            label.setObjectName(row[0]);
            label.ensurePolished();
            QCOMPARE(label.palette().color(QPalette::WindowText).name(), row[1 + dark]);
            QCOMPARE(label.font().pointSize(), 12);
        }
    }
}

QTEST_MAIN(TestResources)
#include "TestResources.moc"
