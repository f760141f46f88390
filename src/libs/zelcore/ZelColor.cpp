#include "ZelColor.h"

namespace {

bool withinDistance(const std::array<float, 3> &a, const std::array<float, 3> &b, float limit)
{
    return std::abs(a[0] - b[0]) < limit && std::abs(a[1] - b[1]) < limit &&
           std::abs(a[2] - b[2]) < limit;
}

} // namespace

ZelColor::ZelColor(Space space, float first, float second, float third, float fourth)
    : space_(space)
    , components_{first, second, third, space == Space::CMYK ? fourth : 0.0f}
{}

std::array<float, 3> ZelColor::toXYZ() const
{
    switch (space_) {
    case Space::XYZ:
        return triple();
    case Space::RGB:
    case Space::HSV:
    case Space::CMYK:
        return ZelColorMath::rgbToXyz(toRGB());
    case Space::Lab:
        return ZelColorMath::labToXyz(triple());
    }
    return {0.0f, 0.0f, 0.0f};
}

std::array<float, 3> ZelColor::toLab() const
{
    return space_ == Space::Lab ? triple() : ZelColorMath::xyzToLab(toXYZ());
}

bool ZelColor::operator==(const ZelColor &other) const
{
    if (space_ == Space::HSV || other.space_ == Space::HSV)
        return withinDistance(toHSV(), other.toHSV(), 0.0001f);
    return withinDistance(toXYZ(), other.toXYZ(), 0.001f);
}
