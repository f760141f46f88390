#include "ZelGradientDisplay.h"

#include "ZelAccessibleValue.h"
#include "ZelFocusFrame.h"
#include "color/ZelColorConversion.h"
#include "color/ZelColorMime.h"
#include "gradient/ZelGradientAccessible.h"
#include "gradient/ZelGradientCommands.h"
#include "gradient/ZelGradientGeometry.h"
#include "gradient/ZelGradientMenu.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelGradient>

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr int tile = 10;
constexpr int leastHeight = 90;
constexpr QSize usualSize(300, 110);
constexpr int reach = ZelGradientGeometry::reach;
constexpr int handleDistance = ZelGradientGeometry::handleDistance;
constexpr float keyStep = 0.01f;
constexpr float fineStep = 0.001f;

QPixmap checkers()
{
    QPixmap checkers(2 * tile, 2 * tile);
    checkers.fill(Qt::lightGray);
    QPainter painter(&checkers);
    painter.fillRect(0, tile, tile, tile, Qt::darkGray);
    painter.fillRect(tile, 0, tile, tile, Qt::darkGray);
    return checkers;
}

bool holdsColor(const QMimeData *data)
{
    return data->hasColor() || ZelColorMime::hasColor(data);
}

/// The form that each program knows comes first.
std::optional<ZelColor> colorOf(const QMimeData *data)
{
    if (data->hasColor()) {
        const auto color = qvariant_cast<QColor>(data->colorData());
        if (color.isValid())
            return fromQColor(color);
    }
    return ZelColorMime::color(data);
}

template <typename Points>
void drawPolygon(QPainter &painter, const Points &points)
{
    painter.drawPolygon(points.data(), int(points.size()));
}

} // namespace

ZelGradientDisplay::ZelGradientDisplay()
    : background_(checkers())
{
    ZelAccessibleValue::serve<AccessibleStops, ZelGradientDisplay>();
    setAcceptDrops(true);
    setMinimumHeight(leastHeight);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Gradient"));
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    connect(policy, &ZelGammaPolicy::gammaChanged, this, qOverload<>(&QWidget::update));
    connect(policy, &ZelGammaPolicy::gammaCorrectChanged, this, qOverload<>(&QWidget::update));
}

ZelGradientDisplay::~ZelGradientDisplay() = default;

ZelGradient *ZelGradientDisplay::gradient() const
{
    return gradient_;
}

void ZelGradientDisplay::setGradient(ZelGradient *gradient)
{
    if (gradient_)
        gradient_->disconnect(this);
    gradient_ = gradient;
    update();
    if (!gradient)
        return;
    connect(gradient, &ZelGradient::gradientChanged, this, qOverload<>(&QWidget::update));
    connect(gradient, &ZelGradient::selectionChanged, this, qOverload<>(&QWidget::update));
    connect(gradient, &QObject::destroyed, this, qOverload<>(&QWidget::update));
}

QSize ZelGradientDisplay::sizeHint() const
{
    return usualSize;
}

// Geometry

ZelGradientGeometry ZelGradientDisplay::bar() const
{
    return ZelGradientGeometry(gradientRect_);
}

void ZelGradientDisplay::computeGradientRect()
{
    gradientRect_ = ZelGradientGeometry(size(), gradient_->hasAlpha()).bar();
}

int ZelGradientDisplay::stopLocationToPixel(float location) const
{
    return bar().pixelOf(location);
}

float ZelGradientDisplay::pixelToLocation(int x) const
{
    return bar().locationOf(x);
}

int ZelGradientDisplay::slopeToPixel(float slope, ZelGradientStop const &stop,
                                     ZelGradientStop const &neighbour) const
{
    return bar().slopePixel(slope, stop.location(), neighbour.location());
}

float ZelGradientDisplay::pixelToSlope(int x, ZelGradientStop const &stop,
                                       ZelGradientStop const &neighbour) const
{
    return bar().slopeAt(x, stop.location(), neighbour.location());
}

QRect ZelGradientDisplay::stopHitRect(ZelGradientStop const &stop)
{
    return bar().handleRect(stop.location(), stop.isAlpha());
}

ZelGradientStop ZelGradientDisplay::stopAt(QPoint const &point)
{
    const auto hit =
        std::find_if(gradient_->begin(), gradient_->end(), [&](const ZelGradientStop &stop) {
            return stopHitRect(stop).contains(point);
        });
    return hit != gradient_->end() ? *hit : ZelGradientStop();
}

// Painting

void ZelGradientDisplay::paintEvent(QPaintEvent *)
{
    if (!gradient_)
        return;
    computeGradientRect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBar(painter);
    for (const ZelGradientStop &stop : *gradient_) {
        if (stop.isAlpha())
            paintAlphaStop(painter, stop);
        else
            paintColorStop(painter, stop);
    }
    if (gradient_->blend() && gradient_->selected())
        paintSlopes(painter);
    painter.end();
    if (hasFocus())
        ZelFocusFrame::paint(this);
}

/// One row, repeated downwards; its alpha lets the checkers show through.
void ZelGradientDisplay::paintBar(QPainter &painter) const
{
    painter.setPen(Qt::darkGray);
    painter.setBrush(background_);
    painter.drawRect(gradientRect_);
    const int pixels = qRound(gradientRect_.width() * devicePixelRatioF());
    const QImage row = gradient_->paint(pixels);
    if (!row.isNull())
        painter.drawImage(gradientRect_, row);
}

QBrush ZelGradientDisplay::fillOf(const ZelGradientStop &stop) const
{
    return stop == gradient_->selected() ? Qt::blue : Qt::white;
}

void ZelGradientDisplay::paintColorStop(QPainter &painter, ZelGradientStop const &stop) const
{
    const int x = stopLocationToPixel(stop.location());
    const int bottom = gradientRect_.bottom();
    const int center = bottom + handleDistance;
    painter.setPen(Qt::darkGray);
    painter.setBrush(fillOf(stop));
    drawPolygon(painter, std::array{QPoint(x, bottom + 1), QPoint(x + reach, center),
                                    QPoint(x - reach, center)});
    QColor color = toDisplayQColor(stop.color());
    color.setAlpha(255);
    painter.setBrush(color);
    painter.drawEllipse(QPoint(x, center), reach, reach);
}

void ZelGradientDisplay::paintAlphaStop(QPainter &painter, ZelGradientStop const &stop) const
{
    const int x = stopLocationToPixel(stop.location());
    const int top = gradientRect_.top();
    const int center = top - handleDistance;
    painter.setPen(Qt::darkGray);
    painter.setBrush(fillOf(stop));
    drawPolygon(painter,
                std::array{QPoint(x + reach, center), QPoint(x - reach, center), QPoint(x, top)});
    painter.setBrush(QColor::fromHsvF(0, 0, std::clamp(stop.alpha(), 0.0f, 1.0f)));
    painter.drawRect(x - reach, center - reach, 2 * reach, 2 * reach);
}

void ZelGradientDisplay::paintSlopes(QPainter &painter)
{
    const ZelGradientStop selected = gradient_->selected();
    beforeStop_ = gradient_->before(selected);
    beforeMarkerRect_ = paintShapeMarker(painter, beforeStop_);
    afterStop_ = gradient_->after(selected);
    afterMarkerRect_ = paintShapeMarker(painter, afterStop_);
}

QRect ZelGradientDisplay::paintShapeMarker(QPainter &painter, ZelGradientStop const &stop)
{
    if (stop.isNull())
        return {};
    constexpr int near = 2;
    constexpr int far = 12;
    const ZelGradientStop selected = gradient_->selected();
    const bool isBehind = selected.location() > stop.location();
    const float slope = isBehind ? selected.slopeIn() : selected.slopeOut();
    const int x = slopeToPixel(slope, selected, stop);
    const bool isColor = selected.isColor();
    const int base = isColor ? gradientRect_.bottom() : gradientRect_.top();
    const int outwards = isColor ? 1 : -1;
    const int tip = base + near * outwards;
    const int foot = base + far * outwards;
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    drawPolygon(painter,
                std::array{QPoint(x, tip), QPoint(x + reach, foot), QPoint(x - reach, foot)});
    return {QPoint(x - reach, tip), QPoint(x + reach, foot)};
}

// Mouse

void ZelGradientDisplay::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (!gradient_)
        return;
    const QPoint pos = event->pos();
    if (const ZelGradientStop stop = stopAt(pos)) {
        pressPos_ = pos;
        dragMode_ = Location;
        select(stop);
    } else if (beforeMarkerRect_.contains(pos)) {
        dragMode_ = SlopeIn;
    } else if (afterMarkerRect_.contains(pos)) {
        dragMode_ = SlopeOut;
    } else {
        gradient_->clearSelection();
    }
}

void ZelGradientDisplay::mouseMoveEvent(QMouseEvent *event)
{
    const ZelGradientStop selected = gradient_ ? gradient_->selected() : ZelGradientStop();
    if (selected.isNull()) {
        event->ignore();
        return;
    }
    if (dragMode_ == Location)
        moveTo(selected, pixelToLocation(event->pos().x()));
    else if (dragMode_ == SlopeIn || dragMode_ == SlopeOut)
        dragSlope(selected, event->pos().x());
    Q_EMIT gradientChanged();
    event->accept();
}

/// A drag whose neighbour has gone ends without an edit.
void ZelGradientDisplay::dragSlope(ZelGradientStop selected, int x)
{
    const bool isOut = dragMode_ == SlopeOut;
    const ZelGradientStop neighbour = isOut ? afterStop_ : beforeStop_;
    if (neighbour.isNull()) {
        dragMode_ = Nothing;
        return;
    }
    const float slope = pixelToSlope(x, selected, neighbour);
    if (isOut && slope != selected.slopeOut())
        selected.setSlopeOut(slope);
    else if (!isOut && slope != selected.slopeIn())
        selected.setSlopeIn(slope);
}

void ZelGradientDisplay::moveTo(ZelGradientStop stop, float location)
{
    const float clamped = std::clamp(location, 0.0f, 1.0f);
    if (clamped != stop.location())
        stop.setLocation(clamped);
    if (gradient_)
        ZelAccessibleParts::announceValue(this, gradient_->getIndexOfSelected());
}

void ZelGradientDisplay::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->ignore();
    if (!gradient_)
        return;
    if (gradientRect_.contains(event->pos())) {
        gradient_->addColorStop(pixelToLocation(event->pos().x()));
        Q_EMIT gradientChanged();
        event->accept();
        return;
    }
    const ZelGradientStop selected = gradient_->selected();
    if (selected && QRectF(stopHitRect(selected)).contains(event->position()))
        Q_EMIT stopDoubleClicked(selected);
}

// Drops

void ZelGradientDisplay::dragEnterEvent(QDragEnterEvent *event)
{
    if (holdsColor(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void ZelGradientDisplay::dropEvent(QDropEvent *event)
{
    const std::optional<ZelColor> color = colorOf(event->mimeData());
    if (!gradient_ || !color) {
        event->ignore();
        return;
    }
    const QPoint pos = event->position().toPoint();
    if (ZelGradientStop stop = stopAt(pos))
        stop.setColor(*color);
    else
        gradient_->addColorStop(std::clamp(pixelToLocation(pos.x()), 0.0f, 1.0f), *color, 1.0f);
    Q_EMIT gradientChanged();
    event->acceptProposedAction();
}

// Keyboard, menu and tips

bool ZelGradientDisplay::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && gradient_ && gradient_->selected()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Delete) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::ToolTip && showTip(static_cast<QHelpEvent *>(event)->pos()))
        return true;
    return QWidget::event(event);
}

bool ZelGradientDisplay::showTip(const QPoint &pos)
{
    const ZelGradientStop stop = gradient_ ? stopAt(pos) : ZelGradientStop();
    if (stop.isNull())
        return false;
    QToolTip::showText(mapToGlobal(pos), ZelGradientCommands::textOf(stop), this,
                       stopHitRect(stop));
    return true;
}

bool ZelGradientDisplay::focusNextPrevChild(bool next)
{
    const int count = gradient_ ? gradient_->stops() : 0;
    const int current = count > 0 ? gradient_->getIndexOfSelected() : -1;
    const int wished = current >= 0 ? current + (next ? 1 : -1) : (next ? 0 : count - 1);
    if (wished < 0 || wished >= count)
        return QWidget::focusNextPrevChild(next);
    select(*(gradient_->begin() + wished));
    return true;
}

void ZelGradientDisplay::select(const ZelGradientStop &stop)
{
    gradient_->setSelected(stop);
    if (gradient_)
        ZelAccessibleParts::announceCurrent(this, gradient_->getIndexOfSelected());
}

void ZelGradientDisplay::step(float distance)
{
    const ZelGradientStop selected = gradient_->selected();
    moveTo(selected, selected.location() + distance);
    Q_EMIT gradientChanged();
}

void ZelGradientDisplay::keyPressEvent(QKeyEvent *event)
{
    const ZelGradientStop selected = gradient_ ? gradient_->selected() : ZelGradientStop();
    const bool isFine = event->modifiers().testFlag(Qt::ShiftModifier);
    const float distance = isFine ? fineStep : keyStep;
    if (selected.isNull())
        QWidget::keyPressEvent(event);
    else if (event->key() == Qt::Key_Left)
        step(-distance);
    else if (event->key() == Qt::Key_Right)
        step(distance);
    else if (event->key() == Qt::Key_Delete)
        ZelGradientCommands::removeSelected(this);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT stopDoubleClicked(selected);
    else
        QWidget::keyPressEvent(event);
}

void ZelGradientDisplay::contextMenuEvent(QContextMenuEvent *event)
{
    if (!gradient_)
        return;
    const ZelGradientStop selected = gradient_->selected();
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint pos =
        isByKey && selected ? mapToGlobal(stopHitRect(selected).center()) : event->globalPos();
    ZelGradientMenu::make(this)->popup(pos);
}
