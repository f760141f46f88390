#pragma once

#include <ZelCore/ZelColorMath>
#include <ZelCore/zelcore_export.h>

#include <QMetaType>

#include <array>
#include <string>

/// A colour in one of five spaces, with an optional name. A plain value.
///
/// Asking for the components in another space never changes the object. The components are kept as
/// they are given, also outside their ranges; the formulas are those of ZelColorMath.
class ZELCORE_EXPORT ZelColor
{
public:
    enum class Space : int {
        XYZ,  ///< Y = 100 for white (D65)
        RGB,  ///< 0 to 1, sRGB-encoded
        HSV,  ///< hue in degrees, 0 up to below 360; saturation and value 0 to 1
        CMYK, ///< 0 to 1
        Lab,  ///< CIE-L*ab: L 0 to 100, a and b around -128 to 128
    };

    /// White, as RGB.
    ZelColor() = default;
    /// The fourth component is that of CMYK; the other spaces ignore it.
    ZelColor(Space space, float first, float second, float third, float fourth = 0.0f);

    Space space() const { return space_; }
    /// As they were given; the fourth is 0 in all spaces but CMYK.
    const std::array<float, 4> &components() const { return components_; }

    /// In UTF-8; empty at first.
    const std::string &name() const { return name_; }
    void setName(std::string name) { name_ = std::move(name); }

    /// (0, 0, 0) if the space is none of the five.
    std::array<float, 3> toXYZ() const;
    std::array<float, 3> toRGB() const;
    std::array<float, 3> toHSV() const;
    std::array<float, 4> toCMYK() const;
    std::array<float, 3> toLab() const;

    /// Whether the colours look the same; names don't count. If one of the two is HSV, both are
    /// compared in HSV within 0.0001, hue included, so that 0 and 359.99 degrees differ; else in
    /// XYZ within 0.001. A colour that isn't finite equals none.
    bool operator==(const ZelColor &other) const;
    bool operator!=(const ZelColor &other) const { return !(*this == other); }

private:
    std::array<float, 3> triple() const { return {components_[0], components_[1], components_[2]}; }
    /// toRGB(), small enough to be inlined.
    std::array<float, 3> rgb() const { return space_ == Space::RGB ? triple() : toRGB(); }

    Space space_ = Space::RGB;
    std::array<float, 4> components_ = {1.0f, 1.0f, 1.0f, 0.0f};
    std::string name_;
};

// Cheap enough for a call to be felt; the others are not.

inline std::array<float, 3> ZelColor::toRGB() const
{
    switch (space_) {
    case Space::RGB:
        return triple();
    case Space::HSV:
        return ZelColorMath::hsvToRgb(triple());
    case Space::CMYK:
        return ZelColorMath::cmykToRgb(components_);
    case Space::XYZ:
        return ZelColorMath::xyzToRgb(triple());
    default:
        return ZelColorMath::xyzToRgb(toXYZ());
    }
}

inline std::array<float, 3> ZelColor::toHSV() const
{
    return space_ == Space::HSV ? triple() : ZelColorMath::rgbToHsv(rgb());
}

inline std::array<float, 4> ZelColor::toCMYK() const
{
    return space_ == Space::CMYK ? components_ : ZelColorMath::rgbToCmyk(rgb());
}

Q_DECLARE_METATYPE(ZelColor)
