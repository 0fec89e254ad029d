#include "compat/MemoryProblemText.h"
#include "compat/MemoryReport.h"
#include "compat/MemoryTable.h"
#include "tests/compat/RunProgram.h"
#include "tests/memfree/TemporaryTree.h"

#include <QTest>

/// Of a system whose proc/meminfo has this content, and nothing else.
static MemoryProblem ReadFrom(const QByteArray &meminfo, MemoryFigures &figures)
{
    const TemporaryTree root;
    root.Write("proc/meminfo", meminfo);
    return ReadMemoryFigures(root.Path().c_str(), 4096, figures);
}

class TestMemoryReport : public QObject
{
    Q_OBJECT

private slots:
    void Report();
    void Division();
    void Refusal();
    void Table();
    void Program();
};

void TestMemoryReport::Report()
{
    // One was captured; the others have the lines of their kernels with figures made to be told apart.
    const QStringList kernels = QDir(FIXTURES "/memory").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!kernels.isEmpty());
    for (const QString &kernel : kernels) {
        const QString fixture = FIXTURES "/memory/" + kernel;
        QFile expected(fixture + "/vm_stat.txt");
        QVERIFY(expected.open(QIODevice::ReadOnly));
        MemoryFigures figures;
        const quint64 kernelPageBytes = kernel.contains("64k-pages") ? 65536 : 4096;
        QVERIFY(!ReadMemoryFigures(qPrintable(fixture), kernelPageBytes, figures));
        ReportBuffer buffer;
        const std::string_view report = MemoryReport(figures, buffer);
        QCOMPARE(QByteArray(report.data(), qsizetype(report.size())).split('\n'),
                 expected.readAll().split('\n'));
    }
}

void TestMemoryReport::Division()
{
    const QByteArray total = "MemTotal: 4000 kB\n";
    const QByteArray lists =
        "Active(anon): 400\nInactive(anon): 80\nActive(file): 200\nInactive(file): 120\n";
    // Pages free, active, inactive, wired down.
    const std::pair<QByteArray, QList<quint64>> divisions[] = {
        {lists + "MemFree:1000\nMemTotal:4000", {250, 170, 30, 550}},
        {total + "MemTotal: 8 kB\nMemFree: 400 kB\nMemFree: 4 kB\n", {100, 0, 0, 900}},
        {total + "MemFree: 4 kB\nInactive: 20 kB\nInactive(anon): 80 kB\n", {1, 20, 0, 979}},
        {total + "MemFree: 404 kB\n" + QByteArray(10'000'000, 'x'), {101, 0, 0, 899}},
        {total + "MemFree: 3600 kB\n" + lists, {900, 70, 30, 0}},
        {total + "MemFree: 5000 kB\nActive: 18446744073709551615 kB\n", {1000, 0, 0, 0}},
        {total + "MemFree: 8 kB\nActive: -8 kB\nInactive: 123456789012345678901\n:\n", {2, 0, 0, 998}},
    };
    for (const auto &[meminfo, division] : divisions) {
        MemoryFigures figures;
        QVERIFY(!ReadFrom(meminfo, figures));
        QCOMPARE((QList<quint64>{figures[Free], figures[Active], figures[Inactive], figures[WiredDown]}),
                 division);
    }
}

void TestMemoryReport::Refusal()
{
    const std::pair<QByteArray, QByteArray> errors[] = {
        {"MemTotal: -4000 kB\nMemFree: 4 kB\n", "does not say MemTotal"},
        {"MemTotal: 4000 kB\n", "does not say MemFree"},
        {"MemTotal: 0 kB\nMemFree: 0 kB\n", "senseless MemTotal: 0 kB"},
        {"MemTotal: 18446744073709551615 kB\nMemFree: 0 kB\n", "senseless MemTotal"},
    };
    MemoryFigures figures;
    for (const auto &[meminfo, error] : errors) {
        const std::string told = MemoryProblemText(ReadFrom(meminfo, figures));
        QVERIFY2(QByteArray::fromStdString(told).contains(error), told.c_str());
    }
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
    now[Speculative] = 6;                // stands before the inactive ones
    now[Pageins] = 7;                    // a counter that fell
    const QByteArray header = QByteArray::fromStdString(MemoryTableHeader()).split('\n')[1];
    const QByteArray later = QByteArray::fromStdString(MemoryTableLine(now, before));
    QCOMPARE(later.simplified(), "123456K 1234567G 6 105 105 105 105 5 5 5 5 5 105 105 105 105 5 5 0 5 5 5");
    QCOMPARE(later.size(), header.size() + 1);
}

void TestMemoryReport::Program()
{
    QCOMPARE(RunProgram(VM_STAT, {}).output.count('\n'), 23);
    QCOMPARE(RunProgram(VM_STAT, {"-c", "2", "0.01"}).output.count('\n'), 4);
    const std::pair<QStringList, QByteArray> errors[] = {
        {{"0"}, "vm_stat: not an interval in seconds: \"0\"\n"},
        {{"nan"}, "vm_stat: not an interval in seconds: \"nan\"\n"},
        {{"-c", "0", "1"}, "vm_stat: not a count: \"0\"\n"},
        {{"-c", "2"}, "vm_stat: -c needs an interval\n"},
    };
    for (const auto &[arguments, error] : errors) {
        QCOMPARE(RunProgram(VM_STAT, arguments), (Outcome{2, "", error}));
    }
}

QTEST_GUILESS_MAIN(TestMemoryReport)
#include "TestMemoryReport.moc"
