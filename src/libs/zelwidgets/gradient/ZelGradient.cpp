#include "gradient/ZelGradient.h"

#include "gradient/ZelGradientRow.h"

#include <ZelCore/ZelGammaPolicy>

#include <QPointer>
#include <QVarLengthArray>

#include <algorithm>

using orv::color::BlendCurve;

namespace {

using StopIterator = ZelGradient::const_iterator;

constexpr int usualStops = 32;
using AlphaStops = QVarLengthArray<ZelGradientRow::AlphaStop, usualStops>;
using ColorStops = QVarLengthArray<ZelGradientRow::ColorStop, usualStops>;

ZelGradientRow::Knot knotOf(const ZelGradientStop &stop)
{
    return {stop.location(), stop.slopeIn(), stop.slopeOut()};
}

/// A row of pixels gets no further than a stop per pixel.
StopIterator reachableEnd(StopIterator first, StopIterator last, int width)
{
    return first + std::min(last - first, qsizetype(width) + 2);
}

AlphaStops alphaRecords(StopIterator first, StopIterator last)
{
    AlphaStops records;
    records.reserve(last - first);
    for (; first != last; ++first)
        records.append({knotOf(*first), first->alpha()});
    return records;
}

ColorStops colorRecords(StopIterator first, StopIterator last)
{
    ColorStops records;
    records.reserve(last - first);
    for (; first != last; ++first)
        records.append({knotOf(*first), first->color().toRGB()});
    return records;
}

float displayExponent()
{
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    return policy->isGammaCorrectionEnabled() ? policy->getInvGamma() : 1.0f;
}

/// The interval that a location belongs to. The last stop belongs to the interval before it.
int findIndex(StopIterator first, StopIterator last, float location)
{
    const auto count = int(last - first);
    if (count < 2)
        return count - 1;
    const auto behind =
        std::upper_bound(first, last, location, [](float value, const ZelGradientStop &stop) {
            return value < stop.location();
        });
    return behind == last ? count - 2 : std::max(int(behind - first) - 1, 0);
}

} // namespace

ZelGradient::ZelGradient(QFlags<Feature> features)
    : hasAlpha_(features.testFlag(Alpha))
    , hasHdrColors_(features.testFlag(Hdr))
{}

ZelGradient::~ZelGradient() = default;

ZelGradientStop ZelGradient::alphaStop(int index) const
{
    return index >= 0 && index < alphaCount_ ? stops_[index] : ZelGradientStop();
}

ZelGradientStop ZelGradient::colorStop(int index) const
{
    return index >= 0 && index < colorStops() ? stops_[alphaCount_ + index] : ZelGradientStop();
}

ZelGradientStop ZelGradient::before(const ZelGradientStop &stop) const
{
    const auto first = stop.isAlpha() ? begin() : alphaEnd();
    const auto found = std::find(first, end(), stop);
    return found == end() || found == first ? ZelGradientStop() : *(found - 1);
}

ZelGradientStop ZelGradient::after(const ZelGradientStop &stop) const
{
    const auto first = stop.isAlpha() ? begin() : alphaEnd();
    const auto last = stop.isAlpha() ? alphaEnd() : end();
    const auto found = std::find(first, last, stop);
    return last - found < 2 ? ZelGradientStop() : *(found + 1);
}

int ZelGradient::getIndexOfSelected() const
{
    return int(stops_.indexOf(selected_));
}

bool ZelGradient::getAlphaCurve(int index, BlendCurve &curve, float &fromAlpha,
                                float &toAlpha) const
{
    if (index < 0 || index >= alphaCount_ - 1)
        return false;
    const ZelGradientStop &from = stops_[index];
    const ZelGradientStop &to = stops_[index + 1];
    curve = ZelGradientRow::curve(knotOf(from), knotOf(to));
    fromAlpha = from.alpha();
    toAlpha = to.alpha();
    return true;
}

bool ZelGradient::getColorCurve(int index, BlendCurve &curve, ZelColor &from, ZelColor &to) const
{
    if (index < 0 || index >= colorStops() - 1)
        return false;
    const ZelGradientStop &start = stops_[alphaCount_ + index];
    const ZelGradientStop &end = stops_[alphaCount_ + index + 1];
    curve = ZelGradientRow::curve(knotOf(start), knotOf(end));
    from = start.color();
    to = end.color();
    return true;
}

ZelColor ZelGradient::computeColor(float location) const
{
    BlendCurve curve;
    ZelColor from;
    ZelColor to;
    if (!getColorCurve(findColorIndex(location), curve, from, to))
        return {};
    return blend(ZelGradientRow::weight(curve, location), from, to);
}

float ZelGradient::computeAlpha(float location) const
{
    BlendCurve curve;
    float from = 1.0f;
    float to = 1.0f;
    if (!getAlphaCurve(findAlphaIndex(location), curve, from, to))
        return 1.0f;
    return from + (to - from) * ZelGradientRow::weight(curve, location);
}

QImage ZelGradient::paint(int width) const
{
    if (width < 2)
        return {};
    QImage image(width, 1, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(0));
    if (blend_)
        paintBlended(width, pixels);
    else
        paintSolid(width, pixels);
    return image;
}

ZelGradientStop ZelGradient::addColorStop()
{
    return addColorStop(colorStops() < 2 ? 0.0f : findLargestSpanCenter(alphaEnd(), end()));
}

ZelGradientStop ZelGradient::addColorStop(float location)
{
    return addColorStop(location, computeColor(location));
}

ZelGradientStop ZelGradient::addColorStop(float location, const ZelColor &color)
{
    return addColorStop(location, color, 1.0f);
}

ZelGradientStop ZelGradient::addColorStop(float location, const ZelColor &color, float gain)
{
    const ZelGradientStop stop(this, location, color, gain);
    insertAtTail(stop);
    Q_EMIT gradientChanged();
    return stop;
}

ZelGradientStop ZelGradient::addAlphaStop()
{
    return addAlphaStop(alphaCount_ < 2 ? 0.0f : findLargestSpanCenter(begin(), alphaEnd()));
}

ZelGradientStop ZelGradient::addAlphaStop(float location)
{
    return addAlphaStop(location, computeAlpha(location));
}

ZelGradientStop ZelGradient::addAlphaStop(float location, float alpha)
{
    if (!hasAlpha_)
        return {};
    const ZelGradientStop stop(this, location, alpha);
    insertAtHead(stop);
    Q_EMIT gradientChanged();
    return stop;
}

void ZelGradient::removeStop(ZelGradientStop stop)
{
    const qsizetype index = stop.parent() == this ? stops_.indexOf(stop) : -1;
    if (index < 0)
        return;
    stops_.removeAt(index);
    if (stop.isAlpha())
        --alphaCount_;
    stop.invalidate();
    Q_EMIT gradientChanged();
}

void ZelGradient::clearStops()
{
    const QPointer<ZelGradient> self(this);
    alphaCount_ = 0;
    selected_ = {};
    Q_EMIT selectionChanged({});
    if (!self)
        return;
    for (ZelGradientStop &stop : stops_)
        stop.invalidate();
    stops_.clear();
    alphaCount_ = 0; // a listener may have added one
    Q_EMIT gradientChanged();
}

void ZelGradient::reset(const ZelGradient &other)
{
    // Taken first: the other may be this one, or go while listeners are told.
    const QList<ZelGradientStop> stops = other.stops_;
    const bool blend = other.blend_;
    const bool hasAlpha = other.hasAlpha_;
    const QPointer<ZelGradient> self(this);
    clearStops();
    if (!self)
        return;
    blend_ = blend;
    hasAlpha_ = hasAlpha;
    for (const ZelGradientStop &stop : stops)
        stop.clone(this);
    Q_EMIT gradientChanged();
    if (self)
        Q_EMIT selectionChanged({});
}

void ZelGradient::setBlend(bool blend)
{
    if (blend == blend_)
        return;
    blend_ = blend;
    Q_EMIT gradientChanged();
}

void ZelGradient::setSelected(const ZelGradientStop &stop)
{
    if (stop == selected_)
        return;
    selected_ = stop;
    Q_EMIT selectionChanged(stop);
}

void ZelGradient::clearSelection()
{
    selected_ = {};
    Q_EMIT selectionChanged({});
}

ZelColor ZelGradient::blend(float t, const ZelColor &a, const ZelColor &b)
{
    const auto from = a.toRGB();
    const auto to = b.toRGB();
    return {ZelColor::Space::RGB, from[0] + (to[0] - from[0]) * t, from[1] + (to[1] - from[1]) * t,
            from[2] + (to[2] - from[2]) * t};
}

int ZelGradient::findAlphaIndex(float location) const
{
    return findIndex(begin(), alphaEnd(), location);
}

int ZelGradient::findColorIndex(float location) const
{
    return findIndex(alphaEnd(), end(), location);
}

float ZelGradient::findLargestSpanCenter(const_iterator first, const_iterator last)
{
    float center = 0.5f;
    float maxSpan = -1.0f;
    for (; last - first > 1; ++first) {
        const float from = first->location();
        const float to = (first + 1)->location();
        if (to - from > maxSpan) {
            maxSpan = to - from;
            center = (to + from) * 0.5f;
        }
    }
    return center;
}

void ZelGradient::paintBlended(int width, unsigned int *pixels) const
{
    const auto alpha = alphaRecords(begin(), reachableEnd(begin(), alphaEnd(), width));
    const auto color = colorRecords(alphaEnd(), reachableEnd(alphaEnd(), end(), width));
    ZelGradientRow::paintBlended({alpha, color}, displayExponent(), {pixels, size_t(width)});
}

void ZelGradient::paintSolid(int width, unsigned int *pixels) const
{
    const auto alpha = alphaRecords(begin(), reachableEnd(begin(), alphaEnd(), width));
    const auto color = colorRecords(alphaEnd(), reachableEnd(alphaEnd(), end(), width));
    ZelGradientRow::paintSolid({alpha, color}, displayExponent(), {pixels, size_t(width)});
}

/// Where a stable sort would bring an opacity stop from the head of the list.
void ZelGradient::insertAtHead(const ZelGradientStop &stop)
{
    stops_.insert(std::lower_bound(begin(), alphaEnd(), stop), stop);
    ++alphaCount_;
}

/// Where a stable sort would bring a stop from the tail of the list.
void ZelGradient::insertAtTail(const ZelGradientStop &stop)
{
    const bool isAlpha = stop.isAlpha();
    stops_.insert(isAlpha ? std::upper_bound(begin(), alphaEnd(), stop)
                          : std::upper_bound(alphaEnd(), end(), stop),
                  stop);
    if (isAlpha)
        ++alphaCount_;
}

/// Stable, and quick because no more than one stop is out of its place.
void ZelGradient::sortStops()
{
    const auto first = stops_.begin();
    for (auto next = std::is_sorted_until(first, stops_.end()); next != stops_.end(); ++next)
        std::rotate(std::upper_bound(first, next, *next), next, next + 1);
}

void ZelGradient::reverse()
{
    for (ZelGradientStop &stop : stops_)
        stop.mirror();
    std::reverse(stops_.begin(), stops_.begin() + alphaCount_);
    std::reverse(stops_.begin() + alphaCount_, stops_.end());
    Q_EMIT gradientChanged();
}

void ZelGradient::distributeEvenly()
{
    const auto distribute = [this](int first, int count) {
        for (int i = 0; i < count && count > 1; ++i)
            stops_[first + i].place(float(i) / float(count - 1));
    };
    distribute(0, alphaCount_);
    distribute(alphaCount_, colorStops());
    Q_EMIT gradientChanged();
}
