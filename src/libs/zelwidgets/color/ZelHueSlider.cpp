#include "color/ZelHueSlider.h"

#include "ZelControlWheel.h"
#include "ZelSliderAccessible.h"
#include "color/ZelColorConversion.h"
#include "color/ZelColorHandle.h"
#include "color/ZelColorSliderKeys.h"
#include "color/ZelColorStrip.h"

#include <ZelCore/ZelGammaPolicy>

#include <QMouseEvent>

namespace {

constexpr int lastHue = 359;
constexpr int stripWidth = 16;
constexpr QSize usualSize(20, 200);

class AccessibleHue : public ZelSliderAccessible
{
public:
    using ZelSliderAccessible::ZelSliderAccessible;
    QString text(QAccessible::Text kind) const override
    {
        const QString text = ZelSliderAccessible::text(kind);
        const QString suffix = ZelColorChannel::field(ZelColorChannel::Mode::Hue).suffix;
        return kind == QAccessible::Value ? text + suffix : text;
    }
};

} // namespace

ZelHueSlider::ZelHueSlider(QWidget *parent)
    : QSlider(Qt::Vertical, parent)
{
    ZelAccessibleValue::serve<AccessibleHue, ZelHueSlider>();
    setAccessibleName(ZelColorChannel::label(ZelColorChannel::Mode::Hue));
    setRange(0, lastHue);
    ZelColorSliderKeys::setSteps(this);
    setFixedWidth(int(stripWidth / devicePixelRatioF()));
    makeStrip();
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    connect(policy, &ZelGammaPolicy::gammaCorrectChanged, this, &ZelHueSlider::makeStrip);
    connect(policy, &ZelGammaPolicy::gammaChanged, this, &ZelHueSlider::makeStrip);
}

ZelHueSlider::~ZelHueSlider() = default;

void ZelHueSlider::setCursorColor(const QColor &color)
{
    cursorColor_ = color;
    update();
}

void ZelHueSlider::makeStrip()
{
    strip_ = QPixmap::fromImage(ZelColorStrip::hues(ZelColorStrip::exponent(false)));
    scaledStrip_ = QPixmap();
    update();
}

const QPixmap &ZelHueSlider::scaledStrip()
{
    if (scaledStrip_.size() != ZelColorHandle::scaledSize(this))
        scaledStrip_ = ZelColorHandle::scaled(strip_, this);
    return scaledStrip_;
}

QSize ZelHueSlider::sizeHint() const
{
    return usualSize;
}

void ZelHueSlider::goTo(int y)
{
    setValue(lastHue + 1 - ZelColorHandle::stepAt(y, height(), lastHue));
}

void ZelHueSlider::keyPressEvent(QKeyEvent *event)
{
    if (!ZelColorSliderKeys::goByTenth(this, event))
        QSlider::keyPressEvent(event);
}

void ZelHueSlider::mousePressEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    if (event->button() != Qt::LeftButton || !rect().contains(place)) {
        event->ignore();
        return;
    }
    dragging_ = true;
    goTo(place.y());
}

void ZelHueSlider::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    if (dragging_ && event->buttons().testFlag(Qt::LeftButton) && rect().contains(place))
        goTo(place.y());
}

void ZelHueSlider::mouseReleaseEvent(QMouseEvent *)
{
    dragging_ = false;
}

void ZelHueSlider::paintEvent(QPaintEvent *)
{
    const int diameter = ZelColorHandle::diameter(width());
    const int steps = maximum() - sliderPosition();
    const int y = ZelColorHandle::offset(steps, maximum() - minimum(), height(), diameter);
    const QRect handle(ZelColorHandle::across(width()), y, diameter, diameter);
    const ZelColor pure(ZelColor::Space::HSV, float(sliderPosition()), 1.0f, 1.0f);
    ZelColorHandle::paint(this, {scaledStrip(), handle, cursorColor_, toDisplayQColor(pure)});
}

void ZelHueSlider::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turn(event, [this](QWheelEvent *turned) { QSlider::wheelEvent(turned); });
}
