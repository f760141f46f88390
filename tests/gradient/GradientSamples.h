#pragma once

#include "TestCase.h"

#include <ZelWidgets/ZelGradient>

#include <limits>
#include <random>

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();

inline const ZelColor red(ZelColor::Space::RGB, 1, 0, 0);
inline const ZelColor blue(ZelColor::Space::RGB, 0, 0, 1);
inline const ZelColor black(ZelColor::Space::RGB, 0, 0, 0);
inline const ZelColor white;

using Floats = std::vector<float>;

class Random
{
public:
    explicit Random(uint seed)
        : engine_(seed)
    {}

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }
    float in(float least, float most)
    {
        return std::uniform_real_distribution<float>(least, most)(engine_);
    }
    /// A location, often one that others have too, now and then none at all.
    float location()
    {
        switch (upTo(9)) {
        case 0:
            return in(-1, 2);
        case 1:
            return std::array{noNumber, inf, -inf}[size_t(upTo(2))];
        case 2:
        case 3:
            return float(upTo(4)) / 4;
        default:
            return in(0, 1);
        }
    }
    ZelColor color()
    {
        return {ZelColor::Space(upTo(4)), in(-0.2F, 1.2F), in(-0.2F, 1.2F), in(-0.2F, 1.2F),
                in(0, 1)};
    }

private:
    std::mt19937 engine_;
};

inline ZelGradientStop anyStop(const ZelGradient &gradient, Random &random)
{
    const int count = gradient.stops();
    return count > 0 ? *(gradient.begin() + random.upTo(count - 1)) : ZelGradientStop();
}
