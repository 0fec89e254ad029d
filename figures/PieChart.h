#pragma once

#include <QPixmap>

#include <optional>

class QPainter;
class QRectF;
struct PieSlices;

/// Draws the four slices into rect with the painter's pen: free green, inactive blue, active yellow, wired
/// red, the hues that the figures have in the window and in the menu.
void DrawSlices(QPainter &painter, const QRectF &rect, const PieSlices &slices);

/// The main window's chart, 72 x 72 pixels: the slices on a soft round shadow; the shadow alone without
/// slices.
QPixmap DrawWindowPie(const std::optional<PieSlices> &slices);

/// The status icon in colour, 64 x 64 pixels.
QPixmap DrawColorPie(const PieSlices &slices);

/// The status icon in black and white, 32 x 32 pixels or a multiple: free memory is the white slice.
QPixmap DrawMonoPie(const PieSlices &slices, int scale = 1);
