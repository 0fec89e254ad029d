#include "dialogs/ReadableGround.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace {

QColor InkOf(const QWidget *widget)
{
    return widget->palette().color(QPalette::WindowText);
}

} // namespace

// The style sheets fix the colour of some texts and leave the background to the desktop: black text in the
// dark style and blue text in the classic one keep their colour on a dark desktop too. So the background
// changes, and with it the window's controls. Each widget gets the palette itself: below a style sheet
// nothing is inherited.
void SetReadableGround(QWidget *window, QWidget *text)
{
    window->ensurePolished();
    text->ensurePolished();
    const int ink = qGray(InkOf(text).rgb());
    const int ground = qGray(window->palette().color(QPalette::Window).rgb());
    if (qAbs(ink - ground) >= 100) {
        return;
    }
    const QPalette plain(ink < 128 ? QColor(0xef, 0xef, 0xef) : QColor(0x30, 0x30, 0x30));
    window->setPalette(plain);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->window() != window) {
            continue;
        }
        widget->ensurePolished();
        QPalette palette = plain;
        if (InkOf(widget) != QApplication::palette(widget).color(QPalette::WindowText)) {
            palette.setColor(QPalette::WindowText, InkOf(widget));
        }
        widget->setPalette(palette);
    }
}
