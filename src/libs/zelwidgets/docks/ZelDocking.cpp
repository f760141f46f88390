#include "ZelDocking.h"

#include "ZelStoredValue.h"

#include <QMainWindow>

namespace ZelDocking {
namespace {

int restoreDepth = 0;

} // namespace

bool isEnabled()
{
    return storedValue(ZelSettings(QStringLiteral("ui")), QStringLiteral("EnableDocking"), true);
}

QMainWindow *mainWindowOf(QWidget *widget)
{
    for (QWidget *place = widget; place; place = place->parentWidget()) {
        if (auto *window = qobject_cast<QMainWindow *>(place))
            return window;
    }
    return nullptr;
}

void setGroupedDragging(QMainWindow *window, bool grouped)
{
    if (window && hasGroupedDragging(window) != grouped)
        window->setDockOptions(
            window->dockOptions().setFlag(QMainWindow::GroupedDragging, grouped));
}

bool hasGroupedDragging(const QMainWindow *window)
{
    return window->dockOptions().testFlag(QMainWindow::GroupedDragging);
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
