// Pictures and animations as they are compiled in. Style sheets: TestController.

#include "tests/support/FailOnWarnings.h"

#include <QImageReader>

class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void pictures()
    {
        for (const char *name : {":/app16.png", ":/app16_invert.png", ":/piechart.png", ":/app96.png"}) {
            const QImage image(name);
            QVERIFY2(image.height() == (qstrcmp(name, ":/app96.png") == 0 ? 96 : 16), name);
            QVERIFY(qAlpha(image.pixel(0, 0)) == 0 && qAlpha(image.pixel(image.rect().center())) > 200);
        }
    }

    void animations()
    {
        for (const char *name : {":/wait_indicator.gif", ":/wait_indicator_dark.gif"}) {
            QImageReader reader(name);
            QCOMPARE(reader.loopCount(), -1); // for ever
            QList<QImage> frames;
            for (QImage frame = reader.read(); !frame.isNull(); frame = reader.read()) {
                // Nothing of an earlier frame is left behind.
                QVERIFY(qAlpha(frame.pixel(0, 0)) == 0 && !frames.contains(frame));
                frames << frame;
            }
            QCOMPARE(frames.size(), 12);
        }
    }
};

QTEST_GUILESS_MAIN(TestResources)
#include "TestResources.moc"
