#pragma once

#include <QList>
#include <QMainWindow>

/// The docks of a main window, also those in windows in which several float together. Does not look
/// into the panels, as findChildren() would.
template <typename Dock>
QList<Dock *> zelDocksOf(const QMainWindow *window)
{
    QList<Dock *> docks;
    for (QObject *child : window->children()) {
        if (auto *dock = qobject_cast<Dock *>(child))
            docks.append(dock);
        else if (child->isWidgetType() && static_cast<QWidget *>(child)->isWindow())
            docks += child->findChildren<Dock *>(QString(), Qt::FindDirectChildrenOnly);
    }
    return docks;
}
