#include "BallStage.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double ballRadius = 0.12;
constexpr double groundPart = 0.08;

} // namespace

BallStage::BallStage(double mostHeight, QWidget *parent)
    : QWidget(parent)
    , mostHeight_(mostHeight)
{
    setAccessibleName(tr("The ball at the marked time"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void BallStage::setHeight(double height)
{
    if (height_ == height)
        return;
    height_ = height;
    update();
}

QSize BallStage::sizeHint() const
{
    return QFontMetrics(font()).height() * QSize(8, 20);
}

void BallStage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double ground = height() * (1.0 - groundPart);
    const double scale = ground / (mostHeight_ + 2.0 * ballRadius);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawLine(QPointF(0, ground), QPointF(width(), ground));

    const double radius = ballRadius * scale;
    const QPointF center(0.5 * width(), ground - height_ * scale - radius);
    if (!std::isfinite(height_) || center.y() < -radius || center.y() > height() + radius)
        return;
    // The shadow is the narrower the higher the ball is.
    const double shadow = radius * std::clamp(1.2 - 0.25 * height_, 0.3, 1.2);
    painter.setPen(Qt::NoPen);
    QColor dark = palette().color(QPalette::WindowText);
    dark.setAlphaF(0.35F);
    painter.setBrush(dark);
    painter.drawEllipse(QPointF(center.x(), ground + 0.3 * radius), shadow, 0.25 * shadow);
    painter.setBrush(palette().color(QPalette::Link));
    painter.drawEllipse(center, radius, radius);
}
