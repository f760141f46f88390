#include "ZelPixmapLabel.h"

#include "ZelAccessible.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>

namespace {

constexpr QColor placeholderFace(128, 128, 128, 40);
constexpr QColor placeholderLine(128, 128, 128, 160);
constexpr QColor frameColor(70, 70, 70, 255);

QPixmap placeholder(QSize size, qreal ratio)
{
    const QString key =
        QStringLiteral("ZelPixmapLabel/%1x%2@%3").arg(size.width()).arg(size.height()).arg(ratio);
    QPixmap pixmap;
    if (size.isEmpty() || QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(placeholderFace);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(placeholderLine);
    const QRectF area(QPointF(0, 0), QSizeF(size));
    painter.drawLine(area.topLeft(), area.bottomRight());
    painter.drawLine(area.topRight(), area.bottomLeft());
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

void drawFrame(QPainter &painter, const QRectF &area)
{
    const struct
    {
        qreal growth;
        qreal radius;
        QColor color;
        qreal opacity;
    } rings[] = {{0, 2, Qt::white, 1},
                 {0.5, 3, frameColor, 1},
                 {1.5, 4, Qt::black, 0.09},
                 {2.5, 5, Qt::black, 0.03}};
    for (const auto &ring : rings) {
        const qreal growth = ring.growth;
        painter.setOpacity(ring.opacity);
        painter.setPen(ring.color);
        painter.drawRoundedRect(area.adjusted(-growth, -growth, growth, growth), ring.radius,
                                ring.radius);
    }
}

} // namespace

ZelPixmapLabel::ZelPixmapLabel(const QSize &size)
    : pictureSize_(size.expandedTo(QSize(0, 0)))
{
    ZelAccessible::installFactory();
    setFixedSize(pictureSize_ + QSize(2, 2));
    setAttribute(Qt::WA_Hover);
    setPixmap(QPixmap());
}

bool ZelPixmapLabel::highlightHover() const
{
    return highlightHover_;
}

void ZelPixmapLabel::setPixmap(const QPixmap &pixmap)
{
    const qreal ratio = devicePixelRatioF();
    if (pixmap.isNull()) {
        pixmap_ = placeholder(pictureSize_, ratio);
        isPlaceholder_ = true;
    } else {
        isPlaceholder_ = false;
        pixmap_ =
            pixmap.scaled(pictureSize_ * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        pixmap_.setDevicePixelRatio(ratio);
    }
    update();
}

void ZelPixmapLabel::clear()
{
    setPixmap(QPixmap());
}

void ZelPixmapLabel::setDragMimeData(const QString &mimeType, const QByteArray &data)
{
    mimeType_ = mimeType;
    dragData_ = data;
}

void ZelPixmapLabel::setDrawBorder(bool draw)
{
    if (draw == drawBorder_)
        return;
    drawBorder_ = draw;
    update();
}

void ZelPixmapLabel::setHighlightHover(bool highlight)
{
    if (highlight == highlightHover_)
        return;
    highlightHover_ = highlight;
    update();
}

void ZelPixmapLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (drawBorder_)
        drawFrame(painter, area);
    painter.setOpacity(1.0);
    painter.setBrush(Qt::transparent);
    painter.drawPixmap(QPoint(1, 1), pixmap_);
    if (isHovered_ && highlightHover_) {
        painter.setOpacity(0.5);
        painter.setPen(Qt::white);
        painter.drawRoundedRect(area.adjusted(4, 4, -4, -4), 5, 5);
    }
}

void ZelPixmapLabel::mousePressEvent(QMouseEvent *event)
{
    isDragPending_ =
        event->button() == Qt::LeftButton && !mimeType_.isEmpty() && !dragData_.isEmpty();
    pressPosition_ = event->position().toPoint();
    if (!isDragPending_)
        QWidget::mousePressEvent(event);
}

void ZelPixmapLabel::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint way = event->position().toPoint() - pressPosition_;
    if (!isDragPending_ || way.manhattanLength() < QApplication::startDragDistance())
        return;
    isDragPending_ = false;
    startDrag();
}

void ZelPixmapLabel::mouseReleaseEvent(QMouseEvent *event)
{
    isDragPending_ = false;
    QWidget::mouseReleaseEvent(event);
}

void ZelPixmapLabel::enterEvent(QEnterEvent *)
{
    setHovered(true);
}

void ZelPixmapLabel::leaveEvent(QEvent *)
{
    setHovered(false);
}

void ZelPixmapLabel::setHovered(bool hovered)
{
    isHovered_ = hovered;
    if (highlightHover_)
        update();
}

QPixmap ZelPixmapLabel::dragPicture() const
{
    if (!isPlaceholder_ || pixmap_.isNull())
        return pixmap_;
    // The placeholder lets the ground through, and the drag's own ground has no theme.
    QPixmap picture(pixmap_.size());
    picture.setDevicePixelRatio(pixmap_.devicePixelRatio());
    picture.fill(palette().color(QPalette::Window));
    QPainter painter(&picture);
    painter.drawPixmap(QPoint(0, 0), pixmap_);
    return picture;
}

void ZelPixmapLabel::startDrag()
{
    auto *data = new QMimeData;
    data->setData(mimeType_, dragData_);
    // It deletes itself when it is over.
    auto *drag = new QDrag(this);
    drag->setPixmap(dragPicture());
    drag->setMimeData(data);
    drag->exec(Qt::MoveAction);
}
