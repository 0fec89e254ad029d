// Samples through the application's own script runner, as fast as they go.
//   bench_runner COUNT
// One line: median microseconds of a sample with all that follows it, resident KiB and open descriptors after
// a tenth of the samples and after all of them.

#include "platform/Global.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

struct State
{
    qlonglong residentKiB = 0;
    qlonglong nDescriptors = 0;
};

State StateNow()
{
    QFile status(QStringLiteral("/proc/self/status"));
    State state;
    if (status.open(QIODevice::ReadOnly)) {
        const QByteArray text = status.readAll();
        const qsizetype start = text.indexOf("VmRSS:") + 6;
        state.residentKiB = text.mid(start, text.indexOf("kB", start) - start).trimmed().toLongLong();
    }
    state.nDescriptors =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
    return state;
}

} // namespace

int main(int argc, char **argv)
{
    // As in the application: the object of an interpreter that is still ending says so when it is deleted.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QCoreApplication app(argc, argv);
    const int nSamples = argc > 1 ? std::max(10, std::atoi(argv[1])) : 300;
    // Touched now: what the measuring costs must not look like growth.
    std::vector<qint64> nanoseconds(static_cast<size_t>(nSamples), 1);
    (void)StateNow(); // the first look costs memory of its own
    State early;
    for (int i = 0; i < nSamples; ++i) {
        QElapsedTimer timer;
        timer.start();
        Global::RunAppleScript(QStringLiteral("do shell script \"vm_stat\""), &app, true);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        nanoseconds[static_cast<size_t>(i)] = timer.nsecsElapsed();
        if (i + 1 == nSamples / 10) {
            early = StateNow();
        }
    }
    const State late = StateNow();
    std::nth_element(nanoseconds.begin(), nanoseconds.begin() + nSamples / 2, nanoseconds.end());
    std::printf("%.1f %lld %lld %lld %lld\n",
                static_cast<double>(nanoseconds[static_cast<size_t>(nSamples) / 2]) / 1000, early.residentKiB,
                late.residentKiB, early.nDescriptors, late.nDescriptors);
}
