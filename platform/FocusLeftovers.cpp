#include "platform/FocusLeftovers.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>

FocusLeftovers::FocusLeftovers(QGuiApplication *application) : QObject(application)
{
    connect(application, SIGNAL(focusWindowChanged(QWindow *)), this, SLOT(OnFocusWindowChanged(QWindow *)));
}

void FocusLeftovers::OnFocusWindowChanged(QWindow *window)
{
    if (window) {
        window->installEventFilter(this); // once: an installed filter is only moved to the front
    }
}

bool FocusLeftovers::eventFilter(QObject *watched, QEvent *event)
{
    // Now it has no focus any more, as far as Qt is concerned.
    if (event->type() == QEvent::PlatformSurface &&
        static_cast<QPlatformSurfaceEvent *>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed) {
        disconnect(watched, SIGNAL(focusObjectChanged(QObject *)), QCoreApplication::instance(), nullptr);
    }
    return QObject::eventFilter(watched, event);
}
