#pragma once

#include <QVariantMap>

#include <optional>

/// The slices of a memory pie in sixteenths of a degree, as QPainter::drawPie takes them: counter-clockwise,
/// beginning at twelve o'clock with free memory, then inactive, active and, for the rest of the circle,
/// wired.
struct PieSlices
{
    static constexpr int FullCircle = 5760;
    static constexpr int TwelveOClock = 1440;

    int nFree = 0;
    int nInactive = 0;
    int nActive = 0;

    int InactiveStart() const { return TwelveOClock + nFree; }
    int ActiveStart() const { return InactiveStart() + nInactive; }
    int WiredStart() const { return ActiveStart() + nActive; }
    /// Closes the circle, and so takes what the other three lost by being cut to whole sixteenths. Negative
    /// for figures that make no sense together.
    int WiredSpan() const { return TwelveOClock + FullCircle - WiredStart(); }

    /// Whether an icon of these slices cannot be told from one of the others by eye: no border is off by a
    /// thousandth of the circle, which is less than a fifth of a pixel at the icon's full size.
    bool LooksLike(const PieSlices &other) const;

    bool operator==(const PieSlices &) const = default;
};

/// Slices of a statistics record (keys Free, Used, Inactive, Active in bytes; missing ones count 0); nothing
/// when Free and Used add up to 0, since nothing is known then.
std::optional<PieSlices> SlicesOf(const QVariantMap &stats);
