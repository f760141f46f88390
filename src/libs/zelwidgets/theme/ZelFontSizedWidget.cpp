#include "ZelFontSizedWidget.h"

#include "ZelFontMetrics.h"

#include <algorithm>

namespace {

int pixels(unsigned int units, int pixelsPerUnit)
{
    const quint64 wanted = quint64(units) * quint64(std::max(pixelsPerUnit, 0));
    return static_cast<int>(std::min<quint64>(wanted, QWIDGETSIZE_MAX));
}

QSize inFontUnits(QSize base, const QWidget *widget, std::optional<unsigned int> width,
                  std::optional<unsigned int> height)
{
    const ZelFontMetrics metrics(widget);
    if (width)
        base.setWidth(pixels(*width, metrics.widthM()));
    if (height)
        base.setHeight(pixels(*height, metrics.height()));
    return base;
}

} // namespace

ZelFontSizedWidget::ZelFontSizedWidget(QWidget *parent)
    : QWidget(parent)
{}

void ZelFontSizedWidget::setSizeHint(std::optional<unsigned int> width,
                                     std::optional<unsigned int> height)
{
    hintWidth_ = width;
    hintHeight_ = height;
    updateGeometry();
}

void ZelFontSizedWidget::setMinimumSizeHint(std::optional<unsigned int> width,
                                            std::optional<unsigned int> height)
{
    minimumHintWidth_ = width;
    minimumHintHeight_ = height;
    updateGeometry();
}

QSize ZelFontSizedWidget::sizeHint() const
{
    return inFontUnits(QWidget::sizeHint(), this, hintWidth_, hintHeight_);
}

QSize ZelFontSizedWidget::minimumSizeHint() const
{
    return inFontUnits(QWidget::minimumSizeHint(), this, minimumHintWidth_, minimumHintHeight_);
}
