#include "GestureView.h"

#include "viewport/GestureKeys.h"

#include <ZelWidgets/ZelMouseActionSettings>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr int focusWidth = 2;

} // namespace

GestureView::GestureView(QWidget *parent)
    : QLabel(parent)
{
    setFrameStyle(StyledPanel | Plain);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 160);
}

void GestureView::tell(ZelMouseShortcut::MouseEventAction event, Qt::MouseButtons buttons,
                       Qt::KeyboardModifiers modifiers)
{
    const auto *action = ZelMouseActionSettings::instance()->findAction(
        event, buttons, GestureKeys::withDigit(modifiers));
    Q_EMIT gestureMade({event, GestureKeys::withDigit(modifiers), buttons}, action);
}

void GestureView::tellClick(Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    switch (button) {
    case Qt::LeftButton:
        return tell(ZelMouseShortcut::LeftClick, {}, modifiers);
    case Qt::RightButton:
        return tell(ZelMouseShortcut::RightClick, {}, modifiers);
    case Qt::MiddleButton:
        return tell(ZelMouseShortcut::CentreClick, {}, modifiers);
    default:
        break;
    }
}

void GestureView::mousePressEvent(QMouseEvent *event)
{
    pressed_ = event->pos();
    isDragged_ = false;
}

void GestureView::mouseMoveEvent(QMouseEvent *event)
{
    const int way = (event->pos() - pressed_).manhattanLength();
    if (isDragged_ || way < QApplication::startDragDistance())
        return;
    isDragged_ = true;
    tell(ZelMouseShortcut::Drag, event->buttons(), event->modifiers());
}

void GestureView::mouseReleaseEvent(QMouseEvent *event)
{
    // The buttons of a drag go up one after the other.
    if (!isDragged_)
        tellClick(event->button(), event->modifiers());
    if (!event->buttons())
        isDragged_ = false;
}

void GestureView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The release that follows is no click.
    isDragged_ = true;
    tell(ZelMouseShortcut::DoubleClick, {}, event->modifiers());
}

void GestureView::wheelEvent(QWheelEvent *event)
{
    tell(ZelMouseShortcut::Wheel, {}, event->modifiers());
    event->accept();
}

void GestureView::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
}

void GestureView::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), focusWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
