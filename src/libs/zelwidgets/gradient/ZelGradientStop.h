#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <memory>

class ZelGradient;

/// A handle on one stop of a gradient, cheap to copy: copies share the stop, and each sees every
/// edit.
///
/// The handle is valid as long as the stop belongs to a living gradient. One whose stop was removed
/// or whose gradient is gone is null; it still reads what the stop held last, and its setters store
/// without telling anyone. A handle that never had a stop reads location 0, white and no kind.
///
/// A number that is none (NaN) is dropped by every setter.
class ZELWIDGETS_EXPORT ZelGradientStop
{
public:
    /// A null handle.
    ZelGradientStop() = default;
    /// A colour stop that names the gradient as its own but isn't in its list; the gradient's
    /// addColorStop() makes one that is. The location is clamped to 0 to 1.
    ZelGradientStop(ZelGradient *parent, float location, const ZelColor &color, float gain);
    /// The same for an opacity stop. The opacity is kept as it is given.
    ZelGradientStop(ZelGradient *parent, float location, float alpha);

    explicit operator bool() const;
    bool isNull() const { return !bool(*this); }
    bool isAlpha() const;
    bool isColor() const;

    /// Null once the stop is removed or the gradient gone.
    ZelGradient *parent() const;
    /// 0 to 1.
    float location() const;
    /// The slopes of the blend where it arrives at the stop and where it leaves it, 0 to 4; 1 at
    /// first, which with a neighbour of slope 1 makes a straight line.
    float slopeIn() const;
    float slopeOut() const;
    /// Of a colour stop; white for others.
    ZelColor color() const;
    /// Brightness of a colour stop, kept for whoever renders the gradient: no painting applies it.
    float gain() const;
    /// Opacity of an opacity stop.
    float alpha() const;

    // Each of these makes the gradient emit gradientChanged().
    /// Clamped to 0 to 1 while the handle is valid; the stop takes its place in the gradient's
    /// order.
    void setLocation(float location);
    /// Clamped to 0 to 4.
    void setSlopeIn(float slope);
    void setSlopeOut(float slope);
    /// Tells of the colour even if it is the present one; so does setGain().
    void setColor(const ZelColor &color);
    /// Any number from 0 up; others are ignored.
    void setGain(float gain);
    /// Clamped to 0 to 1.
    void setAlpha(float alpha);

    /// Adds a copy of the stop to the gradient, behind the ones on its place, without a signal.
    /// Null if this is no stop, or an opacity stop that the gradient doesn't take.
    ZelGradientStop clone(ZelGradient *parent) const;
    /// Takes the stop from its gradient for all handles and empties this one. The gradient's list
    /// is left alone; removeStop() does the whole.
    void invalidate();

    /// Whether it is the same stop.
    bool operator==(const ZelGradientStop &other) const { return impl_ == other.impl_; }
    /// Opacity stops before colour stops, then by location.
    bool operator<(const ZelGradientStop &other) const;

private:
    friend class ZelGradient;
    struct Impl;

    const Impl &read() const;
    /// Without sorting and telling.
    void place(float location);
    void mirror();
    void notifyChange() const;

    std::shared_ptr<Impl> impl_;
};
