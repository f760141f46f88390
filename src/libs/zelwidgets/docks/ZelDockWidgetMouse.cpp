// The edges of a floating dock: dragging them and the snapping to the screen.
#include "ZelWindowPlacement.h"
#include "docks/ZelDockGeometry.h"
#include "docks/ZelDockMenu.h"
#include "docks/ZelDockWidget.h"
#include "docks/ZelDockWidgetPrivate.h"
#include "docks/ZelDockWidgetTitle.h"
#include "docks/ZelDocking.h"
#include "docks/ZelPaneFocus.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>

void ZelDockWidget::watch(QObject *object)
{
    d_->filtered.insert(object);
    object->installEventFilter(this);
}

bool ZelDockWidget::eventFilter(QObject *object, QEvent *event)
{
    if (!d_->filtered.contains(object))
        return QDockWidget::eventFilter(object, event);
    switch (event->type()) {
    case QEvent::MouseMove:
        handleMouseMoveEvent(static_cast<QMouseEvent *>(event));
        return object == this && d_->resizeState != 0;
    case QEvent::MouseButtonPress:
        handleMousePressEvent(static_cast<QMouseEvent *>(event), object);
        break;
    case QEvent::MouseButtonRelease:
        handleMouseReleaseEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::Enter:
        // No move follows where the pointer comes back to the point that it had left.
        if (isFloating() && d_->resizeState == 0)
            adjustCursor(
                resizeStateAt(static_cast<QEnterEvent *>(event)->globalPosition().toPoint()));
        break;
    case QEvent::Leave:
        if (object == d_->contents)
            endResize();
        break;
    case QEvent::WindowActivate:
        if (object == this)
            focusContents();
        break;
    case QEvent::MouseButtonDblClick:
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // Contents that use a key rarely say so: it would be used again by each widget around them.
        break;
    default:
        event->setAccepted(false);
        break;
    }
    return false;
}

/// A floating dock that becomes active for the first time; the first in the order of the Tab key
/// is the button that closes it.
void ZelDockWidget::focusContents()
{
    QWidget *target = isFloating() && !focusWidget() ? ZelPaneFocus::target(this) : nullptr;
    if (target)
        target->setFocus(Qt::ActiveWindowFocusReason);
}

int ZelDockWidget::resizeStateAt(const QPoint &globalPoint) const
{
    return ZelDockGeometry::edgesAt(QRect(mapToGlobal(QPoint(0, 0)), size()), globalPoint);
}

void ZelDockWidget::adjustCursor(int resizeState)
{
    const QCursor cursor =
        resizeState == 0 ? d_->savedCursor : QCursor(ZelDockGeometry::cursorFor(resizeState));
    // The outermost pixels, the frame, are the dock's own.
    for (QWidget *widget : {d_->holder.data(), static_cast<QWidget *>(d_->title.data()),
                            static_cast<QWidget *>(this)}) {
        if (widget && widget->cursor().shape() != cursor.shape())
            widget->setCursor(cursor);
    }
}

void ZelDockWidget::handleMousePressEvent(QMouseEvent *event, QObject *object)
{
    if (event->button() != Qt::LeftButton || !isFloating())
        return;
    const QPoint point = event->globalPosition().toPoint();
    d_->resizeState = resizeStateAt(point);
    if (d_->resizeState != 0) {
        d_->sizeByScreen.reset();
        // The filter that was installed last comes first.
        installEventFilter(this);
        d_->pressOffset = mapFromGlobal(point);
        d_->pressGlobal = point;
        d_->startGeometry = geometry();
        d_->minSizeAtPress = minimumSize().expandedTo(minimumSizeHint());
    } else if (object == d_->title) {
        d_->screen = widgetScreen(this);
        rememberSize();
    }
}

void ZelDockWidget::handleMouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton)
        ZelDocking::resumeGroupedDragging(ZelDocking::mainWindowOf(this));
    if (!isFloating())
        return;
    const QPoint point = event->globalPosition().toPoint();
    if (event->buttons().testFlag(Qt::LeftButton)) {
        if (d_->resizeState != 0)
            dragEdges(point);
    } else if (event->buttons() == Qt::NoButton) {
        d_->resizeState = 0;
        adjustCursor(resizeStateAt(point));
    }
}

void ZelDockWidget::dragEdges(const QPoint &globalPoint)
{
    const QRect wanted =
        ZelDockGeometry::dragged(d_->startGeometry, d_->resizeState, globalPoint - d_->pressGlobal,
                                 d_->minSizeAtPress, minimumSize().expandedTo(minimumSizeHint()));
    if (wanted == geometry())
        return;
    setUpdatesEnabled(false);
    setGeometry(wanted);
    setUpdatesEnabled(true);
}

void ZelDockWidget::handleMouseReleaseEvent(QMouseEvent *event)
{
    endResize();
    if (hitTest(event->globalPosition().toPoint()))
        tellRelease();
}

void ZelDockWidget::endResize()
{
    d_->resizeState = 0;
    adjustCursor(0);
}

void ZelDockWidget::contextMenuEvent(QContextMenuEvent *event)
{
    // What comes from the contents by key had its menu there: the event doesn't tell, as it loses
    // its mark of acceptance on the way.
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (byKey ? ZelPaneFocus::isIn(d_->holder) : !hitTest(event->globalPos())) {
        QDockWidget::contextMenuEvent(event);
        return;
    }
    if (byKey)
        ZelDockMenu::openBelowTitle(this);
    else
        ZelDockMenu::open(this, event->globalPos());
    event->accept();
}

void ZelDockWidget::keyPressEvent(QKeyEvent *event)
{
    if (!ZelPaneFocus::openMenuByKey(event))
        QDockWidget::keyPressEvent(event);
}

void ZelDockWidget::leaveEvent(QEvent *event)
{
    QDockWidget::leaveEvent(event);
    endResize();
    setCursor(d_->savedCursor);
}

void ZelDockWidget::customEvent(QEvent *event)
{
    if (event->type() == QEvent::User)
        snapToScreen();
    else
        QDockWidget::customEvent(event);
}

void ZelDockWidget::snapToScreen()
{
    // The side opposite to a dragged edge stays where it is.
    if (!isFloating() || d_->resizeState != 0)
        return;
    const QScreen *screen = QGuiApplication::screenAt(pos());
    if (!screen)
        screen = widgetScreen(this);
    if (!screen)
        return;
    const QPoint position = ZelDockGeometry::snapped(frameGeometry(), screen->availableGeometry());
    if (position != pos())
        move(position);
}
