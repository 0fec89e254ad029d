#pragma once

#include <QElapsedTimer>
#include <QMenu>
#include <QSet>

/// The status menu. It passes changes of its entries on to the desktop only while somebody may look at them,
/// because with StatusNotifierItem each one wakes the bus and the shell: while the menu is open, and
/// otherwise once a minute. Before it opens, everything is passed on.
class StatusMenu : public QMenu
{
    Q_OBJECT

public:
    StatusMenu();

protected:
    void actionEvent(QActionEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void OnAboutToShow();
    void OnAboutToHide();

private:
    bool IsOpen() const;
    void PassOn();

    QSet<QAction *> heldBack;
    bool bAskedFor = false;
    bool bTellsOfClosing = false;
    QElapsedTimer sinceAsked;
    QElapsedTimer sincePassedOn;
};
