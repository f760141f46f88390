#include "QtThumbWheel.h"

#include "ZelAccessibleValue.h"
#include "ZelControlWheel.h"
#include "ZelFocusFrame.h"
#include "ZelThumbWheelGeometry.h"

#include <ZelWidgets/ZelFontMetrics>

#include <QDebug>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Geometry = ZelThumbWheelGeometry;

class QtThumbWheelPrivate
{
public:
    explicit QtThumbWheelPrivate(QtThumbWheel *owner)
        : wheel(owner)
    {}

    double length() const { return isHorizontal() ? wheel->width() : wheel->height(); }
    bool isHorizontal() const { return orientation == Qt::Horizontal; }
    /// Whether the value rises upwards or to the left.
    bool runsBackward() const { return !isHorizontal() || wheel->isRightToLeft(); }
    double placeOf(const QMouseEvent *event) const;
    void setPlace(double newPlace, bool byUser);
    void turnBy(qint64 steps);
    /// The steps of a key; none if the key does not turn the wheel.
    qint64 stepsOf(const QKeyEvent *event) const;
    void drag(double to);
    void endDrag();
    QRectF cogRect(const Geometry::Cog &cog) const;

    QtThumbWheel *wheel;
    Geometry::Range range;
    /// The value with the part of a step that a drag has turned further.
    double place = 0;
    int value = 0;
    int singleStep = 1;
    int pageStep = 10;
    Qt::Orientation orientation = Qt::Vertical;
    double ratio = 1;
    int cogCount = 15;
    bool isDragLimited = false;
    bool isDown = false;
    double lastPlace = 0;
    int valueAtPress = 0;
    int wheelSum = 0;
};

namespace {

constexpr qreal rounding = 3;
constexpr qreal cogWidth = 1.5;
constexpr int endDarkness = 135;

class AccessibleWheel : public ZelAccessibleValue
{
public:
    explicit AccessibleWheel(QWidget *widget)
        : ZelAccessibleValue(widget, QAccessible::Dial)
    {}
    QVariant currentValue() const override { return wheel()->value(); }
    void setCurrentValue(const QVariant &value) override { wheel()->setValue(value.toInt()); }
    QVariant maximumValue() const override { return wheel()->maximum(); }
    QVariant minimumValue() const override { return wheel()->minimum(); }
    QVariant minimumStepSize() const override { return wheel()->singleStep(); }

private:
    QtThumbWheel *wheel() const { return static_cast<QtThumbWheel *>(object()); }
};

} // namespace

double QtThumbWheelPrivate::placeOf(const QMouseEvent *event) const
{
    double at = isHorizontal() ? event->position().x() : event->position().y();
    if (isDragLimited)
        at = std::clamp(at, 0.0, length());
    return runsBackward() ? -at : at;
}

void QtThumbWheelPrivate::setPlace(double newPlace, bool byUser)
{
    place = newPlace;
    const int newValue = Geometry::nearest(place, range);
    wheel->update();
    if (newValue == value)
        return;
    value = newValue;
    if (byUser)
        ZelAccessibleValue::announce(wheel, value);
    Q_EMIT wheel->valueChanged(value);
}

void QtThumbWheelPrivate::turnBy(qint64 steps)
{
    setPlace(Geometry::turned(value, static_cast<double>(steps), range), true);
}

qint64 QtThumbWheelPrivate::stepsOf(const QKeyEvent *event) const
{
    const int forward = wheel->isRightToLeft() ? -singleStep : singleStep;
    switch (event->key()) {
    case Qt::Key_Right:
        return forward;
    case Qt::Key_Left:
        return -forward;
    case Qt::Key_Up:
        return singleStep;
    case Qt::Key_Down:
        return -singleStep;
    case Qt::Key_PageUp:
        return pageStep;
    case Qt::Key_PageDown:
        return -pageStep;
    default:
        return 0;
    }
}

void QtThumbWheelPrivate::drag(double to)
{
    const double way = (to - lastPlace) * ratio;
    lastPlace = to;
    setPlace(Geometry::turned(place, way, range), true);
}

void QtThumbWheelPrivate::endDrag()
{
    if (!isDown)
        return;
    isDown = false;
    place = value;
    wheel->update();
    Q_EMIT wheel->wheelReleased();
}

QRectF QtThumbWheelPrivate::cogRect(const Geometry::Cog &cog) const
{
    const double at = runsBackward() ? length() - cog.place : cog.place;
    const double margin = 3;
    if (isHorizontal())
        return {at - cogWidth / 2, margin, cogWidth, wheel->height() - 2 * margin};
    return {margin, at - cogWidth / 2, wheel->width() - 2 * margin, cogWidth};
}

QtThumbWheel::QtThumbWheel(QWidget *parent)
    : QtThumbWheel(0, 99, 10, 0, Qt::Vertical, parent)
{}

QtThumbWheel::QtThumbWheel(int minimum, int maximum, int pageStep, int value,
                           Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , d_(std::make_unique<QtThumbWheelPrivate>(this))
{
    ZelAccessibleValue::serve<AccessibleWheel, QtThumbWheel>();
    setFocusPolicy(Qt::StrongFocus);
    setPageStep(pageStep);
    setRange(minimum, maximum);
    setValue(value);
    setOrientation(orientation);
}

QtThumbWheel::~QtThumbWheel() = default;

int QtThumbWheel::value() const
{
    return d_->value;
}

int QtThumbWheel::minimum() const
{
    return d_->range.minimum;
}

int QtThumbWheel::maximum() const
{
    return d_->range.maximum;
}

int QtThumbWheel::singleStep() const
{
    return d_->singleStep;
}

int QtThumbWheel::pageStep() const
{
    return d_->pageStep;
}

Qt::Orientation QtThumbWheel::orientation() const
{
    return d_->orientation;
}

double QtThumbWheel::transmissionRatio() const
{
    return d_->ratio;
}

bool QtThumbWheel::wrapsAround() const
{
    return d_->range.wrapsAround;
}

int QtThumbWheel::cogCount() const
{
    return d_->cogCount;
}

bool QtThumbWheel::limitedDrag() const
{
    return d_->isDragLimited;
}

bool QtThumbWheel::isWheelDown() const
{
    return d_->isDown;
}

void QtThumbWheel::setRange(int minimum, int maximum)
{
    d_->range.minimum = minimum;
    d_->range.maximum = std::max(minimum, maximum);
    setValue(d_->value);
}

void QtThumbWheel::setSingleStep(int step)
{
    d_->singleStep = std::max(1, step);
}

void QtThumbWheel::setPageStep(int step)
{
    d_->pageStep = std::max(1, step);
}

void QtThumbWheel::setOrientation(Qt::Orientation orientation)
{
    d_->orientation = orientation;
    const bool isHorizontal = d_->isHorizontal();
    setSizePolicy(isHorizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  isHorizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    update();
    updateGeometry();
}

void QtThumbWheel::setTransmissionRatio(double ratio)
{
    if (!std::isfinite(ratio)) {
        qWarning() << "The ratio of a wheel has to be finite:" << ratio << objectName();
        return;
    }
    d_->ratio = ratio;
    update();
}

void QtThumbWheel::setWrapsAround(bool wraps)
{
    d_->range.wrapsAround = wraps;
}

void QtThumbWheel::setCogCount(int count)
{
    d_->cogCount = std::clamp(count, 1, Geometry::maximumCogCount);
    update();
}

void QtThumbWheel::setLimitedDrag(bool limited)
{
    d_->isDragLimited = limited;
}

void QtThumbWheel::setValue(int value)
{
    const int bounded = std::clamp(value, d_->range.minimum, d_->range.maximum);
    // An owner that answers each step of a drag with the same value leaves the drag its part of a
    // step.
    if (bounded != d_->value)
        d_->setPlace(bounded, false);
}

QSize QtThumbWheel::sizeHint() const
{
    const ZelFontMetrics metrics(this);
    const QSize size(metrics.widthM() * 10, metrics.editorHeight());
    return d_->isHorizontal() ? size : size.transposed();
}

QSize QtThumbWheel::minimumSizeHint() const
{
    const ZelFontMetrics metrics(this);
    const QSize size(metrics.widthM() * 3, metrics.editorHeight() * 2 / 3);
    return d_->isHorizontal() ? size : size.transposed();
}

bool QtThumbWheel::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::UngrabMouse:
        d_->endDrag();
        break;
    case QEvent::EnabledChange:
        if (!isEnabled())
            d_->endDrag();
        update();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange:
        update();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void QtThumbWheel::keyPressEvent(QKeyEvent *event)
{
    const qint64 steps = d_->stepsOf(event);
    if (steps != 0)
        d_->turnBy(steps);
    else if (event->key() == Qt::Key_Home)
        d_->setPlace(minimum(), true);
    else if (event->key() == Qt::Key_End)
        d_->setPlace(maximum(), true);
    else if (event->key() == Qt::Key_Escape && d_->isDown) {
        d_->setPlace(std::clamp(d_->valueAtPress, minimum(), maximum()), true);
        d_->endDrag();
    } else
        event->ignore();
}

void QtThumbWheel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    d_->isDown = true;
    d_->valueAtPress = d_->value;
    d_->lastPlace = d_->placeOf(event);
    Q_EMIT wheelPressed();
}

void QtThumbWheel::mouseMoveEvent(QMouseEvent *event)
{
    if (d_->isDown)
        d_->drag(d_->placeOf(event));
    else
        event->ignore();
}

void QtThumbWheel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        d_->endDrag();
    else
        event->ignore();
}

void QtThumbWheel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Every cog moves, also where the layout keeps the picture of the rest.
    update();
}

void QtThumbWheel::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turn(event, [this](QWheelEvent *turned) {
        const int notches = Geometry::takeNotches(d_->wheelSum, turned->angleDelta().y());
        const bool byPages = turned->modifiers().testFlag(Qt::ControlModifier);
        if (notches != 0)
            d_->turnBy(qint64(notches) * (byPages ? d_->pageStep : d_->singleStep));
        turned->accept();
    });
}

void QtThumbWheel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor face = palette().color(backgroundRole());
    QColor shade = palette().color(foregroundRole());
    const auto faded = [&shade](double strength) {
        shade.setAlphaF(static_cast<float>(strength));
        return shade;
    };
    // The drum turns away from the viewer at both ends.
    QLinearGradient drum({0, 0}, d_->isHorizontal() ? QPointF(width(), 0) : QPointF(0, height()));
    drum.setColorAt(0, face.darker(endDarkness));
    drum.setColorAt(0.5, face);
    drum.setColorAt(1, face.darker(endDarkness));
    painter.setPen(faded(0.3));
    painter.setBrush(drum);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), rounding, rounding);

    painter.setPen(Qt::NoPen);
    const double strength = isEnabled() ? 0.75 : 0.5;
    const double angle = Geometry::angle(d_->place, d_->ratio, d_->length());
    for (const Geometry::Cog &cog : Geometry::cogs(d_->length(), d_->cogCount, angle)) {
        painter.setBrush(faded(strength * (0.25 + 0.75 * cog.facing)));
        painter.drawRect(d_->cogRect(cog));
    }
    if (hasFocus())
        ZelFocusFrame::paint(this);
}
