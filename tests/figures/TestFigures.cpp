// From a report's text to figures, and from figures to their texts and slices. Senseless reports and
// the status icon's pies are in tests/e2e.

#include "figures/FormatSizeString.h"
#include "figures/MemoryReport.h"
#include "figures/PieSlices.h"
#include "tests/support/FailOnWarnings.h"

#include <QLocale>

class TestFigures : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

    void sizes()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(FormatSizeString(-5), "-5 bytes");
        QCOMPARE(FormatSizeString(1023), "1,023 bytes");
        QCOMPARE(FormatSizeString(1048575), "1,023 KB");      // cut off
        QCOMPARE(FormatSizeString(1073741823), "1,024.0 MB"); // rounded, past its unit
        QCOMPARE(FormatSizeString(1099511627776), "1.000 TB");
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(FormatSizeString(1610612736), "1,50 GB");
    }

    void reports()
    {
        QVariantMap stats;
        const auto pages = [&stats](const QString &report) {
            ReadMemoryReport(report, stats);
            QList<qlonglong> counts;
            for (const char *key : {"Free", "PureFree", "Inactive", "Active", "Wired", "Used"}) {
                counts << stats.value(key).toLongLong() / 4096;
            }
            return counts;
        };
        // Line ends are those of AppleScript.
        QCOMPARE(pages("Pages free: 1000.\rPages active: 30.\rPages inactive: 20.\rPages speculative: 24.\r"
                       "Pages wired down: 7.\r\"Translation faults\": 123456."),
                 QList<qlonglong>({1024, 1000, 20, 30, 7, 57}));
        // Missing lines keep their figures.
        QCOMPARE(pages("Pages inactive: 9."), QList<qlonglong>({1024, 1024, 9, 30, 7, 46}));
        QCOMPARE(pages("Pages active: 9223372036854775807."), QList<qlonglong>({1024, 1024, 9, -1, 7, 15}));
    }

    void slices()
    {
        // Of free, used, inactive and active memory: free, inactive, active, wired.
        const auto spans = [](qlonglong free, qlonglong used, qlonglong inactive, qlonglong active) {
            const auto pie =
                SlicesOf({{"Free", free}, {"Used", used}, {"Inactive", inactive}, {"Active", active}});
            return pie ? QList{pie->freeSpan, pie->inactiveSpan, pie->activeSpan, pie->WiredSpan()}
                       : QList<int>();
        };
        QCOMPARE(spans(0, 0, 0, 0), QList<int>());
        QCOMPARE(spans(1, 6, 2, 2), QList({822, 1645, 1645, 1648})); // cut to whole sixteenths
        QCOMPARE(spans(1LL << 44, 1LL << 44, 0, 0), QList({2880, 0, 0, 2880}));
        // Senseless.
        QCOMPARE(spans(10, 10, 20, 20), QList({2880, 5760, 5760, -8640}));
        QCOMPARE(spans(1, 0, 1LL << 50, -(1LL << 50)), QList({5760, 1 << 28, -(1 << 28), 0}));
    }
};

QTEST_MAIN(TestFigures)
#include "TestFigures.moc"
