#include "color/ZelColorSlider.h"

#include "ZelSliderAccessible.h"
#include "color/ZelColorHandle.h"
#include "color/ZelColorSliderKeys.h"
#include "color/ZelColorStrip.h"

#include <ZelCore/ZelGammaPolicy>

#include <QMouseEvent>

ZelColorSlider::ZelColorSlider(RGBMode mode, QWidget *parent)
    : ZelSlider(Qt::Horizontal, parent)
    , mode_(mode)
{
    ZelAccessibleValue::serve<ZelSliderAccessible, ZelColorSlider>();
    setAccessibleName(ZelColorChannel::label(mode));
    setLayoutDirection(Qt::LeftToRight);
    const ZelColorChannel::Range range = ZelColorChannel::sliderRange(mode);
    setRange(range.minimum, range.maximum);
    ZelColorSliderKeys::setSteps(this);
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    connect(policy, &ZelGammaPolicy::gammaCorrectChanged, this, &ZelColorSlider::invalidateStrip);
    connect(policy, &ZelGammaPolicy::gammaChanged, this, &ZelColorSlider::invalidateStrip);
}

ZelColorSlider::~ZelColorSlider() = default;

void ZelColorSlider::setCursorColor(const QColor &color)
{
    cursorColor_ = color;
    update();
}

void ZelColorSlider::updatePixmap(const ZelColor &color, bool showGamma)
{
    color_ = color;
    showGamma_ = showGamma;
    invalidateStrip();
}

void ZelColorSlider::invalidateStrip()
{
    isStripDirty_ = true;
    update();
}

const QPixmap &ZelColorSlider::strip()
{
    if (isStripDirty_) {
        isStripDirty_ = false;
        scaledStrip_ = QPixmap();
        strip_ = QPixmap::fromImage(ZelColorStrip::image(
            mode_, color_, ZelColorStrip::exponent(showGamma_), {minimum(), maximum()}));
    }
    return strip_;
}

const QPixmap &ZelColorSlider::scaledStrip()
{
    const QPixmap &whole = strip();
    if (scaledStrip_.size() != ZelColorHandle::scaledSize(this))
        scaledStrip_ = ZelColorHandle::scaled(whole, this);
    return scaledStrip_;
}

void ZelColorSlider::goTo(int x)
{
    setValue(minimum() + ZelColorHandle::stepAt(x, width(), maximum() - minimum()));
}

void ZelColorSlider::keyPressEvent(QKeyEvent *event)
{
    if (!ZelColorSliderKeys::goByTenth(this, event))
        ZelSlider::keyPressEvent(event);
}

void ZelColorSlider::mousePressEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    if (event->button() != Qt::LeftButton || !rect().contains(place)) {
        event->ignore();
        return;
    }
    dragging_ = true;
    goTo(place.x());
}

void ZelColorSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (dragging_ && event->buttons().testFlag(Qt::LeftButton))
        goTo(event->position().toPoint().x());
}

void ZelColorSlider::mouseReleaseEvent(QMouseEvent *)
{
    dragging_ = false;
}

void ZelColorSlider::paintEvent(QPaintEvent *)
{
    const int diameter = ZelColorHandle::diameter(height());
    const int steps = sliderPosition() - minimum();
    const int x = ZelColorHandle::offset(steps, maximum() - minimum(), width(), diameter);
    const QRect handle(x, ZelColorHandle::across(height()), diameter, diameter);
    ZelColorHandle::paint(this, {scaledStrip(), handle, cursorColor_, Qt::NoBrush});
}
