// What the pies look like: colours at the middle of each slice, outlines, and nothing where nothing is known.

#include "stats/PieChart.h"
#include "stats/PieSlices.h"
#include "tests/support/FailOnWarnings.h"

#include <QImage>
#include <QtMath>

namespace {

// A quarter each, counter-clockwise from twelve o'clock.
const PieSlices quarters{1440, 1440, 1440};

/// The pixel at a distance from the centre, in the direction that the slices are measured in.
QColor At(const QPixmap &pixmap, int nSixteenths, double distance)
{
    const double angle = qDegreesToRadians(nSixteenths / 16.0);
    const double c = pixmap.width() / 2.0;
    return pixmap.toImage().pixelColor(int(c + distance * qCos(angle)), int(c - distance * qSin(angle)));
}

} // namespace

class TestPieChart : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }
    void slicesInTheirPlaces_data()
    {
        QTest::addColumn<QPixmap>("pixmap");
        QTest::addColumn<int>("nEdge");
        QTest::newRow("window") << DrawWindowPie(quarters) << 72;
        QTest::newRow("icon") << DrawColorPie(quarters) << 64;
    }
    void slicesInTheirPlaces()
    {
        QFETCH(QPixmap, pixmap);
        QTEST(pixmap.width(), "nEdge");
        const int nMiddle = PieSlices::TwelveOClock + 720;
        const double distance = pixmap.width() / 4.0;
        QCOMPARE(At(pixmap, nMiddle, distance), QColor(Qt::green));
        QCOMPARE(At(pixmap, nMiddle + 1440, distance), QColor(Qt::blue));
        QCOMPARE(At(pixmap, nMiddle + 2880, distance), QColor(Qt::yellow));
        QCOMPARE(At(pixmap, nMiddle + 4320, distance), QColor(Qt::red));
        QCOMPARE(pixmap.toImage().pixelColor(0, 0).alpha(), 0);
    }

    void windowPieHasASoftRim()
    {
        const QImage rimOnly = DrawWindowPie(std::nullopt).toImage();
        // Three discs of alpha 15 over one another, one at the very edge.
        QVERIFY(qAbs(rimOnly.pixelColor(36, 36).alpha() - 43) <= 2);
        QVERIFY(qAbs(rimOnly.pixelColor(36, 0).alpha() - 15) <= 5);
        const QImage pie = DrawWindowPie(quarters).toImage();
        QVERIFY(pie.pixelColor(36, 1).alpha() < 60);
        QCOMPARE(pie.pixelColor(36, 5).alpha(), 255);
    }

    void monoShowsFreeInWhite()
    {
        for (const int nScale : {1, 2}) {
            const QPixmap pixmap = DrawMonoPie(PieSlices{2880}, nScale);
            QCOMPARE(pixmap.width(), 32 * nScale);
            QCOMPARE(At(pixmap, 2880, 8 * nScale), QColor(Qt::white));
            QCOMPARE(At(pixmap, 0, 8 * nScale), QColor(Qt::black));
            // The outline, round the white slice too.
            QCOMPARE(At(pixmap, 2880, 13.5 * nScale), QColor(Qt::black));
        }
    }
};

QTEST_MAIN(TestPieChart)
#include "TestPieChart.moc"
