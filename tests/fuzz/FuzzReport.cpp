// A vm_stat report, as any program in PATH may print it, and what is drawn from it.

#include "figures/FormatSizeString.h"
#include "figures/MemoryReport.h"
#include "figures/PieSlices.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QVariantMap stats;
    ReadMemoryReport(QString::fromLatin1(reinterpret_cast<const char *>(data), qsizetype(size)), stats);
    FormatSizeString(stats[QStringLiteral("Used")].toLongLong());
    if (const auto slices = SlicesOf(stats)) {
        (void)slices->WiredSpan();
    }
    return 0;
}
