#include "compat/MemoryProblemText.h"
#include "compat/MemoryReport.h"
#include "compat/MemoryTable.h"
#include "tests/compat/RunProgram.h"
#include "tests/memfree/TemporaryTree.h"

#include <QRegularExpression>
#include <QTest>

#include <numeric>

namespace {

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Of a system whose proc/meminfo has this content, and nothing else.
MemoryProblem ReadFrom(const QByteArray &meminfo, MemoryFigures &figures)
{
    const TemporaryTree root;
    root.Write("proc/meminfo", meminfo);
    return ReadMemoryFigures(root.Path().c_str(), 4096, figures);
}

/// Pages free, active, inactive, wired down.
QList<quint64> Divided(const MemoryFigures &figures)
{
    return {figures[Free], figures[Active], figures[Inactive], figures[WiredDown]};
}

} // namespace

class TestMemoryReport : public QObject
{
    Q_OBJECT

private slots:
    void Report();
    void Division_data();
    void Division();
    void Refusal();
    void Table();
    void Program_data();
    void Program();
};

void TestMemoryReport::Report()
{
    // One was captured; the others have the lines of their kernels with figures made to be told apart.
    const QStringList kernels = QDir(FIXTURES "/memory").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!kernels.isEmpty());
    for (const QString &kernel : kernels) {
        const QString fixture = FIXTURES "/memory/" + kernel;
        MemoryFigures figures;
        const quint64 kernelPageBytes = kernel.contains("64k-pages") ? 65536 : 4096;
        QCOMPARE(ReadMemoryFigures(qPrintable(fixture), kernelPageBytes, figures).kind, MemoryProblem::None);
        ReportBuffer buffer;
        const QByteArray report = QByteArray::fromStdString(std::string(MemoryReport(figures, buffer)));
        QCOMPARE(report.split('\n'), Content(fixture + "/vm_stat.txt").split('\n'));
        const auto total = QRegularExpression("^MemTotal: +(\\d+)").match(Content(fixture + "/proc/meminfo"));
        const auto division = Divided(figures);
        QCOMPARE(std::accumulate(division.begin(), division.end(), quint64(0)),
                 total.captured(1).toULongLong() / 4);
    }
}

void TestMemoryReport::Division_data()
{
    QTest::addColumn<QByteArray>("meminfo");
    QTest::addColumn<QList<quint64>>("division");
    const QByteArray total = "MemTotal: 4000 kB\n";
    const QByteArray lists =
        "Active(anon): 400 kB\nInactive(anon): 80 kB\nActive(file): 200 kB\nInactive(file): 120 kB\n";
    const auto row = [](const char *name, const QByteArray &meminfo, const QList<quint64> &division) {
        QTest::newRow(name) << meminfo << division;
    };
    row("any order, no blanks", lists + "MemFree:1000\nMemTotal:4000", {250, 170, 30, 550});
    row("the first of two counts", total + "MemTotal: 8 kB\nMemFree: 400 kB\nMemFree: 4 kB\n",
        {100, 0, 0, 900});
    row("unevictable is wired", total + "MemFree: 1000 kB\nUnevictable: 3000 kB\n", {250, 0, 0, 750});
    row("lists not split", total + "MemFree: 1000 kB\nActive: 400 kB\nInactive: 200 kB\n",
        {250, 100, 50, 600});
    row("more anonymous than there is", total + "MemFree: 4 kB\nInactive: 20 kB\nInactive(anon): 80 kB\n",
        {1, 20, 0, 979});
    row("10 MB", total + "MemFree: 400 kB\n" + QByteArray(10'000'000, 'x'), {100, 0, 0, 900});
    row("more free than there is", total + "MemFree: 5000 kB\n" + lists, {1000, 0, 0, 0});
    row("lists sum to more", total + "MemFree: 3600 kB\n" + lists, {900, 70, 30, 0});
    row("64 bits", total + "MemFree: 4 kB\nActive: 18446744073709551615 kB\n", {1, 999, 0, 0});
    row("senseless numbers are missing",
        total + "MemFree: 4 kB\nActive: -8 kB\nInactive: 123456789012345678901\n", {1, 0, 0, 999});
    row("binary", total + QByteArray("\0\xff:\0\x01\n:\n\n::::\n", 14) + "MemFree: 4 kB\n", {1, 0, 0, 999});
}

void TestMemoryReport::Division()
{
    QFETCH(const QByteArray, meminfo);
    MemoryFigures figures;
    QCOMPARE(ReadFrom(meminfo, figures).kind, MemoryProblem::None);
    QTEST(Divided(figures), "division");
}

void TestMemoryReport::Refusal()
{
    const QMap<QByteArray, QByteArray> errors = {
        {"", "does not say MemTotal"},
        {"MemTotal: 4000 kB\n", "does not say MemFree"},
        {"MemTotal: -4000 kB\nMemFree: 4 kB\n", "does not say MemTotal"},
        {"MemTotal: 0 kB\nMemFree: 0 kB\n", "senseless MemTotal: 0 kB"},
        {"MemTotal: 18446744073709551615 kB\nMemFree: 0 kB\n", "senseless MemTotal"},
    };
    MemoryFigures figures;
    for (auto it = errors.begin(); it != errors.end(); ++it) {
        const std::string told = MemoryProblemText(ReadFrom(it.key(), figures));
        QVERIFY2(QByteArray::fromStdString(told).contains(it.value()), told.c_str());
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
    const Outcome outcome = RunProgram(VM_STAT, arguments);
    QTEST(outcome.status, "status");
    QTEST(int(outcome.output.count('\n')), "nLines");
    QTEST(outcome.errors, "errors");
}

QTEST_GUILESS_MAIN(TestMemoryReport)
#include "TestMemoryReport.moc"
