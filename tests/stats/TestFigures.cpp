// From a report's text to figures, and from figures to their texts and slices.

#include "stats/FormatSizeString.h"
#include "stats/MemoryReport.h"
#include "stats/PieSlices.h"
#include "tests/support/FailOnWarnings.h"

#include <algorithm>
#include <limits>

class TestFigures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sizes_data();
    void sizes();
    void sizesOfAnotherLanguage();
    void reports_data();
    void reports();
    void missingLinesKeepTheirFigures();
    void hugeReport();
    void slices_data();
    void slices();
    void noSlicesOfNothing();
    void lookAlikes();
};

void TestFigures::init()
{
    FailOnWarnings();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestFigures::sizes_data()
{
    QTest::addColumn<qlonglong>("size");
    QTest::addColumn<QString>("text");
    const auto row = [](qlonglong size, const char *text) { QTest::newRow(text) << size << text; };
    row(0, "0 bytes");
    row(1023, "1,023 bytes");
    row(-5, "-5 bytes");
    row(std::numeric_limits<qlonglong>::min(), "-9,223,372,036,854,775,808 bytes");
    row(1024, "1 KB");
    QTest::newRow("KB are cut off") << 2047LL << "1 KB";
    row(1048575, "1,023 KB");
    row(1048576, "1.0 MB");
    row(5368709, "5.1 MB");
    QTest::newRow("MB are rounded, past their unit") << 1073741823LL << "1,024.0 MB";
    row(1073741824, "1.00 GB");
    row(8589934592, "8.00 GB");
    row(1099511627776, "1.000 TB");
    row(std::numeric_limits<qlonglong>::max(), "8,388,608.000 TB");
}

void TestFigures::sizes()
{
    QFETCH(qlonglong, size);
    QTEST(FormatSizeString(size), "text");
}

void TestFigures::sizesOfAnotherLanguage()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(FormatSizeString(1610612736), QStringLiteral("1,50 GB"));
    QCOMPARE(FormatSizeString(1047552), QStringLiteral("1.023 KB"));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestFigures::reports_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<qlonglong>("nFree");
    QTest::addColumn<qlonglong>("nPureFree");
    QTest::addColumn<qlonglong>("nInactive");
    QTest::addColumn<qlonglong>("nActive");
    QTest::addColumn<qlonglong>("nWired");

    const QString usual = QStringLiteral("Mach Virtual Memory Statistics: (page size of 4096 bytes)\n"
                                         "Pages free:                                1000.\n"
                                         "Pages active:                                30.\n"
                                         "Pages inactive:                              20.\n"
                                         "Pages speculative:                           24.\n"
                                         "Pages wired down:                             7.\n"
                                         "\"Translation faults\":                 123456.\n");
    QStringList reversed = usual.split(QLatin1Char('\n'));
    std::reverse(reversed.begin(), reversed.end());

    const auto row = [](const char *name, const QString &report, qlonglong nFree, qlonglong nPureFree,
                        qlonglong nInactive, qlonglong nActive, qlonglong nWired) {
        QTest::newRow(name) << report << nFree << nPureFree << nInactive << nActive << nWired;
    };
    row("usual", usual, 1024, 1000, 20, 30, 7);
    row("CR line ends", QString(usual).replace(QLatin1Char('\n'), QLatin1Char('\r')), 1024, 1000, 20, 30, 7);
    row("mixed case", QStringLiteral("pAGES fREE: 10.\nPAGES WIRED DOWN: 3."), 10, 10, 0, 0, 3);
    row("lines in another order", reversed.join(QLatin1Char('\n')), 1024, 1000, 20, 30, 7);
    row("the first of two counts", usual + QStringLiteral("Pages free: 5.\n"), 1024, 1000, 20, 30, 7);
    row("no speculative line", QStringLiteral("Pages free: 9."), 9, 9, 0, 0, 0);
    row("active is not found in inactive", QStringLiteral("Pages inactive: 9."), 0, 0, 9, 0, 0);
    row("cut in the middle of a line", QStringLiteral("Pages free: 9.\nPages inactive: 12"), 9, 9, 12, 0, 0);
    row("no full stop before other text", QStringLiteral("Pages free: 9\nPages inactive: 12\n"), 0, 0, 12, 0,
        0);
    row("no number", QStringLiteral("Pages free: many.\nPages active: 1e3."), 0, 0, 0, 0, 0);
    row("negative", QStringLiteral("Pages free: -3."), -3, -3, 0, 0, 0);
    row("thirty digits", QStringLiteral("Pages free: 123456789012345678901234567890."), 0, 0, 0, 0, 0);
    row("empty", QString(), 0, 0, 0, 0, 0);
    row("binary", QString::fromLatin1(QByteArray("\x01\xff\x7f Pages \xfe", 11)), 0, 0, 0, 0, 0);
}

void TestFigures::reports()
{
    QFETCH(QString, report);
    QVariantMap stats;
    ReadMemoryReport(report, stats);

    const auto pages = [&](const char *key) { return stats.value(QLatin1String(key)).toLongLong() / 4096; };
    QTEST(pages("Free"), "nFree");
    QTEST(pages("PureFree"), "nPureFree");
    QTEST(pages("Inactive"), "nInactive");
    QTEST(pages("Active"), "nActive");
    QTEST(pages("Wired"), "nWired");
    QCOMPARE(pages("Used"), pages("Inactive") + pages("Active") + pages("Wired"));
    QCOMPARE(stats.value(QStringLiteral("Used")).typeId(), int(QMetaType::LongLong));
    // A line that no report has had yet leaves its key without a value, not with 0.
    QCOMPARE(stats.value(QStringLiteral("Wired")).isValid(),
             report.contains(QLatin1String("wired"), Qt::CaseInsensitive));
}

void TestFigures::missingLinesKeepTheirFigures()
{
    QVariantMap stats;
    ReadMemoryReport(
        QStringLiteral("Pages free: 8. Pages speculative: 2. Pages active: 5. Pages wired down: 1."), stats);
    ReadMemoryReport(QStringLiteral("Pages active: 6."), stats);
    QCOMPARE(stats[QStringLiteral("Free")].toLongLong(), 10 * 4096);
    QCOMPARE(stats[QStringLiteral("PureFree")].toLongLong(), 10 * 4096);
    QCOMPARE(stats[QStringLiteral("Wired")].toLongLong(), 1 * 4096);
    QCOMPARE(stats[QStringLiteral("Used")].toLongLong(), 7 * 4096);
}

void TestFigures::hugeReport()
{
    QVariantMap stats;
    const QString noise = QString(QStringLiteral("Pages of no interest: 1.\n")).repeated(400000);
    ReadMemoryReport(noise + QStringLiteral("Pages free: 4.\nPages active: 9223372036854775807."), stats);
    QCOMPARE(stats[QStringLiteral("Free")].toLongLong(), 4 * 4096);
    QCOMPARE(stats[QStringLiteral("Active")].toLongLong(), -4096); // wraps, and is nobody's memory anyway
}

void TestFigures::slices_data()
{
    QTest::addColumn<QVariantMap>("stats");
    QTest::addColumn<QList<int>>("spans"); // free, inactive, active, wired
    const auto row = [](const char *name, qlonglong nFree, qlonglong nUsed, qlonglong nInactive,
                        qlonglong nActive, const QList<int> &spans) {
        QTest::newRow(name) << QVariantMap{{QStringLiteral("Free"), nFree},
                                           {QStringLiteral("Used"), nUsed},
                                           {QStringLiteral("Inactive"), nInactive},
                                           {QStringLiteral("Active"), nActive}}
                            << spans;
    };
    row("half free", 50, 50, 0, 0, {2880, 0, 0, 2880});
    row("nothing free", 0, 4, 1, 1, {0, 1440, 1440, 2880});
    row("thirds", 1, 2, 1, 1, {1920, 1920, 1920, 0});
    row("cut to whole sixteenths", 1, 6, 2, 2, {822, 1645, 1645, 1648});
    row("64-bit products", 1LL << 44, 1LL << 44, 0, 0, {2880, 0, 0, 2880});
    row("more than the whole", 10, 10, 20, 20, {2880, 5760, 5760, -8640});
    row("senseless, bounded", 1, 0, 1LL << 50, -(1LL << 50), {5760, 1 << 28, -(1 << 28), 0});
}

void TestFigures::slices()
{
    QFETCH(QVariantMap, stats);
    const auto slices = SlicesOf(stats);
    QVERIFY(slices);
    QTEST(QList<int>({slices->nFree, slices->nInactive, slices->nActive, slices->WiredSpan()}), "spans");
    QCOMPARE(slices->WiredStart() + slices->WiredSpan(), 7200);
}

void TestFigures::noSlicesOfNothing()
{
    QVERIFY(!SlicesOf({}));
    QVERIFY(!SlicesOf({{QStringLiteral("Free"), 5LL}, {QStringLiteral("Used"), -5LL}}));
}

void TestFigures::lookAlikes()
{
    const PieSlices pie{1000, 1000, 1000};
    QVERIFY(pie.LooksLike({1005, 1000, 995}));
    QVERIFY(pie.LooksLike({995, 1010, 990}));
    QVERIFY(!pie.LooksLike({1006, 994, 1000}));
    QVERIFY(!pie.LooksLike({1000, 994, 1006}));
    QVERIFY(!pie.LooksLike({1002, 1002, 1002}));
}

QTEST_GUILESS_MAIN(TestFigures)
#include "TestFigures.moc"
