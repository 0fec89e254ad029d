#include "stats/MemoryReport.h"

#include "stats/ByteCount.h"

#include <optional>

namespace {

/// The header's page size is not read: the figures are in 4096-byte pages, which is what our own vm_stat
/// writes on every kernel.
constexpr qlonglong nPageBytes = 4096;

/// Bytes of the line with this label; nothing when the report has no such line.
std::optional<qlonglong> BytesOf(const QString &report, QLatin1String label)
{
    const qsizetype start = report.indexOf(label, 0, Qt::CaseInsensitive);
    if (start < 0) {
        return std::nullopt;
    }
    const qsizetype count = start + label.size();
    const qsizetype stop = report.indexOf(QLatin1Char('.'), start);
    const QStringView text = QStringView(report).mid(count, stop < 0 ? -1 : stop - count);
    return MultiplyBytes(text.trimmed().toLongLong(), nPageBytes);
}

} // namespace

void ReadMemoryReport(const QString &report, QVariantMap &stats)
{
    const QString free = QStringLiteral("Free");
    const auto read = [&](QLatin1String label, const QString &key) {
        if (const auto bytes = BytesOf(report, label)) {
            stats[key] = *bytes;
        }
    };

    read(QLatin1String("Pages free:"), free);
    // For whoever reads the record, though nothing here shows it. Copied even when the free line was missing,
    // and then with the former speculative pages in it: PureFree always tells what Free was built on in this
    // very sample.
    stats[QStringLiteral("PureFree")] = stats[free];
    if (const auto speculative = BytesOf(report, QLatin1String("Pages speculative:"))) {
        stats[free] = AddBytes(*speculative, stats[free].toLongLong());
    }
    read(QLatin1String("Pages inactive:"), QStringLiteral("Inactive"));
    read(QLatin1String("Pages active:"), QStringLiteral("Active"));
    read(QLatin1String("Pages wired down:"), QStringLiteral("Wired"));

    // Inactive memory counts as used on purpose: it is what freeing can give back.
    stats[QStringLiteral("Used")] = AddBytes(AddBytes(stats[QStringLiteral("Inactive")].toLongLong(),
                                                      stats[QStringLiteral("Active")].toLongLong()),
                                             stats[QStringLiteral("Wired")].toLongLong());
}
