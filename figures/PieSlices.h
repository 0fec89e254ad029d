#pragma once

#include <QVariantMap>

#include <optional>

/// The slices of a memory pie in sixteenths of a degree, as QPainter::drawPie takes them: counter-clockwise
/// from twelve o'clock free, inactive, active and, for the rest of the circle, wired.
struct PieSlices
{
    static constexpr int FullCircle = 5760;
    static constexpr int TwelveOClock = 1440;

    int freeSpan = 0;
    int inactiveSpan = 0;
    int activeSpan = 0;

    int InactiveStart() const { return TwelveOClock + freeSpan; }
    int ActiveStart() const { return InactiveStart() + inactiveSpan; }
    int WiredStart() const { return ActiveStart() + activeSpan; }
    /// Closes the circle, and so takes what truncation to whole sixteenths has cut off the other three.
    /// Negative for figures that contradict each other.
    int WiredSpan() const { return TwelveOClock + FullCircle - WiredStart(); }

    /// Whether icons of the two look the same: no border is off by 1/150 of the circle, half a pixel at a
    /// size of 22.
    bool LooksLike(const PieSlices &other) const;

    bool operator==(const PieSlices &) const = default;
};

/// Slices of a statistics record (keys Free, Used, Inactive, Active in bytes; missing ones count 0); nothing
/// if Free and Used add up to 0: no sample has succeeded then.
std::optional<PieSlices> SlicesOf(const QVariantMap &stats);
