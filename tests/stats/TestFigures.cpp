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
    void init()
    {
        FailOnWarnings();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void sizes()
    {
        QCOMPARE(FormatSizeString(-5), "-5 bytes");
        QCOMPARE(FormatSizeString(1023), "1,023 bytes");
        QCOMPARE(FormatSizeString(1024), "1 KB");
        QCOMPARE(FormatSizeString(1048575), "1,023 KB"); // cut off
        QCOMPARE(FormatSizeString(1048576), "1.0 MB");
        QCOMPARE(FormatSizeString(1073741823), "1,024.0 MB"); // rounded, past its unit
        QCOMPARE(FormatSizeString(1073741824), "1.00 GB");
        QCOMPARE(FormatSizeString(1099511627776), "1.000 TB");
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(FormatSizeString(1610612736), "1,50 GB");
        QCOMPARE(FormatSizeString(1047552), "1.023 KB");
    }

    void reports()
    {
        QVariantMap stats;
        const auto pages = [&stats](const QString &report) {
            ReadMemoryReport(report, stats);
            QList<qlonglong> counts;
            for (const char *key : {"Free", "PureFree", "Inactive", "Active", "Wired", "Used"}) {
                counts << stats.value(QLatin1String(key)).toLongLong() / 4096;
            }
            return counts;
        };
        // Line ends are those of AppleScript.
        const QString usual = QStringLiteral("Mach Virtual Memory Statistics: (page size of 4096 bytes)\r"
                                             "Pages free:                                1000.\r"
                                             "Pages active:                                30.\r"
                                             "Pages inactive:                              20.\r"
                                             "Pages speculative:                           24.\r"
                                             "Pages wired down:                             7.\r"
                                             "\"Translation faults\":                 123456.\r");
        QCOMPARE(pages(usual), QList<qlonglong>({1024, 1000, 20, 30, 7, 57}));
        // Missing lines keep their figures.
        QCOMPARE(pages("Pages inactive: 9."), QList<qlonglong>({1024, 1024, 9, 30, 7, 46}));
        QCOMPARE(pages("Pages active: 9223372036854775807."), QList<qlonglong>({1024, 1024, 9, -1, 7, 15}));
    }

    void slices()
    {
        // Of free, used, inactive and active memory: free, inactive, active, wired.
        const auto spans = [](qlonglong nFree, qlonglong nUsed, qlonglong nInactive, qlonglong nActive) {
            const auto pie = SlicesOf({{QStringLiteral("Free"), nFree},
                                       {QStringLiteral("Used"), nUsed},
                                       {QStringLiteral("Inactive"), nInactive},
                                       {QStringLiteral("Active"), nActive}});
            return pie ? QList<int>{pie->nFree, pie->nInactive, pie->nActive, pie->WiredSpan()}
                       : QList<int>();
        };
        QCOMPARE(spans(0, 0, 0, 0), QList<int>());
        QCOMPARE(spans(0, 4, 1, 1), QList<int>({0, 1440, 1440, 2880}));
        QCOMPARE(spans(1, 6, 2, 2), QList<int>({822, 1645, 1645, 1648})); // cut to whole sixteenths
        QCOMPARE(spans(1LL << 44, 1LL << 44, 0, 0), QList<int>({2880, 0, 0, 2880}));
        // Senseless.
        QCOMPARE(spans(10, 10, 20, 20), QList<int>({2880, 5760, 5760, -8640}));
        QCOMPARE(spans(1, 0, 1LL << 50, -(1LL << 50)), QList<int>({5760, 1 << 28, -(1 << 28), 0}));
    }

    void lookAlikes()
    {
        const PieSlices pie{1000, 1000, 1000};
        QVERIFY(pie.LooksLike({1005, 1000, 995}));
        QVERIFY(pie.LooksLike({995, 1010, 990}));
        QVERIFY(!pie.LooksLike({1006, 994, 1000}));
        QVERIFY(!pie.LooksLike({1000, 994, 1006}));
        QVERIFY(!pie.LooksLike({1002, 1002, 1002}));
    }
};

QTEST_GUILESS_MAIN(TestFigures)
#include "TestFigures.moc"
