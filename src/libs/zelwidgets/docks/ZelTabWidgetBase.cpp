#include "ZelTabWidgetBase.h"

#include <QEvent>

#include <algorithm>

namespace {

constexpr int smallSide = 25;
constexpr int tabGap = 2;
constexpr int leastTabWidth = 20;

/// A page that may be wider than the panel.
const QLatin1String wideNamedPage("ProjectEnvironmentPage");

bool changesWidths(QEvent::Type type)
{
    switch (type) {
    case QEvent::LayoutDirectionChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::ScreenChangeInternal:
    case QEvent::LayoutRequest:
        return true;
    default:
        return false;
    }
}

} // namespace

ZelTabWidgetBase::ZelTabWidgetBase(QWidget *parent)
    : QTabWidget(parent)
{}

int ZelTabWidgetBase::actualCount() const
{
    return count();
}

void ZelTabWidgetBase::setSizeHintFromCurrentPage(bool on)
{
    sizeHintFromCurrentPage_ = on;
    updateGeometry();
}

QSize ZelTabWidgetBase::sizeHint() const
{
    return {smallSide, smallSide};
}

QSize ZelTabWidgetBase::minimumSizeHint() const
{
    if (cachedMinWidth_ < 0)
        cachedMinWidth_ = computeMinimumWidth();
    QSize hint = QTabWidget::minimumSizeHint();
    hint.setWidth(cachedMinWidth_);
    if (sizeHintFromCurrentPage_)
        hint.rheight() -= surplusHeight();
    return hint;
}

QList<QWidget *> ZelTabWidgetBase::tornOutPages() const
{
    return {};
}

int ZelTabWidgetBase::minimumTabWidth() const
{
    return leastTabWidth;
}

void ZelTabWidgetBase::forgetMinimumWidth()
{
    cachedMinWidth_ = -1;
    updateGeometry();
}

bool ZelTabWidgetBase::event(QEvent *event)
{
    if (changesWidths(event->type()))
        cachedMinWidth_ = -1;
    return QTabWidget::event(event);
}

void ZelTabWidgetBase::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    forgetMinimumWidth();
}

void ZelTabWidgetBase::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    forgetMinimumWidth();
}

int ZelTabWidgetBase::computeMinimumWidth() const
{
    const int header = fontMetrics().horizontalAdvance(QLatin1String("!header!"));
    int result = actualCount() * (std::max(header, minimumTabWidth()) + tabGap);
    QList<QWidget *> pages = tornOutPages();
    for (int i = 0; i < count(); ++i)
        pages.append(widget(i));
    for (const QWidget *page : std::as_const(pages)) {
        if (page->objectName() != wideNamedPage)
            result = std::max(result, page->minimumSizeHint().width());
    }
    return result;
}

int ZelTabWidgetBase::surplusHeight() const
{
    if (!currentWidget())
        return 0;
    int tallest = 0;
    for (int i = 0; i < count(); ++i)
        tallest = std::max(tallest, widget(i)->minimumSizeHint().height());
    return tallest - currentWidget()->minimumSizeHint().height();
}
