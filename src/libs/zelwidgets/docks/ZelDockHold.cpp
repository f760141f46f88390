#include "ZelDockHold.h"

#include "docks/ZelDockWidget.h"
#include "docks/ZelDocking.h"

#include <QPointer>
#include <QTimer>

#include <chrono>

namespace ZelDockHold {
namespace {

constexpr std::chrono::milliseconds holdTime(25);

bool standsInLayout(const ZelDockWidget *dock)
{
    return dock->isVisible() && !dock->isFloating();
}

void hold(ZelDockWidget *dock)
{
    if (dock->isAtSide())
        dock->setFixedWidth(dock->width());
    else
        dock->setFixedHeight(dock->height());
}

QList<ZelDockWidget *> docksOf(const QWidget *parent)
{
    return parent->findChildren<ZelDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

void holdOthers(ZelDockWidget *leaving)
{
    QWidget *parent = leaving->parentWidget();
    if (!parent || ZelDocking::isInRestore() || !standsInLayout(leaving))
        return;
    for (ZelDockWidget *dock : docksOf(parent)) {
        if (dock != leaving && standsInLayout(dock))
            hold(dock);
    }
    QTimer::singleShot(holdTime, parent, [parent] { release(parent); });
}

void release(QWidget *parent)
{
    for (ZelDockWidget *dock : docksOf(parent)) {
        if (dock->minimumWidth() == dock->maximumWidth()) {
            dock->setMinimumWidth(0);
            dock->setMaximumWidth(QWIDGETSIZE_MAX);
        }
        if (dock->minimumHeight() == dock->maximumHeight()) {
            dock->setMinimumHeight(0);
            dock->setMaximumHeight(QWIDGETSIZE_MAX);
        }
    }
}

} // namespace ZelDockHold
