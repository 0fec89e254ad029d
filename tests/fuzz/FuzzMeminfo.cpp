// /proc/meminfo to the report: whatever it holds, the figures add up to its total.

#include "figures/MemoryReport.h"
#include "platform/linux/FindField.h"
#include "platform/linux/VmStat.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view meminfo(reinterpret_cast<const char *>(data), size);
    const QString report = VmStatReport(meminfo);
    if (!report.isEmpty()) {
        QVariantMap stats;
        ReadMemoryReport(report, stats);
        const qlonglong sum =
            stats[QStringLiteral("Free")].toLongLong() + stats[QStringLiteral("Used")].toLongLong();
        const auto total = static_cast<qlonglong>(*FindField(meminfo, "MemTotal") / 4 * 4096);
        if (sum != total || report.count(QLatin1Char('\r')) != 5) {
            std::abort();
        }
    }
    return 0;
}
