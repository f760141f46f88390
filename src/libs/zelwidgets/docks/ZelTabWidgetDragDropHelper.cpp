#include "ZelTabWidgetDragDropHelper.h"

#include "ZelTabKeyOrder.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDocking.h"
#include "docks/ZelDocksOf.h"
#include "docks/ZelDragOutEventFilter.h"
#include "docks/ZelTabOrder.h"
#include "docks/ZelTextIconTabWidget.h"

#include <QMainWindow>
#include <QResizeEvent>

#include <algorithm>

ZelTabWidgetDragDropHelper::ZelTabWidgetDragDropHelper(ZelTextIconTabWidget *tabs)
    : tabs_(tabs)
{}

ZelDragOutEventFilter *ZelTabWidgetDragDropHelper::filter() const
{
    return tabs_->findChild<ZelDragOutEventFilter *>(ZelDragOutEventFilter::name(),
                                                     Qt::FindDirectChildrenOnly);
}

bool ZelTabWidgetDragDropHelper::dockMode() const
{
    return filter() != nullptr;
}

void ZelTabWidgetDragDropHelper::setDockMode(bool on)
{
    ZelDragOutEventFilter *present = filter();
    if (on == (present != nullptr))
        return;
    if (on) {
        new ZelDragOutEventFilter(tabs_);
    } else {
        // It is gone for everybody at once, but may be in one of its own events.
        present->setObjectName(QString());
        present->stop();
        present->deleteLater();
    }
}

int ZelTabWidgetDragDropHelper::countChildrenDialogs() const
{
    return int(getChildren().size());
}

QList<ZelDockWidgetFromTab *> ZelTabWidgetDragDropHelper::getChildren() const
{
    const QMainWindow *window = ZelDocking::mainWindowOf(tabs_);
    if (!window)
        return {};
    QList<ZelDockWidgetFromTab *> children = zelDocksOf<ZelDockWidgetFromTab>(window);
    const auto isForeign = [this](const ZelDockWidgetFromTab *child) {
        return child->tabWidget() != tabs_ || child->contentsWidget() == nullptr;
    };
    children.erase(std::remove_if(children.begin(), children.end(), isForeign), children.end());
    return children;
}

QList<ZelDockWidgetFromTab *> ZelTabWidgetDragDropHelper::getHiddenChildren() const
{
    QList<ZelDockWidgetFromTab *> hidden;
    for (ZelDockWidgetFromTab *child : getChildren()) {
        if (child->isHidden())
            hidden.append(child);
    }
    return hidden;
}

bool ZelTabWidgetDragDropHelper::hasReorderedDialogs() const
{
    return !ZelTabOrder::isOriginal(tabs_);
}

ZelDockWidgetFromTab *ZelTabWidgetDragDropHelper::changeTab2Window(int tab)
{
    ZelDragOutEventFilter *present = filter();
    return present ? present->tearOut(tab) : nullptr;
}

void ZelTabWidgetDragDropHelper::raiseDockWidget(QWidget *page)
{
    for (ZelDockWidgetFromTab *child : getChildren()) {
        if (child->contentsWidget() == page) {
            child->raise();
            child->activateWindow();
        }
    }
}

void ZelTabWidgetDragDropHelper::restoreDocked2Tabs()
{
    const QPointer<QWidget> current = tabs_->currentWidget();
    for (ZelDockWidgetFromTab *child : getChildren())
        child->forceRestoreInView();
    ZelTabOrder::restoreOriginal(tabs_);
    if (current)
        tabs_->setCurrentWidget(current);
}

void ZelTabWidgetDragDropHelper::takeBack(QWidget *page, const QIcon &icon, const QString &title)
{
    const QString text =
        title.startsWith(dockHeaderPrefix_) ? title.mid(dockHeaderPrefix_.size()) : title;
    tabs_->addTab(page, icon, text);
    page->show();
    placeInTabOrder(page, tabs_->tabBar());
    ZelTabOrder::apply(tabs_);
    tabs_->setCurrentWidget(page);
    tabs_->updateTabWidths();
    QResizeEvent resize(tabs_->size(), tabs_->size());
    QCoreApplication::sendEvent(tabs_, &resize);
}
