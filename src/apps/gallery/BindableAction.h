#pragma once

#include <ZelWidgets/ZelAction>

#include <QAction>
#include <QWidget>

/// Lets users give the action another key; it belongs to the window.
inline QAction *bindable(const char *id, QAction *action, QWidget *window)
{
    new ZelAction(QLatin1String(id), action, window);
    return action;
}
