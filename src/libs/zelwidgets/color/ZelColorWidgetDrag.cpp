#include "color/ZelColorConversion.h"
#include "color/ZelColorMime.h"
#include "color/ZelColorWidget.h"
#include "color/ZelColorWidgetPrivate.h"

#include <ZelDeliveryManager/ZelFeatureFlags>

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QSize dragPictureSize(32, 20);

std::optional<zelsg::Color> colorOf(const QMimeData *data)
{
    if (ZelColorWidgetPrivate::areMultiColorsEnabled() && ZelColorMime::hasMultiColor(data)) {
        if (auto list = ZelColorMime::multiColor(data))
            return list;
    }
    if (const auto color = ZelColorMime::color(data))
        return zelsg::Color(*color);
    return {};
}

} // namespace

bool ZelColorWidgetPrivate::areMultiColorsEnabled()
{
    return orv::cdm::isFeatureEnabled("multi_colors", false);
}

void ZelColorWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || !d_->pressed)
        return;
    const QPoint way = event->position().toPoint() - *d_->pressed;
    if (way.manhattanLength() >= QApplication::startDragDistance())
        startDrag();
}

void ZelColorWidget::startDrag()
{
    d_->pressed.reset();
    auto *data = new QMimeData;
    ZelColorMime::encode(d_->color, data);
    const qreal ratio = devicePixelRatioF();
    QPixmap picture((QSizeF(dragPictureSize) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(toDisplayQColor(d_->active));
    {
        QPainter painter(&picture);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawRect(QRect(QPoint(0, 0), dragPictureSize).adjusted(0, 0, -1, -1));
    }
    auto *drag = new QDrag(this);
    drag->setMimeData(data);
    drag->setPixmap(picture);
    drag->exec(Qt::CopyAction);
}

void ZelColorWidget::dragEnterEvent(QDragEnterEvent *event)
{
    const QMimeData *data = event->mimeData();
    const bool isColor =
        ZelColorMime::hasColor(data) ||
        (ZelColorWidgetPrivate::areMultiColorsEnabled() && ZelColorMime::hasMultiColor(data));
    if (isColor && event->source() != this)
        event->acceptProposedAction();
    else
        event->ignore();
}

void ZelColorWidget::dropEvent(QDropEvent *event)
{
    const std::optional<zelsg::Color> color = colorOf(event->mimeData());
    if (!color)
        return event->ignore();
    event->acceptProposedAction();
    take(*color);
    Q_EMIT colorUpdated(d_->color);
}
