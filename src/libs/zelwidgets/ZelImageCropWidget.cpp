#include "ZelImageCropWidget.h"

#include "ZelArrowKeys.h"
#include "ZelFocusFrame.h"

#include <QDebug>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <QScrollArea>

#include <algorithm>

namespace {

constexpr int keyStep = 1;
constexpr int largeKeyStep = 10;
constexpr QColor shade(70, 50, 50, 200);

QRegion outlineOf(const QRect &rect)
{
    return QRegion(rect) - rect.adjusted(1, 1, -1, -1);
}

} // namespace

ZelImageCropWidget::ZelImageCropWidget(const QPixmap &picture, const QSize &cropSize)
    : picture_(picture)
    , pictureSize_(picture.size())
    , selector_(cropSize)
{
    if (picture.isNull())
        qWarning() << "ZelImageCropWidget: there is no picture to crop";
    else if (picture.devicePixelRatio() != 1)
        picture_.setDevicePixelRatio(1);
    setAttribute(Qt::WA_MouseTracking);
    setFocusPolicy(Qt::StrongFocus);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Picture to crop"));
    selector_.setImageSize(pictureSize_);
    updateImage();
}

QRect ZelImageCropWidget::cropRect() const
{
    return {selector_.position(), pictureSize_.isEmpty() ? QSize() : selector_.cropSize()};
}

QImage ZelImageCropWidget::getImage() const
{
    return picture_.isNull() ? QImage() : picture_.copy(cropRect()).toImage();
}

void ZelImageCropWidget::cropImage()
{
    if (picture_.isNull())
        return;
    picture_ = picture_.copy(cropRect());
    pictureSize_ = picture_.size();
    selector_.setImageSize(pictureSize_);
    overlay_ = QPixmap();
    updateImage();
    adjustSize();
}

// A step of a drag changes the strips between the rectangle as it is shown and as it is now.
void ZelImageCropWidget::updateImage()
{
    const QRect rect = cropRect();
    const bool isStep = !overlay_.isNull();
    if (pictureSize_.isEmpty() || (isStep && rect == shownRect_))
        return;
    QRegion changed = QRect(QPoint(), pictureSize_);
    // A new pixmap would repaint the whole label.
    const bool wasDisabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled);
    if (isStep) {
        changed = QRegion(rect).xored(shownRect_) + outlineOf(rect) + outlineOf(shownRect_);
        // The label's share of the pixmap would make it a copy of the whole.
        setPixmap(QPixmap());
    } else {
        overlay_ = QPixmap(pictureSize_);
        overlay_.fill(shade);
    }
    shownRect_ = rect;
    compose(changed);
    setPixmap(overlay_);
    setAttribute(Qt::WA_UpdatesDisabled, wasDisabled);
    if (isStep)
        update(changed.translated(pictureOrigin()));
    else
        update();
    describe();
}

void ZelImageCropWidget::compose(const QRegion &region)
{
    QPainter painter(&overlay_);
    for (const QRect &part : region) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(part, shade);
        painter.fillRect(part & shownRect_, Qt::white);
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.drawPixmap(part.topLeft(), picture_, part);
    }
    painter.setPen(Qt::black);
    painter.drawRect(shownRect_.adjusted(0, 0, -1, -1));
}

void ZelImageCropWidget::describe()
{
    const QRect rect = cropRect();
    setAccessibleDescription(tr("%1 by %2 pixels at %3, %4. Arrow keys move, with Control resize.")
                                 .arg(rect.width())
                                 .arg(rect.height())
                                 .arg(rect.x())
                                 .arg(rect.y()));
}

QPoint ZelImageCropWidget::pictureOrigin() const
{
    return contentsRect().topLeft() + QPoint(margin(), margin());
}

QPoint ZelImageCropWidget::picturePosition(const QMouseEvent *event) const
{
    return event->position().toPoint() - pictureOrigin();
}

void ZelImageCropWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QLabel::mousePressEvent(event);
        return;
    }
    selector_.mousePress(picturePosition(event));
    updateOverrideCursor();
}

void ZelImageCropWidget::mouseMoveEvent(QMouseEvent *event)
{
    selector_.mouseMove(picturePosition(event));
    updateOverrideCursor();
    if (selector_.isDragging())
        updateImage();
}

void ZelImageCropWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        selector_.mouseRelease();
    else
        QLabel::mouseReleaseEvent(event);
}

void ZelImageCropWidget::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const QPoint direction = zelArrowStep(event->key());
    if (direction.isNull() || modifiers & ~(Qt::ShiftModifier | Qt::ControlModifier)) {
        QLabel::keyPressEvent(event);
        return;
    }
    const QPoint step = direction * (modifiers & Qt::ShiftModifier ? largeKeyStep : keyStep);
    const bool isResize = modifiers & Qt::ControlModifier;
    if (isResize)
        selector_.growBy({step.x(), step.y()});
    else
        selector_.moveBy(step);
    updateImage();
    followInScrollArea(step, isResize);
}

// Brings the edge into sight that a key has moved.
void ZelImageCropWidget::followInScrollArea(const QPoint &step, bool isResize)
{
    constexpr int margin = 20;
    const QRect rect = cropRect();
    const QPoint seen = visibleRegion().boundingRect().center();
    QPoint point(std::clamp(seen.x(), rect.left(), std::max(rect.left(), rect.right())),
                 std::clamp(seen.y(), rect.top(), std::max(rect.top(), rect.bottom())));
    if (step.x() != 0)
        point.setX(isResize || step.x() > 0 ? rect.right() : rect.left());
    if (step.y() != 0)
        point.setY(isResize || step.y() > 0 ? rect.bottom() : rect.top());
    for (QWidget *parent = parentWidget(); parent; parent = parent->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(parent);
        if (!area || !area->widget())
            continue;
        const QPoint place = mapTo(area->widget(), point);
        area->ensureVisible(place.x(), place.y(), margin, margin);
        return;
    }
}

void ZelImageCropWidget::updateOverrideCursor()
{
    const Qt::CursorShape shape = selector_.cursorShape();
    if (shape == Qt::ArrowCursor)
        unsetCursor();
    else if (cursor().shape() != shape)
        setCursor(shape);
}

void ZelImageCropWidget::showEvent(QShowEvent *event)
{
    updateImage();
    updateOverrideCursor();
    QLabel::showEvent(event);
}

void ZelImageCropWidget::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (hasFocus())
        ZelFocusFrame::paint(this);
}
