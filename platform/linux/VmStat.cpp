#include "platform/linux/VmStat.h"

#include "platform/linux/FindField.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace {

constexpr int msTimeout = 10000;
constexpr qint64 maxOutputBytes = 1 << 20;
constexpr std::uint64_t KiBPerPage = 4;
/// A larger total is a broken file: 2^40 KiB is one PiB.
constexpr std::uint64_t maxTotalKiB = std::uint64_t{1} << 40;

/// Runs a program by /bin/sh: its standard output, or nothing if it fails, writes too much or takes too long.
QByteArray ShellOutput(const QString &program)
{
    QProcess shell;
    shell.setStandardInputFile(QProcess::nullDevice());
    shell.setStandardErrorFile(QProcess::nullDevice());
    // A process group of its own, so that everything the command started can be killed.
    shell.setChildProcessModifier([] { ::setpgid(0, 0); });
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("exec \"$0\""), program});
    const QDeadlineTimer deadline(msTimeout);
    while (shell.state() != QProcess::NotRunning && !deadline.hasExpired() &&
           shell.bytesAvailable() < maxOutputBytes) {
        shell.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    if (shell.state() != QProcess::NotRunning) {
        ::kill(-static_cast<pid_t>(shell.processId()), SIGKILL);
        shell.waitForFinished(1000);
        return QByteArray();
    }
    const bool bDone = shell.exitStatus() == QProcess::NormalExit && shell.exitCode() == 0;
    return bDone ? shell.readAll() : QByteArray();
}

} // namespace

QString VmStat()
{
    // Searched for once: a dead network directory in PATH must not block every sample.
    static const QString installed = QStandardPaths::findExecutable(QStringLiteral("vm_stat"));
    if (!installed.isEmpty() && QFileInfo(installed).isExecutable()) {
        return QString::fromLatin1(ShellOutput(installed).replace('\n', '\r').constData());
    }
    QFile file(QStringLiteral("/proc/meminfo"));
    const QByteArray meminfo = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return VmStatReport({meminfo.constData(), static_cast<std::size_t>(meminfo.size())});
}

QString VmStatReport(std::string_view meminfo)
{
    const auto total = FindField(meminfo, "MemTotal");
    const auto free = FindField(meminfo, "MemFree");
    if (!total || !free || *total < KiBPerPage || *total > maxTotalKiB) {
        return QString();
    }
    const auto pages = [meminfo](std::string_view name) {
        return FindField(meminfo, name).value_or(0) / KiBPerPage;
    };
    // Inactive is what can be given back, and only cache can: since kernel 5.9 the whole Inactive line holds
    // every program's fresh memory too. Without split lists, as before kernel 2.6.28, there is no better.
    const std::uint64_t inactiveAnon = pages("Inactive(anon)");
    const bool bSplit = FindField(meminfo, "Inactive(file)").has_value();
    const std::uint64_t inactive =
        bSplit ? pages("Inactive(file)") : pages("Inactive") - std::min(inactiveAnon, pages("Inactive"));
    const std::uint64_t active = bSplit ? pages("Active(anon)") + pages("Active(file)") : pages("Active");

    // The kernel does not take its counts at one moment, so they may add up to more than there is. Each takes
    // what the ones before it leave, and the rest is wired.
    std::uint64_t rest = *total / KiBPerPage;
    const auto take = [&rest](std::uint64_t count) {
        const std::uint64_t taken = std::min(count, rest);
        rest -= taken;
        return static_cast<unsigned long long>(taken);
    };
    const auto freePages = take(*free / KiBPerPage);
    const auto inactivePages = take(inactive);
    const auto activePages = take(active) + take(inactiveAnon);
    const auto wiredPages = take(rest);

    QString report = QStringLiteral("Mach Virtual Memory Statistics: (page size of 4096 bytes)\r");
    const std::pair<const char *, unsigned long long> lines[] = {{"Pages free:", freePages},
                                                                 {"Pages active:", activePages},
                                                                 {"Pages inactive:", inactivePages},
                                                                 {"Pages speculative:", 0},
                                                                 {"Pages wired down:", wiredPages}};
    for (const auto &[label, count] : lines) {
        report += QString::asprintf("%-30s%17llu.\r", label, count);
    }
    return report.chopped(1);
}
