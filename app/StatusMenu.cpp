#include "app/StatusMenu.h"

#include <QActionEvent>

#include <utility>

// Some hosts ask once, at the start, and some never tell that the menu is closed. Until the host has told so
// once, "open" expires.
static constexpr qint64 msOpen = 10000;
// For hosts that never ask.
static constexpr qint64 msAtLeast = 60000;

StatusMenu::StatusMenu()
{
    sincePassedOn.start();
    connect(this, SIGNAL(aboutToShow()), this, SLOT(OnAboutToShow()));
    connect(this, SIGNAL(aboutToHide()), this, SLOT(OnAboutToHide()));
}

void StatusMenu::OnAboutToShow()
{
    bAskedFor = true;
    sinceAsked.start();
    PassOn();
}

void StatusMenu::OnAboutToHide()
{
    bAskedFor = false;
    bTellsOfClosing = true;
}

void StatusMenu::hideEvent(QHideEvent *event)
{
    // Also emits aboutToHide(): for a menu that Kelvo itself has opened, which says nothing about the host.
    const bool bTold = bTellsOfClosing;
    QMenu::hideEvent(event);
    bTellsOfClosing = bTold;
}

bool StatusMenu::IsOpen() const
{
    return isVisible() || (bAskedFor && (bTellsOfClosing || !sinceAsked.hasExpired(msOpen)));
}

void StatusMenu::actionEvent(QActionEvent *event)
{
    if (event->type() != QEvent::ActionChanged || IsOpen()) {
        heldBack.remove(event->action());
        QMenu::actionEvent(event);
        return;
    }
    heldBack.insert(event->action());
    if (sincePassedOn.hasExpired(msAtLeast)) {
        PassOn();
    }
}

void StatusMenu::PassOn()
{
    sincePassedOn.start();
    for (QAction *action : std::exchange(heldBack, {})) {
        QActionEvent event(QEvent::ActionChanged, action);
        QMenu::actionEvent(&event);
    }
}
