// Samples as fast as they go, by the application itself with its icon in the tray.
//   bench_samples COUNT
// One line: median microseconds of a sample with all that follows it, then anonymous KiB and open descriptors
// after a tenth of the samples and after all of them.

#include "app/MyApp.h"
#include "mainwindow/MainDialog.h"
#include "platform/linux/FindField.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QSystemTrayIcon>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

void Rest(int msTime)
{
    QEventLoop loop;
    QTimer::singleShot(msTime, &loop, &QEventLoop::quit);
    loop.exec();
}

struct State
{
    std::uint64_t anonymousKiB;
    uint descriptors;
};

/// Once everything that is on its way to the tray has left.
State RestingState()
{
    Rest(1000);
    QFile memory(QStringLiteral("/proc/self/smaps_rollup"));
    const QByteArray text = memory.open(QIODevice::ReadOnly) ? memory.readAll() : QByteArray();
    return {FindField(text.constData(), "Anonymous").value_or(0),
            static_cast<uint>(QDir(QStringLiteral("/proc/self/fd")).count())};
}

/// Takes a hundredth of the memory, or gives it back: enough for another icon.
void MoveFigures()
{
    static const auto size = static_cast<size_t>(sysconf(_SC_PHYS_PAGES) * sysconf(_SC_PAGESIZE) / 100);
    static void *block = MAP_FAILED;
    if (block == MAP_FAILED) {
        block =
            mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
    } else {
        munmap(std::exchange(block, MAP_FAILED), size);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const size_t count = argc > 1 ? std::max(10UL, std::strtoul(argv[1], nullptr, 10)) : 1000;
    MyApp app(argc, argv);
    app.InitializeWidgets();
    Rest(5000); // the icon comes into the tray, and what only the start needs goes
    MainDialog *window = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        window = window ? window : qobject_cast<MainDialog *>(widget);
    }
    if (!window || !app.findChild<QSystemTrayIcon *>()) {
        std::fputs("bench_samples: no icon in a tray\n", stderr);
        return 1;
    }

    // Touched now: what the measuring costs must not look like growth.
    std::vector<qint64> nanoseconds(count, 1);
    State early = RestingState();
    for (size_t i = 0; i < count; ++i) {
        if (i % 100 == 50) {
            MoveFigures();
        }
        QElapsedTimer timer;
        timer.start();
        window->UpdateStats();
        QCoreApplication::processEvents();
        nanoseconds[i] = timer.nsecsElapsed();
        if (i + 1 == count / 10) {
            early = RestingState();
        }
    }
    const State late = RestingState();
    const auto middle = nanoseconds.begin() + static_cast<std::ptrdiff_t>(count / 2);
    std::nth_element(nanoseconds.begin(), middle, nanoseconds.end());
    std::printf("%.1f %lu %lu %u %u\n", static_cast<double>(*middle) / 1000,
                static_cast<unsigned long>(early.anonymousKiB), static_cast<unsigned long>(late.anonymousKiB),
                early.descriptors, late.descriptors);
    // Without a quit the icon would outlive the application.
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return QApplication::exec();
}
