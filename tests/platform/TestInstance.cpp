// One running copy per user, with real processes.

#include "tests/support/FailOnWarnings.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <memory>
#include <vector>

#include <sys/stat.h>

// Under load and sanitizers fifty starts take a while; a copy gives up long after that.
static const QString msGenerous = QStringLiteral("60000");

class TestInstance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FailOnWarnings(); }
    void init();
    void fiftyAtOnce();
    void hungCopy();
    void helperThatOutlivesItsCopy();
    void runtimeDirectories_data();
    void runtimeDirectories();

private:
    using Copy = std::unique_ptr<QProcess>;

    Copy Start(const QStringList &arguments) const
    {
        auto copy = std::make_unique<QProcess>();
        copy->setProcessEnvironment(environment);
        copy->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        copy->start(QStringLiteral(INSTANCE_PEER), arguments);
        return copy;
    }
    /// The running copy: ready for messages, killed with its object.
    Copy StartRunning(const QStringList &arguments = {}) const
    {
        Copy copy = Start(QStringList{QStringLiteral("first"), msGenerous} + arguments);
        return Said(copy) == "running" ? std::move(copy) : nullptr;
    }
    /// The next thing that a running copy says; empty if it says nothing.
    static QByteArray Said(const Copy &copy)
    {
        return copy->canReadLine() || copy->waitForReadyRead() ? copy->readLine().trimmed() : QByteArray();
    }
    /// The exit status of another copy.
    int HandOver(const QString &message, const QString &msTimeout = msGenerous) const
    {
        const Copy copy = Start({message, msTimeout});
        return copy->waitForFinished(60000) ? copy->exitCode() : -1;
    }

    std::unique_ptr<QTemporaryDir> directory;
    QProcessEnvironment environment;
};

void TestInstance::init()
{
    directory = std::make_unique<QTemporaryDir>();
    environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory->path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
}

void TestInstance::fiftyAtOnce()
{
    constexpr int nCopies = 50;
    // The second round starts from what a killed copy leaves behind: its lock file and its socket.
    for (int nRound = 0; nRound < 2; ++nRound) {
        std::vector<Copy> copies;
        QSet<QByteArray> unsent;
        for (int i = 0; i < nCopies; ++i) {
            unsent << "copy " + QByteArray::number(i);
            copies.push_back(Start({QStringLiteral("copy %1").arg(i), msGenerous}));
        }
        const auto running = [&] {
            return std::count_if(copies.begin(), copies.end(),
                                 [](const Copy &copy) { return copy->state() != QProcess::NotRunning; });
        };
        QTRY_COMPARE_WITH_TIMEOUT(running(), 1, 60000);

        QByteArray said;
        for (const Copy &copy : copies) {
            if (copy->state() == QProcess::NotRunning) {
                QCOMPARE(copy->exitStatus(), QProcess::NormalExit);
                QCOMPARE(copy->exitCode(), 0);
                QCOMPARE(copy->readAll(), QByteArray());
            } else {
                said = copy->readAll();
                copy->kill();
            }
        }
        QList<QByteArray> lines = said.trimmed().split('\n');
        QCOMPARE(lines.takeFirst(), QByteArray("running"));
        QCOMPARE(lines.size(), nCopies - 1);
        QCOMPARE((unsent - QSet<QByteArray>(lines.begin(), lines.end())).size(), 1);
    }
}

void TestInstance::hungCopy()
{
    const Copy running = StartRunning();
    QVERIFY(running);
    const auto pid = static_cast<pid_t>(running->processId());
    QCOMPARE(kill(pid, SIGSTOP), 0);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(HandOver(QStringLiteral("unheard"), QStringLiteral("800")), 1);
    QCOMPARE_GE(clock.elapsed(), 800);
    QCOMPARE_LT(clock.elapsed(), 5000);

    QCOMPARE(kill(pid, SIGCONT), 0);
    QCOMPARE(HandOver(QStringLiteral("heard")), 0);
    QCOMPARE(Said(running), QByteArray("unheard"));
    QCOMPARE(Said(running), QByteArray("heard"));
}

void TestInstance::helperThatOutlivesItsCopy()
{
    const Copy first = StartRunning({QStringLiteral("sleep"), QStringLiteral("20")});
    QVERIFY(first);
    first->kill();
    QVERIFY(first->waitForFinished());
    QVERIFY(StartRunning());
}

void TestInstance::runtimeDirectories_data()
{
    QTest::addColumn<QString>("runtimeDirectory");
    QTest::addColumn<int>("nMode");
    QTest::newRow("a socket's address cannot reach it") << QString(180, QLatin1Char('d')) << 0700;
    QTest::newRow("not there yet") << QStringLiteral("new") << -1;
    QTest::newRow("not there, nor its parent") << QStringLiteral("a/b") << -1;
    QTest::newRow("open to others") << QStringLiteral("open") << 0777;
    QTest::newRow("other characters") << QStringLiteral(u"\u00fc \u20ac%1") << 0700;
}

void TestInstance::runtimeDirectories()
{
    QFETCH(QString, runtimeDirectory);
    QFETCH(int, nMode);
    const QString path = directory->filePath(runtimeDirectory);
    if (nMode >= 0) {
        QCOMPARE(mkdir(QFile::encodeName(path).constData(), static_cast<mode_t>(nMode)), 0);
    }
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), path);
    environment.insert(QStringLiteral("TMPDIR"), directory->path());
    const Copy running = StartRunning();
    QVERIFY(running);
    QCOMPARE(HandOver(QStringLiteral("message")), 0);
    QCOMPARE(Said(running), QByteArray("message"));
}

QTEST_GUILESS_MAIN(TestInstance)
#include "TestInstance.moc"
