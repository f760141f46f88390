#include "ZelTabOrder.h"

#include "ZelStoredValue.h"

#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <limits>

namespace ZelTabOrder {
namespace {

constexpr int atEnd = std::numeric_limits<int>::max();
constexpr char originalProperty[] = "OrgTabOrder";

bool canBeStored(const QTabWidget *tabs, const QWidget *page)
{
    return page && !tabs->objectName().isEmpty() && !page->objectName().isEmpty();
}

int storedPosition(const QTabWidget *tabs, const QWidget *page)
{
    if (!canBeStored(tabs, page))
        return atEnd;
    return storedValue(ZelSettings(tabs->objectName()), page->objectName(), atEnd);
}

int originalPosition(const QWidget *page)
{
    const QVariant position = page->property(originalProperty);
    return position.isValid() ? position.toInt() : atEnd;
}

template <typename Position>
QList<QWidget *> sortedPages(const QTabWidget *tabs, Position position)
{
    QList<QWidget *> pages;
    for (int i = 0; i < tabs->count(); ++i)
        pages.append(tabs->widget(i));
    std::stable_sort(pages.begin(), pages.end(),
                     [&](QWidget *a, QWidget *b) { return position(a) < position(b); });
    return pages;
}

void arrange(QTabWidget *tabs, const QList<QWidget *> &pages)
{
    for (int i = 0; i < int(pages.size()); ++i) {
        const int present = tabs->indexOf(pages[i]);
        if (present != i)
            tabs->tabBar()->moveTab(present, i);
    }
}

} // namespace

void markOriginal(QTabWidget *tabs)
{
    for (int i = 0; i < tabs->count(); ++i) {
        if (!tabs->widget(i)->property(originalProperty).isValid())
            tabs->widget(i)->setProperty(originalProperty, i);
    }
}

bool isOriginal(const QTabWidget *tabs)
{
    const QList<QWidget *> pages = sortedPages(tabs, originalPosition);
    for (int i = 0; i < int(pages.size()); ++i) {
        if (tabs->widget(i) != pages[i])
            return false;
    }
    return true;
}

void storePosition(const QTabWidget *tabs, const QWidget *page, int position)
{
    if (canBeStored(tabs, page) && storedPosition(tabs, page) != position)
        ZelSettings(tabs->objectName()).setValue(page->objectName(), position);
}

bool removePosition(const QTabWidget *tabs, const QWidget *page)
{
    if (!canBeStored(tabs, page))
        return false;
    ZelSettings settings(tabs->objectName());
    const bool wasThere = settings.hasKey(page->objectName());
    settings.removeKey(page->objectName());
    return wasThere;
}

void store(const QTabWidget *tabs)
{
    for (int i = 0; i < tabs->count(); ++i)
        storePosition(tabs, tabs->widget(i), i);
}

void apply(QTabWidget *tabs)
{
    arrange(tabs,
            sortedPages(tabs, [tabs](const QWidget *page) { return storedPosition(tabs, page); }));
}

void restoreOriginal(QTabWidget *tabs)
{
    arrange(tabs, sortedPages(tabs, originalPosition));
    store(tabs);
}

} // namespace ZelTabOrder
