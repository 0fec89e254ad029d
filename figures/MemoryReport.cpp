#include "figures/MemoryReport.h"

#include "figures/ByteCount.h"

#include <optional>

namespace {

/// Deliberately a constant: the page size in the header is not read. Our own report has this one on every
/// kernel.
constexpr qlonglong pageBytes = 4096;

/// The bytes of the line with this label; nothing if the report has no such line.
std::optional<qlonglong> BytesOf(const QString &report, QLatin1String label)
{
    const qsizetype start = report.indexOf(label, 0, Qt::CaseInsensitive);
    if (start < 0) {
        return std::nullopt;
    }
    const qsizetype count = start + label.size();
    const qsizetype stop = report.indexOf(QLatin1Char('.'), start);
    const QStringView text = QStringView(report).mid(count, stop < 0 ? -1 : stop - count);
    return MultiplyBytes(text.trimmed().toLongLong(), pageBytes);
}

} // namespace

void ReadMemoryReport(const QString &report, QVariantMap &stats)
{
    const QString free = QStringLiteral("Free");
    const auto read = [&](const char *label, const QString &key) {
        if (const auto bytes = BytesOf(report, QLatin1String(label))) {
            stats[key] = *bytes;
        }
    };

    read("Pages free:", free);
    // Deliberately copied even without a free line, and then with the former speculative pages in it:
    // PureFree is what this sample built Free on. No window shows it; it is there for readers of the record.
    stats[QStringLiteral("PureFree")] = stats[free];
    if (const auto speculative = BytesOf(report, QLatin1String("Pages speculative:"))) {
        stats[free] = AddBytes(*speculative, stats[free].toLongLong());
    }
    read("Pages inactive:", QStringLiteral("Inactive"));
    read("Pages active:", QStringLiteral("Active"));
    read("Pages wired down:", QStringLiteral("Wired"));

    // Deliberately counts inactive memory as used: it is what freeing can give back.
    stats[QStringLiteral("Used")] = AddBytes(AddBytes(stats[QStringLiteral("Inactive")].toLongLong(),
                                                      stats[QStringLiteral("Active")].toLongLong()),
                                             stats[QStringLiteral("Wired")].toLongLong());
}
