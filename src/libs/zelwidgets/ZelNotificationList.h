#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QList>
#include <QObject>
#include <QPointer>

class ZelNotificationAction;

/// The notifications of the application in the order of their priority, for a widget that shows
/// them and triggers them by index. Actions of equal priority keep their order.
///
/// The list doesn't own its actions. One that dies leaves an empty entry, which at() answers with
/// null and size() counts, until pruneActions() takes it out.
class ZELWIDGETS_EXPORT ZelNotificationList : public QObject
{
    Q_OBJECT

public:
    explicit ZelNotificationList(QObject *parent = nullptr);

    /// Null, and an action that is in the list, are ignored.
    void addAction(ZelNotificationAction *action);
    /// Emits changed() even if the action isn't in the list.
    void removeAction(ZelNotificationAction *action);
    /// Null for an index out of range and for an entry whose action died.
    const ZelNotificationAction *at(int index) const;
    int size() const;
    /// Turns the toggle state over if the action is a toggle, then emits its triggered(). Does
    /// nothing where at() is null.
    void trigger(int index) const;
    /// Takes out the entries whose actions died; emits nothing.
    void pruneActions();

Q_SIGNALS:
    /// An action came, went, moved or changed.
    void changed();

private:
    void slotPriorityChanged();
    void sort();

    QList<QPointer<ZelNotificationAction>> actions_;
};
