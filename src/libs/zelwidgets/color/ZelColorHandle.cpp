#include "color/ZelColorHandle.h"

#include "ZelFocusFrame.h"

#include <QPainter>
#include <QWidget>

namespace {

constexpr double handlePart = 0.75;
constexpr double marginPart = 0.125;
constexpr double disabledOpacity = 0.4;
constexpr int outlineWidth = 3;
constexpr int ringWidth = 2;

void paintStrip(QPainter *painter, const QWidget *widget, const QPixmap &strip)
{
    const qreal ratio = widget->devicePixelRatioF();
    QBrush brush(strip);
    brush.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
    const qreal radius = std::min(widget->width(), widget->height()) / 2.0;
    painter->setPen(Qt::transparent);
    painter->setBrush(brush);
    painter->drawRoundedRect(widget->rect(), radius, radius);
}

} // namespace

int ZelColorHandle::diameter(int thickness)
{
    return int(handlePart * thickness) - 1;
}

int ZelColorHandle::across(int thickness)
{
    return int(marginPart * thickness) + 1;
}

int ZelColorHandle::offset(int steps, int span, int length, int diameter)
{
    if (span <= 0)
        return 1;
    const double part = double(steps) / span;
    const int place = qRound(double(steps) * length / (span + 1.0));
    return place - int(diameter * part - qRound(1 - part));
}

int ZelColorHandle::stepAt(int place, int length, int span)
{
    return length > 0 ? qRound(double(place) / length * (span + 1.0)) : 0;
}

QSize ZelColorHandle::scaledSize(const QWidget *widget)
{
    return (QSizeF(widget->size()) * widget->devicePixelRatioF()).toSize();
}

QPixmap ZelColorHandle::scaled(const QPixmap &strip, const QWidget *widget)
{
    const QSize size = scaledSize(widget);
    if (strip.isNull() || size.isEmpty())
        return {};
    return strip.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void ZelColorHandle::paint(QWidget *widget, const Look &look)
{
    {
        QPainter painter(widget);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!widget->isEnabled())
            painter.setOpacity(disabledOpacity);
        paintStrip(&painter, widget, look.strip);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::black, outlineWidth));
        painter.drawEllipse(look.handle);
        painter.setBrush(look.filling);
        painter.setPen(QPen(look.ring, ringWidth));
        painter.drawEllipse(look.handle);
    }
    if (widget->hasFocus())
        ZelFocusFrame::paint(widget);
}
