#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QPalette>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

namespace {

QByteArray Bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A window of the name that the sheets address, with one label of the given object name.
class MainDialog : public QFrame
{
    Q_OBJECT
public:
    explicit MainDialog(const QString &objectName) : label(this) { label.setObjectName(objectName); }
    QLabel label;
};

QColor TextColor(QLabel &label)
{
    label.ensurePolished();
    return label.palette().color(QPalette::WindowText);
}

} // namespace

class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void TheTreeIsFlatAndUncompressed();
    void PictureFormat_data();
    void PictureFormat();
    void GlyphAndInverseShareTheirShape();
    void GlyphReadsOnLightAndDark();
    void PieShowsTheFourColours();
    void AnimationFormat_data();
    void AnimationFormat();
    void SheetForm_data();
    void SheetForm();
    void SheetColour_data();
    void SheetColour();
};

void TestResources::init()
{
    FailOnWarnings();
    qApp->setStyleSheet(QString());
}

void TestResources::TheTreeIsFlatAndUncompressed()
{
    QStringList files = QDir(":/").entryList(QDir::Files, QDir::Name);
    QCOMPARE(files, QStringList({"app16.png", "app16_invert.png", "app96.png", "mac.qss", "mac_dark.qss",
                                 "piechart.png", "wait_indicator.gif", "wait_indicator_dark.gif"}));
    for (const QString &file : std::as_const(files)) {
        QCOMPARE(QResource(":/" + file).compressionAlgorithm(), QResource::NoCompression);
    }
}

void TestResources::PictureFormat_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("colorType"); // PNG: 4 is grey with alpha, 6 is RGB with alpha
    QTest::newRow("glyph") << ":/app16.png" << 16 << 4;
    QTest::newRow("inverse glyph") << ":/app16_invert.png" << 16 << 4;
    QTest::newRow("application icon") << ":/app96.png" << 96 << 6;
    QTest::newRow("pie") << ":/piechart.png" << 16 << 6;
}

void TestResources::PictureFormat()
{
    QFETCH(QString, path);
    QFETCH(int, side);
    QFETCH(int, colorType);
    const QByteArray bytes = Bytes(path);
    QVERIFY(bytes.startsWith("\x89PNG\r\n\x1a\n"));
    QCOMPARE(bytes.mid(12, 4), QByteArray("IHDR"));
    QCOMPARE(int(bytes.at(24)), 8); // bits per channel
    QCOMPARE(int(bytes.at(25)), colorType);

    QImage image;
    QVERIFY(image.loadFromData(bytes));
    QCOMPARE(image.size(), QSize(side, side));
    const int last = side - 1;
    for (const QPoint corner : {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)}) {
        QCOMPARE(qAlpha(image.pixel(corner)), 0);
    }
    QVERIFY(qAlpha(image.pixel(side / 2, side / 2)) > 200);
}

void TestResources::GlyphAndInverseShareTheirShape()
{
    const QImage glyph(":/app16.png");
    const QImage inverse(":/app16_invert.png");
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const QRgb dark = glyph.pixel(x, y);
            const QRgb light = inverse.pixel(x, y);
            QCOMPARE(qAlpha(light), qAlpha(dark));
            if (qAlpha(dark) > 0) {
                QVERIFY2(qAbs(qGray(dark) + qGray(light) - 255) <= 1,
                         qPrintable(QString("%1,%2").arg(x).arg(y)));
            }
        }
    }
    // A leg of the chip is the plain ink.
    QCOMPARE(glyph.pixel(3, 0), qRgb(0, 0, 0));
    QCOMPARE(inverse.pixel(3, 0), qRgb(255, 255, 255));
}

void TestResources::GlyphReadsOnLightAndDark()
{
    // The plain icon is the dark glyph, on whatever panel there is: on each ground a good part must stand
    // out.
    for (const int ground : {255, 239, 120, 40, 0}) {
        const QImage glyph(":/app16.png");
        int nClear = 0;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const QRgb pixel = glyph.pixel(x, y);
                nClear += qAbs(qGray(pixel) - ground) * qAlpha(pixel) / 255 > 90 ? 1 : 0;
            }
        }
        QVERIFY2(nClear >= 40, qPrintable(QString("ground %1: %2 pixels").arg(ground).arg(nClear)));
    }
}

void TestResources::PieShowsTheFourColours()
{
    const QImage pie(":/piechart.png");
    QCOMPARE(pie.pixelColor(5, 5), QColor(Qt::green));
    QCOMPARE(pie.pixelColor(6, 12), QColor(Qt::blue));
    QCOMPARE(pie.pixelColor(11, 10), QColor(Qt::yellow));
    QCOMPARE(pie.pixelColor(10, 4), QColor(Qt::red));
}

void TestResources::AnimationFormat_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("classic") << ":/wait_indicator.gif";
    QTest::newRow("dark") << ":/wait_indicator_dark.gif";
}

void TestResources::AnimationFormat()
{
    QFETCH(QString, path);
    QVERIFY(Bytes(path).startsWith("GIF89a"));
    QImageReader reader(path);
    QCOMPARE(reader.size(), QSize(32, 32));
    QCOMPARE(reader.loopCount(), -1); // for ever
    QList<QImage> frames;
    while (reader.canRead()) {
        const QImage frame = reader.read();
        QVERIFY2(!frame.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(reader.nextImageDelay(), 100);
        QCOMPARE(frame.size(), QSize(32, 32));
        // See-through outside and in the hub: nothing of an earlier frame is left behind either.
        QCOMPARE(qAlpha(frame.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(frame.pixel(16, 16)), 0);
        QCOMPARE(qAlpha(frame.pixel(16, 5)), 255);
        QVERIFY(!frames.contains(frame));
        frames.append(frame);
    }
    QCOMPARE(frames.size(), 12);
    // The strongest spoke goes round clockwise: top at first, right after three steps, bottom after six.
    const bool bDark = qGray(frames.at(0).pixel(16, 5)) > 128;
    QCOMPARE(bDark, path.contains("dark"));
    QCOMPARE(frames.at(3).pixel(27, 16), frames.at(0).pixel(16, 5));
    QCOMPARE(frames.at(6).pixel(16, 27), frames.at(0).pixel(16, 5));
}

void TestResources::SheetForm_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<QByteArray>("oddity"); // what looks like a mistake and has to stay
    QTest::newRow("classic") << ":/mac.qss" << QByteArray("color:#aaaa00;\n}\n")
                             << QByteArray("\nMainDialog\n{\n    border\n}\n");
    QTest::newRow("dark")
        << ":/mac_dark.qss" << QByteArray("color:#ffff00;\n}\n\n")
        << QByteArray("\n#labelFree, #labelJustFreed, #labelReturned\n{\n    color: #00ff00;\n}\n");
}

void TestResources::SheetForm()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, end);
    QFETCH(QByteArray, oddity);
    const QByteArray sheet = Bytes(path);
    QVERIFY(sheet.endsWith(end));
    QVERIFY(sheet.contains(oddity));
    // Printable ASCII and line feeds; selector, brace, declarations indented by four, brace, one blank line.
    static const QRegularExpression rules(R"(^(?:[!-~][ -~]*\n\{\n(?:    [!-~][ -~]*\n)+\}\n\n)+$)");
    QVERIFY(rules.match(QString::fromLatin1(sheet.trimmed() + "\n\n")).hasMatch());
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
    QFETCH(QColor, classic);
    QFETCH(QColor, dark);
    MainDialog window(objectName);
    qApp->setStyleSheet(QString::fromLatin1(Bytes(":/mac.qss")));
    QCOMPARE(TextColor(window.label), classic);
    QCOMPARE(window.label.font().pointSize(), 12);
    qApp->setStyleSheet(QString());
    qApp->setStyleSheet(QString::fromLatin1(Bytes(":/mac_dark.qss")));
    QCOMPARE(TextColor(window.label), dark);
    QCOMPARE(window.label.font().pointSize(), 12);
}

QTEST_MAIN(TestResources)
#include "TestResources.moc"
