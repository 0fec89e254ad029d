#include "figures/PieChart.h"

#include "figures/PieSlices.h"

#include <QPainter>

namespace {

QImage TransparentImage(int edge)
{
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The three translucent discs below the window's pie, each a pixel smaller all around: the shadow gets
/// darker inwards and fades out at the edge.
QImage DrawRim()
{
    QImage image = TransparentImage(72);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 30, 30, 15));
    for (int i = 0; i < 3; ++i) {
        painter.drawEllipse(image.rect().adjusted(i, i, -i, -i));
    }
    return image;
}

/// The hairline around the status icon's pie.
QImage DrawOutline()
{
    QImage image = TransparentImage(64);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    painter.drawEllipse(image.rect().adjusted(3, 3, -3, -3));
    return image;
}

} // namespace

void DrawSlices(QPainter &painter, const QRectF &rect, const PieSlices &slices)
{
    const auto slice = [&](Qt::GlobalColor color, int start, int span) {
        painter.setBrush(QBrush(color));
        painter.drawPie(rect, start, span);
    };
    slice(Qt::green, PieSlices::TwelveOClock, slices.freeSpan);
    slice(Qt::blue, slices.InactiveStart(), slices.inactiveSpan);
    slice(Qt::yellow, slices.ActiveStart(), slices.activeSpan);
    slice(Qt::red, slices.WiredStart(), slices.WiredSpan());
}

QPixmap DrawWindowPie(const std::optional<PieSlices> &slices)
{
    // Half of the drawing's cost, and always the same.
    static const QImage rim = DrawRim();
    QImage image = rim;
    if (slices) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        DrawSlices(painter, QRectF(3, 3, 66, 66), *slices);
    }
    return QPixmap::fromImage(std::move(image));
}

QPixmap DrawColorPie(const PieSlices &slices)
{
    static const QImage outline = DrawOutline();
    QImage image = TransparentImage(64);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    DrawSlices(painter, image.rect().adjusted(1, 1, -1, -1), slices);
    painter.drawImage(0, 0, outline);
    painter.end();
    return QPixmap::fromImage(std::move(image));
}

QPixmap DrawMonoPie(const PieSlices &slices, int scale)
{
    QImage image = TransparentImage(32 * scale);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const QRect rect(1, 1, 30, 30);
    painter.setBrush(Qt::black);
    painter.drawEllipse(rect);
    painter.setBrush(Qt::white);
    painter.drawPie(QRectF(rect), PieSlices::TwelveOClock, slices.freeSpan);

    painter.setPen(QPen(Qt::black, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(rect.adjusted(1, 1, -1, -1));
    painter.end();
    return QPixmap::fromImage(std::move(image));
}
