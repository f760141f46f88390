// Conversions of colours, per colour: ZelColor beside the same formulas written straight into a
// loop, and beside QColor and the colour-management library where they do the same.
//
// "straight" is our time over that of the loop, "qcolor" and "lcms" over theirs; each is the median
// of runs taken in turn.

#include <ZelCore/ZelColor>
#include <ZelCore/ZelColorMath>

#include <QColor>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>
#include <lcms2.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

using ZelColorMath::Quad;
using ZelColorMath::Triple;
using Space = ZelColor::Space;
using Run = std::function<void()>;

constexpr int count = 2000;

std::vector<Triple> sampleRgb()
{
    std::vector<Triple> colors;
    quint32 seed = 1;
    const auto next = [&seed] {
        seed = seed * 1664525u + 1013904223u;
        return float(seed >> 8) / float(1 << 24);
    };
    for (int i = 0; i < count; ++i)
        colors.push_back({next(), next(), next()});
    return colors;
}

double nanoseconds(const Run &run)
{
    QElapsedTimer timer;
    timer.start();
    run();
    return double(timer.nsecsElapsed()) / count;
}

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// Ours against the others, in turn, until the benchmark has had enough.
void compare(benchmark::State &state, const Run &ours,
             const std::vector<std::pair<const char *, Run>> &others)
{
    std::vector<double> ourTimes;
    std::vector<std::vector<double>> theirTimes(others.size());
    for ([[maybe_unused]] const auto _ : state) {
        ourTimes.push_back(nanoseconds(ours));
        for (size_t i = 0; i < others.size(); ++i)
            theirTimes[i].push_back(nanoseconds(others[i].second));
    }
    state.counters["ns"] = median(ourTimes);
    for (size_t i = 0; i < others.size(); ++i)
        state.counters[others[i].first] = median(ourTimes) / median(theirTimes[i]);
}

template <typename From, typename Convert>
Run overAll(const std::vector<From> &colors, Convert convert)
{
    return [&colors, convert] {
        for (const From &color : colors)
            benchmark::DoNotOptimize(convert(color));
    };
}

std::vector<ZelColor> asZelColors(Space space)
{
    std::vector<ZelColor> colors;
    for (const Triple &rgb : sampleRgb()) {
        const ZelColor color(Space::RGB, rgb[0], rgb[1], rgb[2]);
        const Quad cmyk = color.toCMYK();
        const Triple triple = space == Space::HSV   ? color.toHSV()
                              : space == Space::XYZ ? color.toXYZ()
                              : space == Space::Lab ? color.toLab()
                                                    : rgb;
        if (space == Space::CMYK)
            colors.emplace_back(space, cmyk[0], cmyk[1], cmyk[2], cmyk[3]);
        else
            colors.emplace_back(space, triple[0], triple[1], triple[2]);
    }
    return colors;
}

/// The plain ways. Each colour's numbers lie in an array.
namespace Straight {

Triple hsvToRgb(const Quad &c)
{
    const float x = c[0] / 60.0f;
    const int i = int(std::floor(x));
    const float f = x - float(i);
    const float p = (1.0f - c[1]) * c[2];
    const float q = (1.0f - f * c[1]) * c[2];
    const float t = (1.0f - (1.0f - f) * c[1]) * c[2];
    switch (i % 6) {
    case 0:
        return {c[2], t, p};
    case 1:
        return {q, c[2], p};
    case 2:
        return {p, c[2], t};
    case 3:
        return {p, q, c[2]};
    case 4:
        return {t, p, c[2]};
    default:
        return {c[2], p, q};
    }
}

Triple rgbToHsv(const Quad &c)
{
    const float most = std::max({c[0], c[1], c[2]});
    const float least = std::min({c[0], c[1], c[2]});
    const float d = most - least;
    if (d < 0.0001f)
        return {0.0f, 0.0f, most};
    float hue;
    if (most - c[0] < 0.0001f)
        hue = (c[1] - c[2]) / d;
    else if (most - c[1] < 0.0001f)
        hue = (c[2] - c[0]) / d + 2.0f;
    else
        hue = (c[0] - c[1]) / d + 4.0f;
    hue *= 60.0f;
    if (hue < 0.0f)
        hue += 360.0f;
    if (hue >= 360.0f)
        hue -= 360.0f;
    return {hue, d / most, most};
}

Quad rgbToCmyk(const Quad &c)
{
    const float k = 1.0f - std::max({c[0], c[1], c[2]});
    if (k > 0.9999f)
        return {0.0f, 0.0f, 0.0f, k};
    return {(1.0f - c[0] - k) / (1.0f - k), (1.0f - c[1] - k) / (1.0f - k),
            (1.0f - c[2] - k) / (1.0f - k), k};
}

float decoded(float c)
{
    return c > 0.04045f ? std::pow((c + 0.055f) / 1.055f, 2.4f) : c / 12.92f;
}

Triple rgbToXyz(const Quad &c)
{
    const float r = decoded(c[0]) * 100.0f;
    const float g = decoded(c[1]) * 100.0f;
    const float b = decoded(c[2]) * 100.0f;
    return {0.412453f * r + 0.35758f * g + 0.180423f * b,
            0.212671f * r + 0.71516f * g + 0.072169f * b,
            0.019334f * r + 0.119193f * g + 0.950227f * b};
}

float encoded(float c)
{
    const float v = c > 0.0031308f ? std::pow(c, 0.41666666f) * 1.055f - 0.055f : c * 12.92f;
    return std::clamp(v, 0.0f, 1.0f);
}

Triple xyzToRgb(const Quad &c)
{
    const float x = c[0] / 100.0f;
    const float y = c[1] / 100.0f;
    const float z = c[2] / 100.0f;
    return {encoded(3.240479f * x - 1.53715f * y - 0.498535f * z),
            encoded(-0.969256f * x + 1.875992f * y + 0.041556f * z),
            encoded(0.055648f * x - 0.204043f * y + 1.057311f * z)};
}

float root(float t)
{
    return t > 0.008856f ? std::pow(t, 0.33333334f) : 7.787f * t + 0.13793103f;
}

Triple xyzToLab(const Quad &c)
{
    const float x = root(c[0] / 95.047f);
    const float y = root(c[1] / 100.0f);
    const float z = root(c[2] / 108.883f);
    return {116.0f * y - 16.0f, 500.0f * (x - y), 200.0f * (y - z)};
}

Triple labToXyz(const Quad &c)
{
    const auto cube = [](float f) {
        return f * f * f > 0.008856f ? f * f * f : (f - 0.13793103f) / 7.787f;
    };
    const float y = (c[0] + 16.0f) / 116.0f;
    return {cube(c[1] / 500.0f + y) * 95.047f, cube(y) * 100.0f,
            cube(y - c[2] / 200.0f) * 108.883f};
}

} // namespace Straight

/// Ours and the straight loop over the same colours; the members' type is that of ZelColor.
template <typename Ours, typename Plain>
void compareWithLoop(benchmark::State &state, Space from, Ours ours, Plain plain,
                     std::vector<std::pair<const char *, Run>> others = {})
{
    const std::vector<ZelColor> colors = asZelColors(from);
    std::vector<Quad> numbers;
    for (const ZelColor &color : colors)
        numbers.push_back(color.components());
    others.emplace_back("straight", overAll(numbers, plain));
    compare(state, overAll(colors, ours), others);
}

void hsvToRgb(benchmark::State &state)
{
    std::vector<QColor> qcolors;
    for (const Triple &rgb : sampleRgb())
        qcolors.push_back(QColor::fromRgbF(rgb[0], rgb[1], rgb[2]).toHsv());
    compareWithLoop(state, Space::HSV, std::mem_fn(&ZelColor::toRGB), Straight::hsvToRgb,
                    {{"qcolor", overAll(qcolors, std::mem_fn(&QColor::toRgb))}});
}
BENCHMARK(hsvToRgb);

void rgbToHsv(benchmark::State &state)
{
    std::vector<QColor> qcolors;
    for (const Triple &rgb : sampleRgb())
        qcolors.push_back(QColor::fromRgbF(rgb[0], rgb[1], rgb[2]));
    compareWithLoop(state, Space::RGB, std::mem_fn(&ZelColor::toHSV), Straight::rgbToHsv,
                    {{"qcolor", overAll(qcolors, std::mem_fn(&QColor::toHsv))}});
}
BENCHMARK(rgbToHsv);

void rgbToCmyk(benchmark::State &state)
{
    std::vector<QColor> qcolors;
    for (const Triple &rgb : sampleRgb())
        qcolors.push_back(QColor::fromRgbF(rgb[0], rgb[1], rgb[2]));
    compareWithLoop(state, Space::RGB, std::mem_fn(&ZelColor::toCMYK), Straight::rgbToCmyk,
                    {{"qcolor", overAll(qcolors, std::mem_fn(&QColor::toCmyk))}});
}
BENCHMARK(rgbToCmyk);

void rgbToXyz(benchmark::State &state)
{
    const cmsHPROFILE rgb = cmsCreate_sRGBProfile();
    const cmsHPROFILE xyz = cmsCreateXYZProfile();
    const cmsHTRANSFORM transform =
        cmsCreateTransform(rgb, TYPE_RGB_FLT, xyz, TYPE_XYZ_FLT, INTENT_RELATIVE_COLORIMETRIC, 0);
    std::vector<Triple> in = sampleRgb();
    std::vector<Triple> out(in.size());
    const Run lcms = [&] {
        cmsDoTransform(transform, in.data(), out.data(), cmsUInt32Number(in.size()));
        benchmark::DoNotOptimize(out.data());
    };
    compareWithLoop(state, Space::RGB, std::mem_fn(&ZelColor::toXYZ), Straight::rgbToXyz,
                    {{"lcms", lcms}});
    cmsDeleteTransform(transform);
    cmsCloseProfile(xyz);
    cmsCloseProfile(rgb);
}
BENCHMARK(rgbToXyz);

void xyzToRgb(benchmark::State &state)
{
    compareWithLoop(state, Space::XYZ, std::mem_fn(&ZelColor::toRGB), Straight::xyzToRgb);
}
BENCHMARK(xyzToRgb);

void xyzToLab(benchmark::State &state)
{
    std::vector<cmsCIEXYZ> in;
    for (const ZelColor &color : asZelColors(Space::XYZ)) {
        const Triple xyz = color.toXYZ();
        in.push_back({xyz[0] / 100.0, xyz[1] / 100.0, xyz[2] / 100.0});
    }
    const auto convert = [](const cmsCIEXYZ &xyz) {
        static const cmsCIEXYZ white = {0.95047, 1.0, 1.08883};
        cmsCIELab lab;
        cmsXYZ2Lab(&white, &lab, &xyz);
        return lab;
    };
    compareWithLoop(state, Space::XYZ, std::mem_fn(&ZelColor::toLab), Straight::xyzToLab,
                    {{"lcms", overAll(in, convert)}});
}
BENCHMARK(xyzToLab);

void labToXyz(benchmark::State &state)
{
    compareWithLoop(state, Space::Lab, std::mem_fn(&ZelColor::toXYZ), Straight::labToXyz);
}
BENCHMARK(labToXyz);

void blackBody(benchmark::State &state)
{
    float kelvin = 2500.0f;
    for ([[maybe_unused]] const auto _ : state) {
        benchmark::DoNotOptimize(ZelColorMath::blackBodyToXyz(kelvin));
        kelvin = kelvin < 9500.0f ? kelvin + 70.0f : 2500.0f;
    }
}
BENCHMARK(blackBody);

void correlatedTemperature(benchmark::State &state)
{
    const Triple xyz = ZelColor().toXYZ();
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(ZelColorMath::temperature(xyz));
}
BENCHMARK(correlatedTemperature);

} // namespace

BENCHMARK_MAIN();
