#include "EnsureTwoIconsOnSliderMax.h"

#include "lists/IconModeSizeDelegate.h"

#include <QEvent>
#include <QListView>
#include <QSlider>

#include <algorithm>

namespace {

constexpr int leastRange = 16;

} // namespace

EnsureTwoIconsOnSliderMax::EnsureTwoIconsOnSliderMax(QSlider *slider, QListView *view)
    : QObject(view)
    , slider_(slider)
    , view_(view)
    , initialMaximum_(slider->maximum())
{
    view->viewport()->installEventFilter(this);
    const auto *delegate = qobject_cast<IconModeSizeDelegate *>(view->itemDelegate());
    // It tells in the middle of a layout.
    if (delegate) {
        connect(delegate, &IconModeSizeDelegate::iconDeltaChanged, this,
                &EnsureTwoIconsOnSliderMax::updateSliderMax, Qt::QueuedConnection);
    }
}

int EnsureTwoIconsOnSliderMax::maximumFor(int available, int beside, int sliderMinimum,
                                          int initialMaximum)
{
    return std::min(initialMaximum, std::max(available / 2 - beside, sliderMinimum + leastRange));
}

void EnsureTwoIconsOnSliderMax::updateSliderMax()
{
    if (!slider_ || view_->viewMode() != QListView::IconMode || !view_->isVisible())
        return;
    int beside = 0;
    if (const auto *delegate = qobject_cast<IconModeSizeDelegate *>(view_->itemDelegate())) {
        beside = delegate->sizeWidthMinusIconWidth();
        if (beside < 0)
            return;
    }
    slider_->setMaximum(maximumFor(IconModeSizeDelegate::availableWidth(view_), beside,
                                   slider_->minimum(), initialMaximum_));
}

bool EnsureTwoIconsOnSliderMax::eventFilter(QObject *watched, QEvent *event)
{
    if (slider_ && watched == view_->viewport() && event->type() == QEvent::Resize)
        updateSliderMax();
    return QObject::eventFilter(watched, event);
}
