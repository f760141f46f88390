#include "ZelSlider.h"

#include <QPointingDevice>
#include <QWheelEvent>

ZelSlider::ZelSlider(QWidget *parent)
    : QSlider(parent)
{}

ZelSlider::ZelSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
{}

ZelSlider::~ZelSlider() = default;

void ZelSlider::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return;
    QWheelEvent plain(event->position(), event->globalPosition(), event->pixelDelta(),
                      event->angleDelta(), event->buttons(), Qt::NoModifier, event->phase(),
                      event->inverted(), Qt::MouseEventNotSynthesized,
                      QPointingDevice::primaryPointingDevice());
    QAbstractSlider::wheelEvent(&plain);
    if (plain.isAccepted())
        event->accept();
}
