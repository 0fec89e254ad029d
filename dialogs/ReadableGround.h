#pragma once

class QWidget;

/// Gives a window and all that is in it a plain light or dark palette where the style sheet's colour of
/// `text`, a widget in that window, would be lost on the desktop's own. Call it with the style sheet in
/// place; the next sheet undoes it.
void SetReadableGround(QWidget *window, QWidget *text);
