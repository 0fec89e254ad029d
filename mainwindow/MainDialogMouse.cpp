// The main window and the mouse: dragging by the window's body, and the close mark of the frameless window
// with the key that does the same.

#include "mainwindow/MainDialog.h"
#include "platform/WindowPlacement.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

void MainDialog::paintEvent(QPaintEvent *event)
{
    // Qt and the style sheet both paint the dark style's translucent background, one over the other. This
    // replaces what they have painted.
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), palette().brush(QPalette::Window));
    painter.end();
    QFrame::paintEvent(event);
    if (!bHover || !windowFlags().testFlag(Qt::FramelessWindowHint)) {
        return;
    }

    painter.begin(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(165, 165, 165, 255));
    painter.drawEllipse(rectClose);

    const QPointF c = rectClose.center();
    painter.setPen(QPen(palette().brush(QPalette::Window), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawLine(c + QPointF(-2.5, -2.5), c + QPointF(2.5, 2.5));
    painter.drawLine(c + QPointF(-2.5, 2.5), c + QPointF(2.5, -2.5));
}

void MainDialog::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    ptDragOffset = event->globalPosition().toPoint() - frameGeometry().topLeft();
    event->accept();
    const bool bOnCloseMark =
        windowFlags().testFlag(Qt::FramelessWindowHint) && rectClose.contains(event->position());
    // A compositor that moves the window keeps the press, and the mark would never see its click.
    if (!bOnCloseMark || WindowPlacement::CanPlace()) {
        placement->StartDrag();
    }
}

void MainDialog::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        move(event->globalPosition().toPoint() - ptDragOffset);
        bHover = true;
        event->accept();
    }
}

void MainDialog::mouseReleaseEvent(QMouseEvent *event)
{
    // Deliberate: a drag that ends over the mark hides the window too.
    if (windowFlags().testFlag(Qt::FramelessWindowHint) && event->button() == Qt::LeftButton &&
        rectClose.contains(event->position())) {
        close();
        event->accept();
    }
}

void MainDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && windowFlags().testFlag(Qt::FramelessWindowHint)) {
        close();
    } else {
        QFrame::keyPressEvent(event);
    }
}

void MainDialog::enterEvent(QEnterEvent *event)
{
    SetHover(true);
    QFrame::enterEvent(event);
}

void MainDialog::leaveEvent(QEvent *event)
{
    SetHover(false);
    QFrame::leaveEvent(event);
}

void MainDialog::SetHover(bool bOver)
{
    bHover = bOver;
    update();
}

void MainDialog::closeEvent(QCloseEvent *)
{
    // The event stays accepted: the window hides. Ignoring it would veto quitting.
}
