#include "ZelSplitterHandle.h"

#include "ZelFocusFrame.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int thickness = 6;
constexpr int length = 16;
constexpr int keyStep = 10;
constexpr int fineStep = 1;

QString iconFile(Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal
               ? QStringLiteral(":ui/widgetIcons/splitter_vertical.zelsvg")
               : QStringLiteral(":ui/widgetIcons/splitter_horizontal.zelsvg");
}

QAccessibleInterface *accessibleHandle(const QString &, QObject *object)
{
    auto *handle = qobject_cast<ZelSplitterHandle *>(object);
    return handle ? new QAccessibleWidget(handle, QAccessible::Grip) : nullptr;
}

} // namespace

ZelSplitterHandle::ZelSplitterHandle(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , orientation_(orientation)
    , icon_(iconFile(orientation))
{
    QAccessible::installFactory(accessibleHandle);
    setSizePolicy(makeSizePolicy(orientation));
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Splitter"));
}

ZelSplitterHandle::~ZelSplitterHandle()
{
    setCursorShown(false);
}

QSizePolicy ZelSplitterHandle::makeSizePolicy(Qt::Orientation orientation)
{
    const QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    return orientation == Qt::Horizontal ? policy : policy.transposed();
}

QSize ZelSplitterHandle::minimumSizeHint() const
{
    const QSize size(thickness, length);
    return orientation_ == Qt::Horizontal ? size : size.transposed();
}

/// The cursor is taken back once however the hover ends.
void ZelSplitterHandle::setCursorShown(bool shown)
{
    if (shown == isCursorShown_)
        return;
    isCursorShown_ = shown;
    if (shown) {
        QApplication::setOverrideCursor(orientation_ == Qt::Horizontal ? Qt::SplitHCursor
                                                                       : Qt::SplitVCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void ZelSplitterHandle::enterEvent(QEnterEvent *event)
{
    setCursorShown(true);
    QWidget::enterEvent(event);
}

void ZelSplitterHandle::leaveEvent(QEvent *event)
{
    setCursorShown(false);
    QWidget::leaveEvent(event);
}

void ZelSplitterHandle::hideEvent(QHideEvent *event)
{
    setCursorShown(false);
    QWidget::hideEvent(event);
}

void ZelSplitterHandle::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ZelSplitterHandle::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void ZelSplitterHandle::keyPressEvent(QKeyEvent *event)
{
    const bool isHorizontal = orientation_ == Qt::Horizontal;
    const int less = isHorizontal ? Qt::Key_Left : Qt::Key_Up;
    const int more = isHorizontal ? Qt::Key_Right : Qt::Key_Down;
    if (dragStart_ || (event->key() != less && event->key() != more)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int step = event->modifiers().testFlag(Qt::ShiftModifier) ? fineStep : keyStep;
    Q_EMIT dragStarted();
    Q_EMIT dragged(event->key() == more ? step : -step);
    Q_EMIT dragEnded();
}

void ZelSplitterHandle::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    dragStart_ = event->globalPosition();
    Q_EMIT dragStarted();
}

void ZelSplitterHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (!dragStart_)
        return;
    event->accept();
    const QPointF way = event->globalPosition() - *dragStart_;
    Q_EMIT dragged(int(orientation_ == Qt::Horizontal ? way.x() : way.y()));
}

void ZelSplitterHandle::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    dragStart_.reset();
    Q_EMIT dragEnded();
}

void ZelSplitterHandle::paintEvent(QPaintEvent *)
{
    const qreal ratio = devicePixelRatioF();
    const QSize wished = (QSizeF(size()) * ratio).toSize();
    QPixmap pixmap = icon_.pixmap(icon_.actualSize(wished), 1.0);
    pixmap.setDevicePixelRatio(ratio);
    const QSize shown = (QSizeF(pixmap.size()) / ratio).toSize();
    const QPoint place = orientation_ == Qt::Vertical ? QPoint((width() - shown.width()) / 2, 0)
                                                      : QPoint(0, (height() - shown.height()) / 2);
    QPainter painter(this);
    painter.drawPixmap(place, pixmap);
    painter.end();
    if (hasFocus())
        ZelFocusFrame::paint(this);
}
