#include "platform/Activation.h"

#include <QWidget>

void Activate(QWidget *window)
{
    window->activateWindow();
}
