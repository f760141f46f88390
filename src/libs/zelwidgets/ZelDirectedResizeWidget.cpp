#include "ZelDirectedResizeWidget.h"

#include "ZelDirectedResizeHandle.h"

#include <QBoxLayout>

#include <algorithm>
#include <cmath>

ZelDirectedResizeWidget::ZelDirectedResizeWidget(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , orientation_(orientation)
    , layout_(new QBoxLayout(
          orientation == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this))
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    setSizePolicy(isHorizontal ? QSizePolicy::Fixed : QSizePolicy::Preferred,
                  isHorizontal ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    auto *handle = new ZelDirectedResizeHandle(orientation, this);
    layout_->addWidget(handle);
    connect(handle, &ZelDirectedResizeHandle::dragStarted, this,
            &ZelDirectedResizeWidget::startDrag);
    connect(handle, &ZelDirectedResizeHandle::dragged, this, &ZelDirectedResizeWidget::doDrag);
    connect(handle, &ZelDirectedResizeHandle::dragEnded, this, &ZelDirectedResizeWidget::endDrag);
}

void ZelDirectedResizeWidget::setWidget(QWidget *widget)
{
    if (widget == widget_)
        return;
    delete widget_;
    widget_ = widget;
    if (widget)
        layout_->insertWidget(0, widget, 1);
    updateGeometry();
}

QWidget *ZelDirectedResizeWidget::widget() const
{
    return widget_;
}

QSize ZelDirectedResizeWidget::sizeHint() const
{
    QSize hint = QWidget::sizeHint();
    const double directed = std::min(inDirection(hint) * factor_, double(QWIDGETSIZE_MAX));
    if (orientation_ == Qt::Horizontal)
        hint.setWidth(static_cast<int>(directed));
    else
        hint.setHeight(static_cast<int>(directed));
    return hint;
}

int ZelDirectedResizeWidget::directedSize() const
{
    return inDirection(sizeHint());
}

void ZelDirectedResizeWidget::setDirectedSize(int size)
{
    setFactorFor(size, inDirection(QWidget::sizeHint()));
}

int ZelDirectedResizeWidget::inDirection(QSize size) const
{
    return orientation_ == Qt::Horizontal ? size.width() : size.height();
}

void ZelDirectedResizeWidget::setFactorFor(int size, int baseSize)
{
    if (baseSize <= 0)
        return;
    factor_ = std::max(double(size) / baseSize, 0.0);
    // The hint is truncated, so a quotient that was rounded down would lose a pixel.
    if (factor_ * baseSize < size)
        factor_ = std::nextafter(factor_, factor_ + 1);
    updateGeometry();
}

void ZelDirectedResizeWidget::startDrag()
{
    baseSizeAtDragStart_ = inDirection(QWidget::sizeHint());
    sizeAtDragStart_ = directedSize();
}

void ZelDirectedResizeWidget::doDrag(int offset)
{
    setFactorFor(sizeAtDragStart_ + offset, baseSizeAtDragStart_);
}

void ZelDirectedResizeWidget::endDrag()
{
    baseSizeAtDragStart_ = 0;
}
