#pragma once

#include <QElapsedTimer>
#include <QMenu>
#include <QSet>

/// The status menu. It passes changes of its entries on to the desktop only while somebody may look at them,
/// because with StatusNotifierItem each one wakes the bus and the shell: while the menu is open, within 10 s
/// after the desktop has asked for it, and otherwise once a minute. Before it opens, everything is passed on.
class StatusMenu : public QMenu
{
    Q_OBJECT

public:
    StatusMenu();

protected:
    void actionEvent(QActionEvent *event) override;

private slots:
    void OnAboutToShow();

private:
    void PassOn();

    QSet<QAction *> heldBack;
    QElapsedTimer sinceAsked;
    QElapsedTimer sincePassedOn;
};
