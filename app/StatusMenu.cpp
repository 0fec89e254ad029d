#include "app/StatusMenu.h"

#include <QActionEvent>

#include <utility>

// Some hosts ask once, at the start, and never tell that a menu is closed. So "asked for" has to expire.
static constexpr qint64 msAskedFor = 10000;
// For hosts that never ask.
static constexpr qint64 msAtLeast = 60000;

StatusMenu::StatusMenu()
{
    sincePassedOn.start();
    connect(this, SIGNAL(aboutToShow()), this, SLOT(OnAboutToShow()));
}

void StatusMenu::OnAboutToShow()
{
    sinceAsked.start();
    PassOn();
}

void StatusMenu::actionEvent(QActionEvent *event)
{
    const bool bAskedFor = sinceAsked.isValid() && !sinceAsked.hasExpired(msAskedFor);
    if (event->type() != QEvent::ActionChanged || isVisible() || bAskedFor) {
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
