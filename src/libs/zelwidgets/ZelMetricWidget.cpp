#include "ZelMetricWidget.h"

#include <QHBoxLayout>

ZelMetricWidget::ZelMetricWidget(ZelFontMetrics::HeightType type, QWidget *parent,
                                 Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , heightType_(type)
{}

void ZelMetricWidget::setChildWidget(QWidget *widget, bool centred)
{
    if (child_ && child_ != widget)
        child_->hide();
    delete layout();
    child_ = widget;
    setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    if (centred)
        row->addStretch(1);
    if (widget)
        row->addWidget(widget);
    if (centred)
        row->addStretch(1);
}

void ZelMetricWidget::setExtraSize(QSize const &size)
{
    extraSize_ = size;
    updateGeometry();
}

void ZelMetricWidget::setHeightType(ZelFontMetrics::HeightType type)
{
    heightType_ = type;
    updateGeometry();
}

void ZelMetricWidget::setMinSize(QSize const &size)
{
    minSize_ = size;
    updateGeometry();
}

QSize ZelMetricWidget::sizeHint() const
{
    return hintWithWidth(QWidget::sizeHint().width());
}

QSize ZelMetricWidget::minimumSizeHint() const
{
    return hintWithWidth(QWidget::minimumSizeHint().width());
}

QSize ZelMetricWidget::hintWithWidth(int width) const
{
    const QSize size(width, ZelFontMetrics(this).getHeight(heightType_));
    return size.expandedTo(minSize_) + extraSize_;
}
