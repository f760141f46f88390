#pragma once

#include "TestCase.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelColorLineEdit>
#include <ZelWidgets/ZelColorSliderEdit>

#include <array>
#include <cmath>

using Mode = ZelColorChannel::Mode;
using Space = ZelColor::Space;

inline const ZelColor &orange()
{
    static const ZelColor color(Space::RGB, 0.8f, 0.4f, 0.2f);
    return color;
}

inline ZelGammaPolicy *policy()
{
    return ZelGammaPolicy::get();
}

inline bool areNear(const ZelColor &one, const ZelColor &other, float limit)
{
    const std::array<float, 3> a = one.toRGB();
    const std::array<float, 3> b = other.toRGB();
    return std::abs(a[0] - b[0]) < limit && std::abs(a[1] - b[1]) < limit &&
           std::abs(a[2] - b[2]) < limit;
}

inline bool areNear(QRgb one, QRgb other, int limit)
{
    return std::abs(qRed(one) - qRed(other)) <= limit &&
           std::abs(qGreen(one) - qGreen(other)) <= limit &&
           std::abs(qBlue(one) - qBlue(other)) <= limit;
}

inline ZelColorSliderEdit *row(QWidget *input, int index)
{
    return input->findChildren<ZelColorSliderEdit *>().at(index);
}

inline QSlider *sliderOf(QWidget *row)
{
    return row->findChild<ZelColorSlider *>();
}

inline QDoubleSpinBox *fieldOf(QWidget *row)
{
    return row->findChild<ZelColorLineEdit *>();
}
