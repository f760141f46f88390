#include "ZelSimpleTabBar.h"

#include <QEvent>

ZelSimpleTabBar::ZelSimpleTabBar(QWidget *parent)
    : QTabBar(parent)
{
    // Tabs without a size leave the bar by its buttons otherwise.
    setUsesScrollButtons(false);
    setExpanding(false);
    // The sizes of two tabs change with the current one: let the bar lay them out anew.
    connect(this, &QTabBar::currentChanged, this, [this] {
        QEvent change(QEvent::StyleChange);
        QTabBar::changeEvent(&change);
    });
}

QSize ZelSimpleTabBar::tabSizeHint(int index) const
{
    return index == currentIndex() ? QTabBar::tabSizeHint(index) : QSize(0, 0);
}

QSize ZelSimpleTabBar::minimumTabSizeHint(int index) const
{
    return index == currentIndex() ? QTabBar::minimumTabSizeHint(index) : QSize(0, 0);
}
