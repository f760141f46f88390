#pragma once

#include <QList>
#include <QWidget>

class ZelNotificationList;
class ZelToolButton;

/// Shows the visible actions of a notification list as a row of buttons and triggers them.
class NotificationStrip : public QWidget
{
    Q_OBJECT

public:
    /// The list has to outlive the strip.
    explicit NotificationStrip(ZelNotificationList *list, QWidget *parent = nullptr);

    /// To be called after a prune or the end of an action, which the list doesn't tell.
    void refresh();

private:
    ZelToolButton *addButton();
    void show(int index);

    ZelNotificationList *list_;
    QList<ZelToolButton *> buttons_;
};
