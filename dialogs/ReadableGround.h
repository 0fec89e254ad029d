#pragma once

class QWidget;

/// Gives a window and its widgets a plain light or dark palette if the style sheet's colour of `text`, a
/// widget in that window, is hard to read on the desktop's own palette. To be called with the style sheet in
/// place; the next sheet undoes it.
void SetReadableGround(QWidget *window, QWidget *text);
