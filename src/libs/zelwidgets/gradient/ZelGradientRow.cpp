#include "gradient/ZelGradientRow.h"

#include "gradient/ZelGradientBytes.h"

#include <algorithm>
#include <cmath>

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

/// Some neighbouring pixels on their way. The steps are loops of their own, none with more than one
/// choice in it: so each becomes a loop of vector instructions.
struct Block
{
    static constexpr int size = 128;
    using Floats = std::array<float, size>;

    size_t count;
    Floats locations;
    Floats weights;
    Floats red;
    Floats green;
    Floats blue;
    Floats alpha;
};

void locate(int pixel, float last, Block &block)
{
    for (size_t i = 0; i < block.count; ++i)
        block.locations[i] = locationOf(pixel + int(i), last);
}

/// What ZelGradientRow::weight() gives. A location before the start has the weight of the start.
void weigh(const BlendCurve &curve, Block &block)
{
    const BlendCurve blend = curve;
    // An interval without extent is through behind its start only.
    const float through = std::max(blend.end, std::nextafter(blend.start, 2.0f));
    for (size_t i = 0; i < block.count; ++i) {
        const float u =
            ZelGradientBytes::atLeast0((block.locations[i] - blend.start) * blend.invSpan);
        block.weights[i] = ((blend.a * u + blend.b) * u + blend.c) * u;
    }
    for (size_t i = 0; i < block.count; ++i)
        block.weights[i] = ZelGradientBytes::atLeast0(block.weights[i]);
    for (size_t i = 0; i < block.count; ++i)
        block.weights[i] = ZelGradientBytes::atMost1(block.weights[i]);
    for (size_t i = 0; i < block.count; ++i)
        block.weights[i] = block.locations[i] >= through ? 1.0f : block.weights[i];
}

void mix(float from, float to, const Block &block, Block::Floats &channel)
{
    const float range = to - from;
    for (size_t i = 0; i < block.count; ++i)
        channel[i] = ZelGradientBytes::atLeast0(from + range * block.weights[i]);
}

void evaluate(const AlphaWalk &alpha, const ColorWalk &color, int pixel, float last, Block &block)
{
    locate(pixel, last, block);
    weigh(alpha.curve(), block);
    mix(alpha.from(), alpha.to(), block, block.alpha);
    weigh(color.curve(), block);
    mix(color.from()[0], color.to()[0], block, block.red);
    mix(color.from()[1], color.to()[1], block, block.green);
    mix(color.from()[2], color.to()[2], block, block.blue);
}

template <typename Byte>
void encode(const Block &block, Byte &&byte, QRgb *pixels)
{
    const auto channel = [&](float value) {
        return uint(byte(ZelGradientBytes::atMost1(value)));
    };
    for (size_t i = 0; i < block.count; ++i) {
        const auto alpha = uint(ZelGradientBytes::plain(ZelGradientBytes::atMost1(block.alpha[i])));
        pixels[i] = alpha << 24 | channel(block.red[i]) << 16 | channel(block.green[i]) << 8 |
                    channel(block.blue[i]);
    }
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
            block.count = size_t(count);
            evaluate(alpha, color, pixel, last, block);
            encode(block, byte, row.data() + pixel);
            pixel += count;
        }
    }
}

QRgb pixelOf(const Rgb &rgb, float alpha, float exponent)
{
    const auto shown = [](float value) {
        return ZelGradientBytes::atMost1(ZelGradientBytes::atLeast0(value));
    };
    const auto channel = [&](float value) {
        return exponent == 1.0f ? ZelGradientBytes::plain(shown(value))
                                : ZelGradientBytes::of(exponent).raised(shown(value));
    };
    return qRgba(channel(rgb[0]), channel(rgb[1]), channel(rgb[2]),
                 ZelGradientBytes::plain(shown(alpha)));
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
        const QRgb value = pixelOf(color.current() ? color.current()->rgb : white,
                                   alpha.current() ? alpha.current()->alpha : 1.0f, exponent);
        std::fill(row.data() + pixel, row.data() + end, value);
        pixel = end;
    }
}
