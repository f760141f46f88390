#include "ZelColorTriangle.h"

#include "ZelAccessibleValue.h"
#include "ZelFocusFrame.h"
#include "color/ZelColorConversion.h"
#include "color/ZelTriangleGeometry.h"
#include "color/ZelTrianglePainting.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QSize usualSize(100, 100);
constexpr int keyStep = 5;
constexpr int lastHue = 359;
constexpr double disabledOpacity = 0.4;

/// One colour, whatever the form that it is kept in.
bool looksLike(const QColor &one, const QColor &other)
{
    return one.toRgb() == other.toRgb();
}

} // namespace

/// The hue as number, and all of the colour as text.
class AccessibleTriangle : public ZelAccessibleValue
{
public:
    explicit AccessibleTriangle(QWidget *widget)
        : ZelAccessibleValue(widget, QAccessible::ColorChooser)
    {}
    QVariant currentValue() const override { return triangle()->currentHue_; }
    void setCurrentValue(const QVariant &value) override
    {
        const QColor &color = triangle()->currentColor_;
        triangle()->step(std::clamp(value.toInt(), 0, lastHue), color.hsvSaturation(),
                         color.value());
    }
    QVariant maximumValue() const override { return lastHue; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value)
            return ZelAccessibleValue::text(kind);
        const QColor &color = triangle()->currentColor_;
        return ZelColorTriangle::tr("Hue %1 °, saturation %2 %, value %3 %")
            .arg(triangle()->currentHue_)
            .arg(qRound(color.hsvSaturationF() * 100))
            .arg(qRound(color.valueF() * 100));
    }

private:
    ZelColorTriangle *triangle() const { return static_cast<ZelColorTriangle *>(object()); }
};

ZelColorTriangle::ZelColorTriangle(ZelColor const &color, QWidget *parent)
    : ZelSpectrumDisplay(parent)
    , geometry_(std::make_unique<ZelTriangleGeometry>())
    , background_(usualSize, QImage::Format_RGB32)
    , currentColor_(toQColor(color))
    , currentHue_(std::max(0, currentColor_.hsvHue()))
{
    ZelAccessibleValue::serve<AccessibleTriangle, ZelColorTriangle>();
    QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFocusPolicy(Qt::StrongFocus);
    geometry_->setSize(contentsRect().size());
    geometry_->setHue(currentHue_);
    selectorPoint_ = geometry_->pointOf(currentColor_);
}

ZelColorTriangle::~ZelColorTriangle() = default;

void ZelColorTriangle::setColor(ZelColor color)
{
    const QColor shown = toQColor(color);
    if (looksLike(shown, currentColor_))
        return;
    currentColor_ = shown;
    if (shown.hsvHue() >= 0)
        currentHue_ = shown.hsvHue();
    geometry_->setHue(currentHue_);
    selectorPoint_ = geometry_->pointOf(currentColor_);
    if (!isHidden())
        update();
}

QSize ZelColorTriangle::sizeHint() const
{
    return usualSize;
}

int ZelColorTriangle::heightForWidth(int width) const
{
    return width;
}

void ZelColorTriangle::keyPressEvent(QKeyEvent *event)
{
    const int saturation = currentColor_.hsvSaturation();
    const int value = currentColor_.value();
    const bool isSaturation = event->modifiers() & Qt::ShiftModifier;
    const auto stepBoth = [&](int by) {
        step(currentHue_, isSaturation ? saturation + by : saturation,
             isSaturation ? value : value + by);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return step(currentHue_ > 0 ? currentHue_ - 1 : lastHue, saturation, value);
    case Qt::Key_Right:
        return step(currentHue_ < lastHue ? currentHue_ + 1 : 0, saturation, value);
    case Qt::Key_Up:
        return stepBoth(-keyStep);
    case Qt::Key_Down:
        return stepBoth(keyStep);
    default:
        ZelSpectrumDisplay::keyPressEvent(event);
    }
}

void ZelColorTriangle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    const QPointF point = event->position() - contentsRect().topLeft();
    selectionMode_ = geometry_->isInsideRing(point) ? SelectionMode::Triangle : SelectionMode::Hue;
    pick(point);
}

void ZelColorTriangle::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        pick(event->position() - contentsRect().topLeft());
}

void ZelColorTriangle::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        selectionMode_ = SelectionMode::None;
}

void ZelColorTriangle::pick(QPointF point)
{
    if (selectionMode_ == SelectionMode::Triangle)
        pickInTriangle(point);
    else if (selectionMode_ == SelectionMode::Hue)
        pickHue(point);
}

void ZelColorTriangle::pickInTriangle(QPointF point)
{
    selectorPoint_ = geometry_->nearest(point);
    take(geometry_->colorAt(selectorPoint_, currentHue_));
}

void ZelColorTriangle::pickHue(QPointF point)
{
    geometry_->setAngle(geometry_->angleAt(point));
    currentHue_ = ZelTriangleGeometry::hueAt(geometry_->angleA());
    selectorPoint_ = geometry_->pointOf(currentColor_);
    take(QColor::fromHsv(currentHue_, currentColor_.hsvSaturation(), currentColor_.value()));
}

/// Goes to a colour by keys; what is out of range stays at its end.
void ZelColorTriangle::step(int hue, int saturation, int value)
{
    currentHue_ = hue;
    geometry_->setHue(currentHue_);
    const QColor color =
        QColor::fromHsv(currentHue_, std::clamp(saturation, 0, 255), std::clamp(value, 0, 255));
    selectorPoint_ = geometry_->pointOf(color);
    take(color);
}

/// The user's colour, whose place is known already. It is kept as HSV, so that a dark or pale one
/// loses nothing of its saturation by the way to RGB and back.
void ZelColorTriangle::take(const QColor &color)
{
    const bool isOther = !looksLike(color, currentColor_);
    currentColor_ = color;
    update();
    if (!isOther)
        return;
    ZelAccessibleValue::announce(this, currentHue_);
    Q_EMIT colorChanged(fromQColor(currentColor_));
}

void ZelColorTriangle::resizeEvent(QResizeEvent *event)
{
    ZelSpectrumDisplay::resizeEvent(event);
    geometry_->setSize(contentsRect().size());
    selectorPoint_ = geometry_->pointOf(currentColor_);
    backgroundStale_ = true;
    update();
}

void ZelColorTriangle::showEvent(QShowEvent *event)
{
    ZelSpectrumDisplay::showEvent(event);
    setColor(fromQColor(currentColor_));
}

/// Beside a new size, a new look and a screen of another pixel ratio ask for another ring.
bool ZelColorTriangle::needsBackground() const
{
    return backgroundStale_ || backgroundFill_ != palette().brush(QPalette::Window) ||
           background_.devicePixelRatio() != devicePixelRatioF();
}

void ZelColorTriangle::generateBackground()
{
    backgroundStale_ = false;
    backgroundFill_ = palette().brush(QPalette::Window);
    const double ratio = devicePixelRatioF();
    background_ = QImage((QSizeF(contentsRect().size()) * ratio).toSize(), QImage::Format_RGB32);
    background_.setDevicePixelRatio(ratio);
    QPainter painter(&background_);
    painter.fillRect(QRect(QPoint(0, 0), contentsRect().size()), backgroundFill_);
    painter.end();
    ZelTrianglePainting::drawRing(background_, *geometry_);
}

void ZelColorTriangle::paintEvent(QPaintEvent *event)
{
    if (contentsRect().isEmpty())
        return;
    if (needsBackground())
        generateBackground();
    QImage image = background_;
    ZelTrianglePainting::drawTriangle(image, *geometry_, currentHue_);
    QPixmap picture = QPixmap::fromImage(std::move(image));
    ZelTrianglePainting::drawMarkers(&picture, *geometry_, currentHue_, currentColor_,
                                     selectorPoint_);
    QPainter painter(this);
    if (event->rect().intersects(contentsRect()))
        painter.setClipRegion(event->region().intersected(contentsRect()));
    painter.setOpacity(isEnabled() ? 1.0 : disabledOpacity);
    painter.drawPixmap(contentsRect().topLeft(), picture);
    painter.end();
    if (hasFocus())
        ZelFocusFrame::paint(this);
}
