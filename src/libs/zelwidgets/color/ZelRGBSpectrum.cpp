#include "ZelRGBSpectrum.h"

#include "ZelAccessibleValue.h"
#include "ZelFocusFrame.h"
#include "color/ZelColorConversion.h"
#include "color/ZelSpectrumMath.h"

#include <ZelCore/ZelGammaPolicy>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace {

constexpr QSize usualSize(200, 200);
constexpr std::chrono::milliseconds calm(50);
constexpr int markerRadius = 5;
constexpr int markerWidth = 2;
constexpr float smallStep = 0.01F;
constexpr float largeStep = 0.1F;
constexpr double disabledOpacity = 0.4;

} // namespace

/// The saturation as number, both parts as text.
class AccessibleSpectrum : public ZelAccessibleValue
{
public:
    explicit AccessibleSpectrum(QWidget *widget)
        : ZelAccessibleValue(widget, QAccessible::ColorChooser)
    {}
    QVariant currentValue() const override { return qRound(spectrum()->color_.toHSV()[1] * 100); }
    void setCurrentValue(const QVariant &value) override
    {
        spectrum()->pick(value.toFloat() / 100, spectrum()->color_.toHSV()[2]);
    }
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value)
            return ZelAccessibleValue::text(kind);
        const auto hsv = spectrum()->color_.toHSV();
        return ZelRGBSpectrum::tr("Saturation %1 %, value %2 %")
            .arg(qRound(hsv[1] * 100))
            .arg(qRound(hsv[2] * 100));
    }

private:
    ZelRGBSpectrum *spectrum() const { return static_cast<ZelRGBSpectrum *>(object()); }
};

ZelRGBSpectrum::ZelRGBSpectrum(ZelColor const &color, QWidget *parent)
    : QWidget(parent)
    , color_(color)
    , hue_(color.toHSV()[0])
    , planeTimer_(new QTimer(this))
{
    ZelAccessibleValue::serve<AccessibleSpectrum, ZelRGBSpectrum>();
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFocusPolicy(Qt::StrongFocus);
    buildPlane();
    connect(planeTimer_, &QTimer::timeout, this, &ZelRGBSpectrum::updateTimerEvent);
    const ZelGammaPolicy *policyOfGamma = ZelGammaPolicy::get();
    connect(policyOfGamma, &ZelGammaPolicy::gammaCorrectChanged, this,
            &ZelRGBSpectrum::schedulePlane);
    connect(policyOfGamma, &ZelGammaPolicy::gammaChanged, this, &ZelRGBSpectrum::schedulePlane);
}

QSize ZelRGBSpectrum::sizeHint() const
{
    return usualSize;
}

int ZelRGBSpectrum::heightForWidth(int width) const
{
    return width;
}

void ZelRGBSpectrum::setColor(ZelColor color)
{
    if (color == color_)
        return;
    color_ = std::move(color);
    update();
}

void ZelRGBSpectrum::setHue(float hue)
{
    hue_ = hue;
    schedulePlane();
}

void ZelRGBSpectrum::schedulePlane()
{
    planeTimer_->start(calm);
}

void ZelRGBSpectrum::updateTimerEvent()
{
    buildPlane();
    update();
}

void ZelRGBSpectrum::buildPlane()
{
    const ZelGammaPolicy *gamma = ZelGammaPolicy::get();
    const float exponent = gamma->isGammaCorrectionEnabled() ? gamma->getInvGamma() : 1.0F;
    plane_ = QPixmap::fromImage(ZelSpectrumMath::plane(hue_, exponent));
    scaledPlane_ = QPixmap();
    planeTimer_->stop();
}

void ZelRGBSpectrum::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    setAttribute(Qt::WA_MouseTracking);
    pickAt(event->position());
}

void ZelRGBSpectrum::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setAttribute(Qt::WA_MouseTracking, false);
}

void ZelRGBSpectrum::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        pickAt(event->position());
}

void ZelRGBSpectrum::keyPressEvent(QKeyEvent *event)
{
    const float step = event->modifiers() & Qt::ShiftModifier ? largeStep : smallStep;
    const auto hsv = color_.toHSV();
    switch (event->key()) {
    case Qt::Key_Left:
        return pick(hsv[1] - step, hsv[2]);
    case Qt::Key_Right:
        return pick(hsv[1] + step, hsv[2]);
    case Qt::Key_Up:
        return pick(hsv[1], hsv[2] + step);
    case Qt::Key_Down:
        return pick(hsv[1], hsv[2] - step);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ZelRGBSpectrum::pickAt(QPointF point)
{
    const auto [saturation, value] = ZelSpectrumMath::at(point, size());
    pick(saturation, value);
}

void ZelRGBSpectrum::pick(float saturation, float value)
{
    saturation = std::clamp(saturation, 0.0F, 1.0F);
    value = std::clamp(value, 0.0F, 1.0F);
    Q_EMIT colorChanged(saturation, value);
    color_ = ZelColor(ZelColor::Space::HSV, color_.toHSV()[0], saturation, value);
    update();
    ZelAccessibleValue::announce(this, qRound(saturation * 100));
}

/// The plane in the pixels of the screen, made anew only if they or the plane changed.
const QPixmap &ZelRGBSpectrum::scaledPlane()
{
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (scaledPlane_.size() != pixels || scaledPlane_.devicePixelRatio() != ratio) {
        scaledPlane_ = plane_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaledPlane_.setDevicePixelRatio(ratio);
    }
    return scaledPlane_;
}

void ZelRGBSpectrum::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    seen_ = false;
}

void ZelRGBSpectrum::paintEvent(QPaintEvent *)
{
    if (!seen_ && planeTimer_->isActive())
        buildPlane();
    seen_ = true;
    const auto hsv = color_.toHSV();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : disabledOpacity);
    painter.drawPixmap(0, 0, scaledPlane());
    painter.setPen(QPen(ZelSpectrumMath::markerColor(toQColor(color_)), markerWidth, Qt::SolidLine,
                        Qt::SquareCap, Qt::BevelJoin));
    painter.drawEllipse(ZelSpectrumMath::pointOf({hsv[1], hsv[2]}, size()), markerRadius,
                        markerRadius);
    painter.end();
    if (hasFocus())
        ZelFocusFrame::paint(this);
}
