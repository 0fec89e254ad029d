#include "compat/MemoryProblemText.h"
#include "compat/MemoryReport.h"
#include "compat/MemoryTable.h"
#include "tests/compat/RunProgram.h"
#include "tests/memfree/TemporaryTree.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

quint64 Sum(const MemoryFigures &figures)
{
    return figures[Free] + figures[Active] + figures[Inactive] + figures[WiredDown];
}

/// Of a system whose proc/meminfo has this content, and nothing else.
MemoryProblem ReadFrom(const QByteArray &meminfo, MemoryFigures &figures)
{
    const TemporaryTree root;
    root.Write("proc/meminfo", meminfo);
    return ReadMemoryFigures(root.Path().c_str(), 4096, figures);
}

} // namespace

class TestMemoryReport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(".*")); }
    void Report_data();
    void Report();
    void Division_data();
    void Division();
    void Refusal_data();
    void Refusal();
    void Table();
    void Program_data();
    void Program();
};

void TestMemoryReport::Report_data()
{
    // The first was captured; the others have the lines of their kernels with figures made to be told apart.
    QTest::addColumn<quint64>("kernelPageBytes");
    QTest::newRow("linux-6.18") << quint64(4096);
    QTest::newRow("linux-6.1-swap") << quint64(4096);
    QTest::newRow("linux-6.1-64k-pages") << quint64(65536);
    QTest::newRow("linux-3.10") << quint64(4096);
    QTest::newRow("linux-2.6.18") << quint64(4096);
    QTest::newRow("container") << quint64(4096);
}

void TestMemoryReport::Report()
{
    QFETCH(const quint64, kernelPageBytes);
    const QString fixture = QStringLiteral(FIXTURES "/memory/") + QTest::currentDataTag();

    MemoryFigures figures;
    QCOMPARE(ReadMemoryFigures(qPrintable(fixture), kernelPageBytes, figures).kind, MemoryProblem::None);

    ReportBuffer buffer;
    const QByteArray report = QByteArray::fromStdString(std::string(MemoryReport(figures, buffer)));
    const QByteArray expected = Content(fixture + "/vm_stat.txt");
    QCOMPARE(report.split('\n'), expected.split('\n'));
    const auto total = QRegularExpression("^MemTotal: +(\\d+)").match(Content(fixture + "/proc/meminfo"));
    QCOMPARE(Sum(figures), total.captured(1).toULongLong() / 4);
}

void TestMemoryReport::Division_data()
{
    using Division = QList<quint64>;
    QTest::addColumn<QByteArray>("meminfo");
    QTest::addColumn<Division>("division"); // pages free, active, inactive, wired down

    const QByteArray total = "MemTotal: 4000 kB\n";
    const QByteArray lists =
        "Active(anon): 400 kB\nInactive(anon): 80 kB\nActive(file): 200 kB\nInactive(file): 120 kB\n";
    QTest::newRow("as usual") << total + "MemFree: 1000 kB\n" + lists << Division{250, 170, 30, 550};
    QTest::newRow("any order, no blanks")
        << lists + "MemFree:1000\nMemTotal:4000" << Division{250, 170, 30, 550};
    QTest::newRow("the first of two counts") << total + "MemTotal: 8 kB\nMemFree: 400 kB\nMemFree: 4 kB\n"
                                             << Division{100, 0, 0, 900};
    QTest::newRow("unevictable is wired") << total + "MemFree: 1000 kB\nUnevictable: 3000 kB\n"
                                          << Division{250, 0, 0, 750};

    QTest::newRow("lists not split") << total + "MemFree: 1000 kB\nActive: 400 kB\nInactive: 200 kB\n"
                                     << Division{250, 100, 50, 600};
    QTest::newRow("more anonymous than there is")
        << total + "MemFree: 1000 kB\nInactive: 20 kB\nInactive(anon): 80 kB\n"
        << Division{250, 20, 0, 730};

    QTest::newRow("more free than there is")
        << total + "MemFree: 5000 kB\n" + lists << Division{1000, 0, 0, 0};
    QTest::newRow("lists sum to more") << total + "MemFree: 3600 kB\n" + lists << Division{900, 70, 30, 0};
    QTest::newRow("64 bits") << total + "MemFree: 4 kB\nActive: 18446744073709551615 kB\n"
                             << Division{1, 999, 0, 0};
    QTest::newRow("senseless numbers are missing")
        << total +
               "MemFree: 400 kB\nActive: -8 kB\nInactive: 123456789012345678901234567890 kB\nActive(file):\n"
        << Division{100, 0, 0, 900};
    QTest::newRow("binary") << total + QByteArray("\0\xff:\0\x01\n:\n\n::::\n", 14) + "MemFree: 4 kB\n"
                            << Division{1, 0, 0, 999};
    QTest::newRow("10 MB") << total + "MemFree: 400 kB\n" + QByteArray(10'000'000, 'x')
                           << Division{100, 0, 0, 900};
}

void TestMemoryReport::Division()
{
    QFETCH(const QByteArray, meminfo);
    QFETCH(const QList<quint64>, division);

    MemoryFigures figures;
    QCOMPARE(ReadFrom(meminfo, figures).kind, MemoryProblem::None);
    QCOMPARE((QList<quint64>{figures[Free], figures[Active], figures[Inactive], figures[WiredDown]}),
             division);
}

void TestMemoryReport::Refusal_data()
{
    QTest::addColumn<QByteArray>("meminfo");
    QTest::addColumn<QString>("error");
    QTest::newRow("empty") << QByteArray() << "does not say MemTotal";
    QTest::newRow("no free") << QByteArray("MemTotal: 4000 kB\n") << "does not say MemFree";
    QTest::newRow("negative") << QByteArray("MemTotal: -4000 kB\nMemFree: 4 kB\n") << "does not say MemTotal";
    QTest::newRow("nothing") << QByteArray("MemTotal: 0 kB\nMemFree: 0 kB\n") << "senseless MemTotal: 0 kB";
    QTest::newRow("64 bits") << QByteArray("MemTotal: 18446744073709551615 kB\nMemFree: 0 kB\n")
                             << "senseless MemTotal";
}

void TestMemoryReport::Refusal()
{
    QFETCH(const QByteArray, meminfo);
    QFETCH(const QString, error);
    MemoryFigures figures;
    const std::string told = MemoryProblemText(ReadFrom(meminfo, figures));
    QVERIFY2(QString::fromStdString(told).contains(error), told.c_str());

    const MemoryProblem unreadable = ReadMemoryFigures("/nonexistent", 4096, figures);
    QCOMPARE(MemoryProblemText(unreadable), "cannot read /proc/meminfo: No such file or directory");
}

void TestMemoryReport::Table()
{
    MemoryFigures before = {};
    before.fill(100);
    MemoryFigures now = {};
    now.fill(105);
    now[Free] = 123'456'789;             // 9 digits in 8 columns
    now[Active] = 1'234'567'890'123'456; // G
    now[Pageins] = 7;                    // a counter that fell
    const QByteArray header = QByteArray::fromStdString(MemoryTableHeader()).split('\n')[1];
    const QByteArray later = QByteArray::fromStdString(MemoryTableLine(now, before));
    QCOMPARE(later.simplified(),
             "123456K 1234567G 105 105 105 105 105 5 5 5 5 5 105 105 105 105 5 5 0 5 5 5");
    QCOMPARE(later.size(), header.size() + 1);
}

void TestMemoryReport::Program_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("nLines"); // of output
    QTest::addColumn<QByteArray>("errors");
    const auto row = [](const QStringList &arguments, int status, int nLines, const QByteArray &errors = {}) {
        QTest::newRow(qPrintable("'" + arguments.join(' ') + "'")) << arguments << status << nLines << errors;
    };
    row({}, 0, 23);
    row({"-c", "2", "0.01"}, 0, 4);
    row({"0"}, 2, 0, "vm_stat: not an interval in seconds: \"0\"\n");
    row({"nan"}, 2, 0, "vm_stat: not an interval in seconds: \"nan\"\n");
    row({"-c", "0", "1"}, 2, 0, "vm_stat: not a count: \"0\"\n");
    row({"-c", "2"}, 2, 0, "vm_stat: -c needs an interval\n");
}

void TestMemoryReport::Program()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const int, nLines);
    QFETCH(const QByteArray, errors);
    const Outcome outcome = RunProgram(VM_STAT, arguments);
    QCOMPARE(outcome.status, status);
    QCOMPARE(outcome.output.count('\n'), nLines);
    QCOMPARE(outcome.errors, errors);
}

QTEST_GUILESS_MAIN(TestMemoryReport)
#include "TestMemoryReport.moc"
