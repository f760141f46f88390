#include "ZelTextIconTabWidget.h"

#include "docks/ZelDockWidgetFromTab.h"

ZelTextIconTabWidget::ZelTextIconTabWidget(QWidget *parent)
    : ZelDecoratedTabWidget<ZelTextIconTabBar>(parent)
    , helper_(this)
{}

ZelTextIconTabWidget::~ZelTextIconTabWidget() = default;

int ZelTextIconTabWidget::actualCount() const
{
    return count() + helper_.countChildrenDialogs();
}

QString ZelTextIconTabWidget::dockHeaderPrefix() const
{
    return helper_.dockHeaderPrefix();
}

bool ZelTextIconTabWidget::dockMode() const
{
    return helper_.dockMode();
}

QList<ZelDockWidgetFromTab *> ZelTextIconTabWidget::getChildren() const
{
    return helper_.getChildren();
}

QList<ZelDockWidgetFromTab *> ZelTextIconTabWidget::getHiddenChildren() const
{
    return helper_.getHiddenChildren();
}

bool ZelTextIconTabWidget::hasChildrenDialogs() const
{
    return helper_.countChildrenDialogs() > 0;
}

bool ZelTextIconTabWidget::hasReorderedDialogs() const
{
    return helper_.hasReorderedDialogs();
}

ZelDockWidgetFromTab *ZelTextIconTabWidget::changeTab2Window(int tab)
{
    return helper_.changeTab2Window(tab);
}

void ZelTextIconTabWidget::setDockHeaderPrefix(const QString &prefix)
{
    helper_.setDockHeaderPrefix(prefix);
}

void ZelTextIconTabWidget::setDockMode(bool on)
{
    helper_.setDockMode(on);
}

void ZelTextIconTabWidget::raiseDockWidget(QWidget *page)
{
    helper_.raiseDockWidget(page);
}

void ZelTextIconTabWidget::takeBack(QWidget *page, const QIcon &icon, const QString &title)
{
    helper_.takeBack(page, icon, title);
}

void ZelTextIconTabWidget::restoreDocked2Tabs()
{
    helper_.restoreDocked2Tabs();
}

QList<QWidget *> ZelTextIconTabWidget::tornOutPages() const
{
    QList<QWidget *> pages;
    for (const ZelDockWidgetFromTab *window : helper_.getChildren()) {
        if (window->page())
            pages.append(window->page());
    }
    return pages;
}
