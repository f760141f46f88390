#include "ZelDocking.h"

#include "ZelStoredValue.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>

namespace ZelDocking {
namespace {

constexpr char suspendedProperty[] = "zelGroupedDraggingSuspended";
int restoreDepth = 0;

} // namespace

bool isEnabled()
{
    return storedValue(ZelSettings(QStringLiteral("ui")), QStringLiteral("EnableDocking"), true);
}

bool hasGlobalPositions()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QMainWindow *mainWindowOf(QWidget *widget)
{
    for (QWidget *place = widget; place; place = place->parentWidget()) {
        if (auto *window = qobject_cast<QMainWindow *>(place))
            return window;
    }
    return nullptr;
}

bool isInFront(const QDockWidget *dock)
{
    return dock->isVisible() &&
           (dock->isFloating() || dock->parentWidget()->rect().intersects(dock->geometry()));
}

void suspendGroupedDragging(QMainWindow *window)
{
    if (!window || !window->dockOptions().testFlag(QMainWindow::GroupedDragging))
        return;
    window->setDockOptions(window->dockOptions().setFlag(QMainWindow::GroupedDragging, false));
    window->setProperty(suspendedProperty, true);
}

void resumeGroupedDragging(QMainWindow *window)
{
    if (!window || !window->property(suspendedProperty).toBool())
        return;
    window->setProperty(suspendedProperty, QVariant());
    window->setDockOptions(window->dockOptions().setFlag(QMainWindow::GroupedDragging, true));
}

bool isInRestore()
{
    return restoreDepth > 0;
}

RestoreScope::RestoreScope()
{
    ++restoreDepth;
}

RestoreScope::~RestoreScope()
{
    --restoreDepth;
}

} // namespace ZelDocking
