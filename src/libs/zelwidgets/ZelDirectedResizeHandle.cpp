#include "ZelDirectedResizeHandle.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace {

constexpr int gripDots = 5;
constexpr int dotSize = 3;
constexpr int dotDistance = 6;
constexpr int thinnest = 8;

/// The handle for assistive technology: a grip that is moved in the steps of the keys.
class AccessibleHandle : public QAccessibleWidget
{
public:
    explicit AccessibleHandle(ZelDirectedResizeHandle *handle)
        : QAccessibleWidget(handle, QAccessible::Grip)
    {}

    QStringList actionNames() const override
    {
        const QStringList steps{increaseAction(), decreaseAction()};
        return (widget()->isEnabled() ? steps : QStringList()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        auto *handle = static_cast<ZelDirectedResizeHandle *>(object());
        if (name != increaseAction() && name != decreaseAction())
            QAccessibleWidget::doAction(name);
        else if (handle->isEnabled())
            handle->moveBy(name == increaseAction() ? ZelDirectedResizeHandle::keyStep
                                                    : -ZelDirectedResizeHandle::keyStep);
    }
};

void installAccessibleHandle()
{
    static const bool installed = [] {
        QAccessible::installFactory([](const QString &name, QObject *object) {
            auto *handle = qobject_cast<ZelDirectedResizeHandle *>(object);
            const bool isOwn = handle && name == QLatin1String("ZelDirectedResizeHandle");
            return static_cast<QAccessibleInterface *>(isOwn ? new AccessibleHandle(handle)
                                                             : nullptr);
        });
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace

ZelDirectedResizeHandle::ZelDirectedResizeHandle(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , orientation_(orientation)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    installAccessibleHandle();
    setObjectName(QStringLiteral("DirectedResizeHandle"));
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_StyledBackground);
    setCursor(isHorizontal ? Qt::SplitHCursor : Qt::SplitVCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(isHorizontal ? QSizePolicy::Fixed : QSizePolicy::Preferred,
                  isHorizontal ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    setAccessibleName(isHorizontal ? tr("Width handle") : tr("Height handle"));
    setToolTip(isHorizontal ? tr("Drag, or press the left and right keys, to change the width")
                            : tr("Drag, or press the up and down keys, to change the height"));
}

QSize ZelDirectedResizeHandle::sizeHint() const
{
    const int thickness =
        std::max(style()->pixelMetric(QStyle::PM_SplitterWidth, nullptr, this), thinnest);
    return QSize(thickness, thickness);
}

int ZelDirectedResizeHandle::offsetTo(QPoint globalPosition) const
{
    const QPoint way = globalPosition - dragStart_;
    if (orientation_ == Qt::Vertical)
        return way.y();
    return isRightToLeft() ? -way.x() : way.x();
}

// 0 for other keys.
int ZelDirectedResizeHandle::stepFor(int key) const
{
    const bool isHorizontal = orientation_ == Qt::Horizontal;
    const int forward = isHorizontal && isRightToLeft() ? -keyStep : keyStep;
    if (key == (isHorizontal ? Qt::Key_Right : Qt::Key_Down))
        return forward;
    return key == (isHorizontal ? Qt::Key_Left : Qt::Key_Up) ? -forward : 0;
}

void ZelDirectedResizeHandle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    isDragged_ = true;
    dragStart_ = event->globalPosition().toPoint();
    update();
    Q_EMIT dragStarted();
}

void ZelDirectedResizeHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (isDragged_)
        Q_EMIT dragged(offsetTo(event->globalPosition().toPoint()));
}

void ZelDirectedResizeHandle::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        endDrag();
}

void ZelDirectedResizeHandle::keyPressEvent(QKeyEvent *event)
{
    const int step = stepFor(event->key());
    if (step == 0 || isDragged_)
        return QWidget::keyPressEvent(event);
    moveBy(step);
}

void ZelDirectedResizeHandle::moveBy(int pixels)
{
    if (isDragged_)
        return;
    Q_EMIT dragStarted();
    Q_EMIT dragged(pixels);
    Q_EMIT dragEnded();
}

void ZelDirectedResizeHandle::hideEvent(QHideEvent *event)
{
    endDrag();
    QWidget::hideEvent(event);
}

void ZelDirectedResizeHandle::endDrag()
{
    if (!isDragged_)
        return;
    isDragged_ = false;
    update();
    Q_EMIT dragEnded();
}

void ZelDirectedResizeHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isLit = isDragged_ || underMouse() || hasFocus();
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().brush(group, isLit ? QPalette::Highlight : QPalette::WindowText));
    const QPointF step =
        orientation_ == Qt::Horizontal ? QPointF(0, dotDistance) : QPointF(dotDistance, 0);
    const QPointF centre = QRectF(rect()).center();
    for (int i = 0; i < gripDots; ++i)
        painter.drawEllipse(centre + step * double(i - gripDots / 2), dotSize / 2.0, dotSize / 2.0);

    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}
