#include "stats/PieChart.h"

#include "stats/PieSlices.h"

#include <QPainter>

namespace {

QPixmap TransparentPixmap(int nEdge)
{
    QPixmap pixmap(nEdge, nEdge);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

void DrawSlices(QPainter &painter, const QRectF &rect, const PieSlices &slices)
{
    const auto slice = [&](Qt::GlobalColor color, int nStart, int nSpan) {
        painter.setBrush(QBrush(color));
        painter.drawPie(rect, nStart, nSpan);
    };
    slice(Qt::green, PieSlices::TwelveOClock, slices.nFree);
    slice(Qt::blue, slices.InactiveStart(), slices.nInactive);
    slice(Qt::yellow, slices.ActiveStart(), slices.nActive);
    slice(Qt::red, slices.WiredStart(), slices.WiredSpan());
}

QPixmap DrawWindowPie(const std::optional<PieSlices> &slices)
{
    QPixmap pixmap = TransparentPixmap(72);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    // Three translucent discs, each a pixel smaller all round: the darkening adds up inwards and fades out at
    // the edge.
    QRect rect = pixmap.rect();
    painter.setBrush(QColor(30, 30, 30, 15));
    for (int i = 0; i < 3; ++i) {
        painter.drawEllipse(rect);
        rect.adjust(1, 1, -1, -1);
    }
    if (slices) {
        DrawSlices(painter, rect, *slices);
    }
    return pixmap;
}

QPixmap DrawColorPie(const PieSlices &slices)
{
    QPixmap pixmap = TransparentPixmap(64);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    QRect rect = pixmap.rect().adjusted(1, 1, -1, -1);
    DrawSlices(painter, rect, slices);

    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(rect.adjusted(2, 2, -2, -2));
    return pixmap;
}

QPixmap DrawMonoPie(const PieSlices &slices)
{
    QPixmap pixmap = TransparentPixmap(32);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const QRect rect = pixmap.rect().adjusted(1, 1, -1, -1);
    painter.setBrush(Qt::black);
    painter.drawEllipse(rect);
    painter.setBrush(Qt::white);
    painter.drawPie(QRectF(rect), PieSlices::TwelveOClock, slices.nFree);

    painter.setPen(QPen(Qt::black, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(rect.adjusted(1, 1, -1, -1));
    return pixmap;
}
