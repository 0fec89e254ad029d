#include "figures/PieSlices.h"

#include "figures/ByteCount.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// A share of the whole, truncated towards zero. Bounded, so that three spans of a malformed record fit into
/// an int together.
int Span(qlonglong value, double whole)
{
    constexpr double limit = 1 << 28;
    const double span = static_cast<double>(MultiplyBytes(value, PieSlices::FullCircle)) / whole;
    return static_cast<int>(std::clamp(span, -limit, limit));
}

} // namespace

bool PieSlices::LooksLike(const PieSlices &other) const
{
    const auto near = [](int a, int b) { return 150 * std::abs(a - b) < FullCircle; };
    return near(InactiveStart(), other.InactiveStart()) && near(ActiveStart(), other.ActiveStart()) &&
           near(WiredStart(), other.WiredStart());
}

std::optional<PieSlices> SlicesOf(const QVariantMap &stats)
{
    const auto bytes = [&](const char *key) { return stats.value(QLatin1String(key)).toLongLong(); };
    const qlonglong free = bytes("Free");
    const qlonglong sum = AddBytes(free, bytes("Used"));
    if (sum == 0) {
        return std::nullopt;
    }
    const auto whole = static_cast<double>(sum);
    return PieSlices{Span(free, whole), Span(bytes("Inactive"), whole), Span(bytes("Active"), whole)};
}
