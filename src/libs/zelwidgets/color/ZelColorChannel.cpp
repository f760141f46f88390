#include "color/ZelColorChannel.h"

#include <ZelCore/ZelColorMath>

#include <QObject>

namespace ZelColorChannel {

namespace {

using Space = ZelColor::Space;

constexpr float fullByte = 255.0f;
constexpr float percent = 100.0f;
constexpr QChar degreeSign(0xB0);

/// Which of the components of its space the channel is.
size_t component(Mode mode)
{
    switch (mode) {
    case Mode::Green:
    case Mode::Saturation:
    case Mode::Magenta:
    case Mode::LabA:
        return 1;
    case Mode::Blue:
    case Mode::Value:
    case Mode::Yellow:
    case Mode::LabB:
        return 2;
    case Mode::Black:
        return 3;
    default:
        return 0;
    }
}

ZelColor replaced(Space space, std::array<float, 3> components, size_t index, float value)
{
    components[index] = value;
    return ZelColor(space, components[0], components[1], components[2]);
}

ZelColor withInk(const ZelColor &color, size_t index, float value)
{
    std::array<float, 4> inks = color.toCMYK();
    inks[index] = value;
    return ZelColor(Space::CMYK, inks[0], inks[1], inks[2], inks[3]);
}

ZelColor radiated(float kelvin)
{
    const auto [x, y, z] = ZelColorMath::blackBodyToXyz(kelvin);
    return ZelColor(Space::XYZ, x, y, z);
}

} // namespace

QString label(Mode mode)
{
    switch (mode) {
    case Mode::Red:
        return QObject::tr("Red");
    case Mode::Green:
        return QObject::tr("Green");
    case Mode::Blue:
        return QObject::tr("Blue");
    case Mode::Hue:
        return QObject::tr("Hue");
    case Mode::Saturation:
        return QObject::tr("Saturation");
    case Mode::Value:
        return QObject::tr("Value");
    case Mode::Cyan:
        return QObject::tr("Cyan");
    case Mode::Magenta:
        return QObject::tr("Magenta");
    case Mode::Yellow:
        return QObject::tr("Yellow");
    case Mode::Black:
        return QObject::tr("Black");
    case Mode::Brightness:
        return QObject::tr("Brightness");
    case Mode::LabL:
        return QObject::tr("L");
    case Mode::LabA:
        return QObject::tr("a");
    case Mode::LabB:
        return QObject::tr("b");
    case Mode::Temperature:
        return QObject::tr("Temperature");
    }
    return {};
}

Range sliderRange(Mode mode)
{
    switch (mode) {
    case Mode::Hue:
        return {0, 359};
    case Mode::Saturation:
    case Mode::Value:
    case Mode::Cyan:
    case Mode::Magenta:
    case Mode::Yellow:
    case Mode::Black:
    case Mode::Brightness:
    case Mode::LabL:
        return {0, 100};
    case Mode::LabA:
    case Mode::LabB:
        return {-128, 128};
    case Mode::Temperature:
        return {2500, 9500};
    default:
        return {0, 255};
    }
}

Field field(Mode mode)
{
    constexpr double hottest = 100000.0;
    const Range range = sliderRange(mode);
    Field field{double(range.minimum), double(range.maximum), 0, QString()};
    switch (mode) {
    case Mode::Red:
    case Mode::Green:
    case Mode::Blue:
        break;
    case Mode::Hue:
        field.suffix = QStringLiteral(" ") + degreeSign;
        break;
    case Mode::Saturation:
    case Mode::Value:
    case Mode::Cyan:
    case Mode::Magenta:
    case Mode::Yellow:
    case Mode::Black:
    case Mode::Brightness:
        field.suffix = QStringLiteral(" %");
        break;
    case Mode::Temperature:
        return {0.0, hottest, 0, QStringLiteral(" ") + degreeSign};
    default:
        field.decimals = 2;
    }
    return field;
}

float channelValue(Mode mode, const ZelColor &color)
{
    const size_t index = component(mode);
    switch (mode) {
    case Mode::Red:
    case Mode::Green:
    case Mode::Blue:
        return color.toRGB()[index] * fullByte;
    case Mode::Hue:
        return color.toHSV()[index];
    case Mode::Saturation:
    case Mode::Value:
        return color.toHSV()[index] * percent;
    case Mode::Cyan:
    case Mode::Magenta:
    case Mode::Yellow:
    case Mode::Black:
        return color.toCMYK()[index] * percent;
    case Mode::Brightness:
        return color.toRGB()[index] * percent;
    case Mode::LabL:
    case Mode::LabA:
    case Mode::LabB:
        return color.toLab()[index];
    case Mode::Temperature:
        return ZelColorMath::temperature(color.toXYZ());
    }
    return 0.0f;
}

ZelColor setChannelValue(Mode mode, const ZelColor &color, float number)
{
    const size_t index = component(mode);
    switch (mode) {
    case Mode::Red:
    case Mode::Green:
    case Mode::Blue:
        return replaced(Space::RGB, color.toRGB(), index, number / fullByte);
    case Mode::Hue:
        return replaced(Space::HSV, color.toHSV(), index, number);
    case Mode::Saturation:
    case Mode::Value:
        return replaced(Space::HSV, color.toHSV(), index, number / percent);
    case Mode::Cyan:
    case Mode::Magenta:
    case Mode::Yellow:
    case Mode::Black:
        return withInk(color, index, number / percent);
    case Mode::Brightness:
        return ZelColor(Space::RGB, number / percent, number / percent, number / percent);
    case Mode::LabL:
    case Mode::LabA:
    case Mode::LabB:
        return replaced(Space::Lab, color.toLab(), index, number);
    case Mode::Temperature:
        return radiated(number);
    }
    return color;
}

} // namespace ZelColorChannel
