#include "gradient/ZelGradientStop.h"

#include <ZelWidgets/ZelGradient>

#include <QPointer>

#include <algorithm>
#include <cmath>

/// The stop behind its handles.
struct ZelGradientStop::Impl
{
    static constexpr int noKind = -1;
    static constexpr int alphaKind = 0;
    static constexpr int colorKind = 1;

    QPointer<ZelGradient> parent;
    float location = 0.0f;
    float slopeIn = 1.0f;
    float slopeOut = 1.0f;
    ZelColor color;
    float gain = 1.0f;
    float alpha = 1.0f;
    int kind = noKind;
};

namespace {

constexpr float steepest = 4.0f;

float clampedLocation(float location)
{
    return location > 0.0f ? std::min(location, 1.0f) : 0.0f;
}

/// Stores the number in its limits; false if it is none or the present one.
bool store(float &field, float value, float limit)
{
    const float clamped = std::clamp(value, 0.0f, limit);
    if (std::isnan(value) || clamped == field)
        return false;
    field = clamped;
    return true;
}

} // namespace

ZelGradientStop::ZelGradientStop(ZelGradient *parent, float location, const ZelColor &color,
                                 float gain)
    : impl_(std::make_shared<Impl>())
{
    impl_->parent = parent;
    impl_->location = clampedLocation(location);
    impl_->color = color;
    impl_->gain = gain;
    impl_->kind = Impl::colorKind;
}

ZelGradientStop::ZelGradientStop(ZelGradient *parent, float location, float alpha)
    : impl_(std::make_shared<Impl>())
{
    impl_->parent = parent;
    impl_->location = clampedLocation(location);
    impl_->alpha = alpha;
    impl_->kind = Impl::alphaKind;
}

const ZelGradientStop::Impl &ZelGradientStop::read() const
{
    static const Impl none;
    return impl_ ? *impl_ : none;
}

ZelGradientStop::operator bool() const
{
    return impl_ && impl_->parent;
}

bool ZelGradientStop::isAlpha() const
{
    return read().kind == Impl::alphaKind;
}

bool ZelGradientStop::isColor() const
{
    return read().kind == Impl::colorKind;
}

ZelGradient *ZelGradientStop::parent() const
{
    return read().parent;
}

float ZelGradientStop::location() const
{
    return read().location;
}

float ZelGradientStop::slopeIn() const
{
    return read().slopeIn;
}

float ZelGradientStop::slopeOut() const
{
    return read().slopeOut;
}

ZelColor ZelGradientStop::color() const
{
    return read().color;
}

float ZelGradientStop::gain() const
{
    return read().gain;
}

float ZelGradientStop::alpha() const
{
    return read().alpha;
}

void ZelGradientStop::setLocation(float location)
{
    if (!impl_ || std::isnan(location))
        return;
    ZelGradient *gradient = impl_->parent;
    const float stored = gradient ? clampedLocation(location) : location;
    if (stored == impl_->location)
        return;
    impl_->location = stored;
    if (gradient)
        gradient->sortStops();
    notifyChange();
}

void ZelGradientStop::setSlopeIn(float slope)
{
    if (impl_ && store(impl_->slopeIn, slope, steepest))
        notifyChange();
}

void ZelGradientStop::setSlopeOut(float slope)
{
    if (impl_ && store(impl_->slopeOut, slope, steepest))
        notifyChange();
}

void ZelGradientStop::setColor(const ZelColor &color)
{
    if (!impl_)
        return;
    impl_->color = color;
    notifyChange();
}

void ZelGradientStop::setGain(float gain)
{
    if (!impl_ || !(gain >= 0.0f))
        return;
    impl_->gain = gain;
    notifyChange();
}

void ZelGradientStop::setAlpha(float alpha)
{
    if (impl_ && store(impl_->alpha, alpha, 1.0f))
        notifyChange();
}

ZelGradientStop ZelGradientStop::clone(ZelGradient *parent) const
{
    if (!impl_ || !parent || (isAlpha() && !parent->hasAlpha()))
        return {};
    ZelGradientStop copy;
    copy.impl_ = std::make_shared<Impl>(*impl_);
    copy.impl_->parent = parent;
    // A stop without a gradient may have been put anywhere.
    copy.impl_->location = clampedLocation(impl_->location);
    parent->insertAtTail(copy);
    return copy;
}

void ZelGradientStop::invalidate()
{
    if (impl_)
        impl_->parent.clear();
    impl_.reset();
}

bool ZelGradientStop::operator<(const ZelGradientStop &other) const
{
    const Impl &mine = read();
    const Impl &its = other.read();
    return mine.kind != its.kind ? mine.kind < its.kind : mine.location < its.location;
}

void ZelGradientStop::notifyChange() const
{
    if (ZelGradient *gradient = impl_->parent)
        Q_EMIT gradient->gradientChanged();
}

void ZelGradientStop::place(float location)
{
    impl_->location = location;
}

void ZelGradientStop::mirror()
{
    impl_->location = 1.0f - impl_->location;
    std::swap(impl_->slopeIn, impl_->slopeOut);
}
