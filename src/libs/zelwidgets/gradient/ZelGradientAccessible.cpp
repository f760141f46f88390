#include "gradient/ZelGradientAccessible.h"

#include "gradient/ZelGradientCommands.h"

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientDisplay>

namespace {

constexpr double percent = 100.0;

} // namespace

AccessibleStops::AccessibleStops(QWidget *display)
    : ZelAccessibleParts(display, QAccessible::Grouping)
{}

ZelGradientDisplay *AccessibleStops::display() const
{
    return static_cast<ZelGradientDisplay *>(object());
}

int AccessibleStops::partCount() const
{
    const ZelGradient *gradient = display()->gradient();
    return gradient ? gradient->stops() : 0;
}

ZelAccessibleParts::Part AccessibleStops::part(int index) const
{
    const ZelGradient *gradient = display()->gradient();
    const ZelGradientStop stop = *(gradient->begin() + index);
    const int ofAlpha = gradient->alphaStops();
    Part part;
    part.name = stop.isAlpha()
                    ? ZelGradientDisplay::tr("Opacity stop %1 of %2").arg(index + 1).arg(ofAlpha)
                    : ZelGradientDisplay::tr("Color stop %1 of %2")
                          .arg(index - ofAlpha + 1)
                          .arg(gradient->colorStops());
    part.text = ZelGradientCommands::textOf(stop);
    part.value = double(stop.location()) * percent;
    part.maximum = percent;
    part.step = 1.0;
    part.area = display()->stopHitRect(stop);
    return part;
}

int AccessibleStops::currentPart() const
{
    const ZelGradient *gradient = display()->gradient();
    return gradient ? gradient->getIndexOfSelected() : -1;
}

void AccessibleStops::selectPart(int index)
{
    display()->select(*(display()->gradient()->begin() + index));
}

void AccessibleStops::setPartValue(int index, double value)
{
    display()->moveTo(*(display()->gradient()->begin() + index), float(value / percent));
    Q_EMIT display()->gradientChanged();
}
