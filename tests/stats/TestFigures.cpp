// From a report's text to figures, and from figures to their texts and slices. Senseless reports are in
// tests/e2e.

#include "stats/FormatSizeString.h"
#include "stats/MemoryReport.h"
#include "stats/PieSlices.h"
#include "tests/support/FailOnWarnings.h"

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
    void slices_data();
    void slices();
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
    row(-5, "-5 bytes");
    row(1023, "1,023 bytes");
    row(1024, "1 KB");
    QTest::newRow("KB are cut off") << 2047LL << "1 KB";
    row(1048575, "1,023 KB");
    row(1048576, "1.0 MB");
    QTest::newRow("MB are rounded, past their unit") << 1073741823LL << "1,024.0 MB";
    row(1073741824, "1.00 GB");
    row(1099511627776, "1.000 TB");
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
}

void TestFigures::reports_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<QList<qlonglong>>("pages"); // Free, PureFree, Inactive, Active, Wired, Used
    const QString usual = QStringLiteral("Mach Virtual Memory Statistics: (page size of 4096 bytes)\n"
                                         "Pages free:                                1000.\n"
                                         "Pages active:                                30.\n"
                                         "Pages inactive:                              20.\n"
                                         "Pages speculative:                           24.\n"
                                         "Pages wired down:                             7.\n"
                                         "\"Translation faults\":                 123456.\n");
    const auto row = [](const char *name, const QString &report, const QList<qlonglong> &pages) {
        QTest::newRow(name) << report << pages;
    };
    row("usual", usual, {1024, 1000, 20, 30, 7, 57});
    row("CR line ends", QString(usual).replace(QLatin1Char('\n'), QLatin1Char('\r')),
        {1024, 1000, 20, 30, 7, 57});
    row("missing lines keep their figures", QStringLiteral("Pages inactive: 9."), {3, 3, 9, 4, 5, 18});
    row("no number", QStringLiteral("Pages free: many.\nPages active: 1e3."), {0, 0, 2, 0, 5, 7});
    row("wraps, and is nobody's memory anyway", QStringLiteral("Pages active: 9223372036854775807."),
        {3, 3, 2, -1, 5, 6});
}

void TestFigures::reports()
{
    QFETCH(QString, report);
    QVariantMap stats;
    ReadMemoryReport(
        QStringLiteral("Pages free: 1. Pages speculative: 2. Pages inactive: 2. Pages active: 4. "
                       "Pages wired down: 5."),
        stats);
    ReadMemoryReport(report, stats);
    QList<qlonglong> pages;
    for (const char *key : {"Free", "PureFree", "Inactive", "Active", "Wired", "Used"}) {
        pages << stats.value(QLatin1String(key)).toLongLong() / 4096;
    }
    QTEST(pages, "pages");
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
    row("nothing known", 0, 0, 0, 0, {});
    row("nothing free", 0, 4, 1, 1, {0, 1440, 1440, 2880});
    row("cut to whole sixteenths", 1, 6, 2, 2, {822, 1645, 1645, 1648});
    row("64-bit products", 1LL << 44, 1LL << 44, 0, 0, {2880, 0, 0, 2880});
    row("more than the whole", 10, 10, 20, 20, {2880, 5760, 5760, -8640});
    row("senseless, bounded", 1, 0, 1LL << 50, -(1LL << 50), {5760, 1 << 28, -(1 << 28), 0});
}

void TestFigures::slices()
{
    QFETCH(QVariantMap, stats);
    QList<int> spans;
    if (const auto slices = SlicesOf(stats)) {
        spans = {slices->nFree, slices->nInactive, slices->nActive, slices->WiredSpan()};
    }
    QTEST(spans, "spans");
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
