#include "gradient/ZelGradientRow.h"

#include "gradient/ZelGradientBytes.h"

#include <algorithm>

using orv::color::BlendCurve;

namespace {

using Rgb = std::array<float, 3>;

constexpr Rgb white = {1.0f, 1.0f, 1.0f};

float locationOf(int pixel, float last)
{
    return float(pixel) / last;
}

/// The first pixel behind a location, or the width; none before `from`.
int pixelBehind(float location, int from, int width)
{
    const float last = float(width - 1);
    const auto isBehind = [&](int pixel) {
        return locationOf(pixel, last) > location;
    };
    int pixel = std::clamp(int(std::clamp(location, 0.0f, 1.0f) * last), from, width);
    while (pixel > from && isBehind(pixel - 1))
        --pixel;
    while (pixel < width && !isBehind(pixel))
        ++pixel;
    return pixel;
}

/// The interval of one kind that a row is in.
template <typename Stop, typename Value>
class Walk
{
public:
    Walk(orv::Span<const Stop> stops, Value Stop::*value, const Value &none)
        : stops_(stops)
        , value_(value)
        , from_(stops.empty() ? none : stops.front().*value)
        , to_(from_)
    {
        load();
    }

    const BlendCurve &curve() const { return curve_; }
    const Value &from() const { return from_; }
    const Value &to() const { return to_; }

    void enter(float location)
    {
        if (location > curve_.end)
            load();
    }

    /// Where the row may leave the interval for another.
    int nextEntry(int from, int width) const
    {
        return next_ + 1 < stops_.size() ? pixelBehind(curve_.end, from, width) : width;
    }

private:
    void load()
    {
        if (next_ + 1 >= stops_.size())
            return;
        const Stop &from = stops_[next_];
        const Stop &to = stops_[++next_];
        curve_ = ZelGradientRow::curve(from, to);
        from_ = from.*value_;
        to_ = to.*value_;
    }

    orv::Span<const Stop> stops_;
    Value Stop::*value_;
    size_t next_ = 0;
    BlendCurve curve_;
    Value from_;
    Value to_;
};

using AlphaWalk = Walk<ZelGradientRow::AlphaStop, float>;
using ColorWalk = Walk<ZelGradientRow::ColorStop, Rgb>;

/// Some neighbouring pixels as clamped floats.
struct Block
{
    static constexpr int size = 128;
    std::array<float, size> red;
    std::array<float, size> green;
    std::array<float, size> blue;
    std::array<float, size> alpha;
};

void evaluate(const AlphaWalk &alpha, const ColorWalk &color, int pixel, int count, float last,
              Block &block)
{
    const BlendCurve alphaCurve = alpha.curve();
    const BlendCurve colorCurve = color.curve();
    const float alphaFrom = alpha.from();
    const float alphaRange = alpha.to() - alphaFrom;
    const Rgb from = color.from();
    const Rgb range = {color.to()[0] - from[0], color.to()[1] - from[1], color.to()[2] - from[2]};
    for (int i = 0; i < count; ++i) {
        const float t = locationOf(pixel + i, last);
        const float blend = ZelGradientRow::weight(colorCurve, t);
        const auto at = size_t(i);
        block.red[at] = ZelGradientBytes::clamped(from[0] + range[0] * blend);
        block.green[at] = ZelGradientBytes::clamped(from[1] + range[1] * blend);
        block.blue[at] = ZelGradientBytes::clamped(from[2] + range[2] * blend);
        block.alpha[at] = ZelGradientBytes::clamped(
            alphaFrom + alphaRange * ZelGradientRow::weight(alphaCurve, t));
    }
}

template <typename Byte>
void encode(const Block &block, int count, Byte &&byte, QRgb *pixels)
{
    for (size_t i = 0; i < size_t(count); ++i) {
        const auto alpha = uint(ZelGradientBytes::plain(block.alpha[i]));
        pixels[i] = alpha << 24 | uint(byte(block.red[i])) << 16 | uint(byte(block.green[i])) << 8 |
                    uint(byte(block.blue[i]));
    }
}

QRgb pixelOf(const Rgb &rgb, float alpha, float exponent)
{
    const Block block = {{ZelGradientBytes::clamped(rgb[0])},
                         {ZelGradientBytes::clamped(rgb[1])},
                         {ZelGradientBytes::clamped(rgb[2])},
                         {ZelGradientBytes::clamped(alpha)}};
    QRgb pixel;
    if (exponent == 1.0f)
        encode(block, 1, &ZelGradientBytes::plain, &pixel);
    else
        encode(
            block, 1, [&](float channel) { return ZelGradientBytes::of(exponent).raised(channel); },
            &pixel);
    return pixel;
}

/// Paints the runs of pixels between which neither kind changes its interval.
template <typename Byte>
void paintRuns(const ZelGradientRow::Stops &stops, Byte &&byte, orv::Span<QRgb> row)
{
    const int width = int(row.size());
    const float last = float(width - 1);
    AlphaWalk alpha(stops.alpha, &ZelGradientRow::AlphaStop::alpha, 1.0f);
    ColorWalk color(stops.color, &ZelGradientRow::ColorStop::rgb, white);
    Block block;
    for (int pixel = 0; pixel < width;) {
        alpha.enter(locationOf(pixel, last));
        color.enter(locationOf(pixel, last));
        const int end =
            std::min(alpha.nextEntry(pixel + 1, width), color.nextEntry(pixel + 1, width));
        while (pixel < end) {
            const int count = std::min(end - pixel, Block::size);
            evaluate(alpha, color, pixel, count, last, block);
            encode(block, count, byte, row.data() + pixel);
            pixel += count;
        }
    }
}

/// The stop of one kind whose value a stepwise row has reached.
template <typename Stop>
class Step
{
public:
    explicit Step(orv::Span<const Stop> stops)
        : stops_(stops)
    {}

    /// Null if there are no stops.
    const Stop *current() const { return stops_.empty() ? nullptr : &stops_[next_ - 1]; }

    void enter(float location)
    {
        if (next_ < stops_.size() && location > stops_[next_].location)
            ++next_;
    }

    int nextEntry(int from, int width) const
    {
        return next_ < stops_.size() ? pixelBehind(stops_[next_].location, from, width) : width;
    }

private:
    orv::Span<const Stop> stops_;
    size_t next_ = 1;
};

} // namespace

BlendCurve ZelGradientRow::curve(const Knot &from, const Knot &to)
{
    return {from.location,
            to.location,
            1.0f / (to.location - from.location),
            to.slopeIn + from.slopeOut - 2.0f,
            3.0f - 2.0f * from.slopeOut - to.slopeIn,
            from.slopeOut};
}

void ZelGradientRow::paintBlended(const Stops &stops, float exponent, orv::Span<QRgb> row)
{
    if (exponent == 1.0f) {
        paintRuns(
            stops, [](float channel) { return ZelGradientBytes::plain(channel); }, row);
        return;
    }
    const ZelGradientBytes &bytes = ZelGradientBytes::of(exponent);
    paintRuns(
        stops, [&](float channel) { return bytes.raised(channel); }, row);
}

void ZelGradientRow::paintSolid(const Stops &stops, float exponent, orv::Span<QRgb> row)
{
    const int width = int(row.size());
    const float last = float(width - 1);
    Step<AlphaStop> alpha(stops.alpha);
    Step<ColorStop> color(stops.color);
    for (int pixel = 0; pixel < width;) {
        alpha.enter(locationOf(pixel, last));
        color.enter(locationOf(pixel, last));
        const int end =
            std::min(alpha.nextEntry(pixel + 1, width), color.nextEntry(pixel + 1, width));
        std::fill(row.data() + pixel, row.data() + end,
                  pixelOf(color.current() ? color.current()->rgb : white,
                          alpha.current() ? alpha.current()->alpha : 1.0f, exponent));
        pixel = end;
    }
}
