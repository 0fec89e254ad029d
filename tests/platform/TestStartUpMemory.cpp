#include "platform/StartUpMemory.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>

namespace {

/// What this process has in memory of files, in KiB.
int FilesKiB()
{
    QFile status("/proc/self/status");
    static const QRegularExpression line("RssFile:\\s+(\\d+) kB");
    return status.open(QIODevice::ReadOnly) ? line.match(status.readAll()).captured(1).toInt() : 0;
}

} // namespace

class TestStartUpMemory : public QObject
{
    Q_OBJECT

private slots:
    void CodeGoesAndComesBack()
    {
        const QString before = QLocale(QLocale::German).toString(1234.5);
        const int nBefore = FilesKiB();
        ReleaseStartUpCode();
        const int nAfter = FilesKiB();
        QVERIFY2(nAfter < nBefore - 1024, qPrintable(QString("%1 -> %2 KiB").arg(nBefore).arg(nAfter)));
        // What was written to at the start, tables of addresses above all, is as it was.
        QCOMPARE(QLocale(QLocale::German).toString(1234.5), before);
    }
};

QTEST_GUILESS_MAIN(TestStartUpMemory)
#include "TestStartUpMemory.moc"
