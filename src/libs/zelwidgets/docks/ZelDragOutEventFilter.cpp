#include "ZelDragOutEventFilter.h"

#include "KeyToSignalFilter.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDockWidgetTitle.h"
#include "docks/ZelDocking.h"
#include "docks/ZelTabDragRules.h"
#include "docks/ZelTabOrder.h"
#include "docks/ZelTextIconTabWidget.h"

#include <QApplication>
#include <QMainWindow>
#include <QMouseEvent>
#include <QScopedValueRollback>

namespace {

void sendMouse(QWidget *receiver, QEvent::Type type, const QPoint &globalPoint,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const QPointF local = receiver->mapFromGlobal(QPointF(globalPoint));
    const QPointF inWindow = receiver->window()->mapFromGlobal(QPointF(globalPoint));
    QMouseEvent event(type, local, inWindow, globalPoint, button, buttons, modifiers);
    QCoreApplication::sendEvent(receiver, &event);
}

} // namespace

ZelDragOutEventFilter::ZelDragOutEventFilter(ZelTextIconTabWidget *tabs)
    : QObject(tabs)
    , tabs_(tabs)
    , mainWindow_(ZelDocking::mainWindowOf(tabs))
{
    setObjectName(name());
    ZelTabOrder::markOriginal(tabs);
    // Moves without a button tell of a release that never came.
    tabs->tabBar()->setMouseTracking(true);
    tabs->tabBar()->installEventFilter(this);
    if (mainWindow_)
        mainWindow_->installEventFilter(this);
}

ZelDragOutEventFilter::~ZelDragOutEventFilter()
{
    setDragging(false);
}

QString ZelDragOutEventFilter::name()
{
    return QStringLiteral("ZelDragOutEventFilter");
}

void ZelDragOutEventFilter::stop()
{
    finish();
    tabs_->tabBar()->removeEventFilter(this);
    if (mainWindow_)
        mainWindow_->removeEventFilter(this);
}

bool ZelDragOutEventFilter::eventFilter(QObject *object, QEvent *event)
{
    if (!object->isWidgetType() || forwarding_)
        return false;
    auto *widget = static_cast<QWidget *>(object);
    findLostRelease(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // A drag moves one dock, never the group that it floats in.
        if (widget == mainWindow_)
            ZelDocking::suspendGroupedDragging(mainWindow_);
        else if (widget == tabs_->tabBar())
            press(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        if (widget != mainWindow_)
            move(widget, static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        if (widget != mainWindow_)
            release(widget, static_cast<QMouseEvent *>(event));
        break;
    default:
        break;
    }
    return false;
}

/// A window that died or a release that never came must not leave a drag behind.
void ZelDragOutEventFilter::findLostRelease(QEvent *event)
{
    if (state_ == State::Detached && !dragged_)
        state_ = State::Idle;
    const bool isMove = event->type() == QEvent::MouseMove;
    if (!isMove && event->type() != QEvent::Enter && event->type() != QEvent::HoverMove)
        return;
    const Qt::MouseButtons buttons =
        isMove ? static_cast<QMouseEvent *>(event)->buttons() : QGuiApplication::mouseButtons();
    if (buttons == Qt::NoButton)
        ZelDocking::resumeGroupedDragging(mainWindow_);
    if (isMove && state_ != State::Idle && !buttons.testFlag(Qt::LeftButton))
        finish();
}

void ZelDragOutEventFilter::press(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    pressPos_ = event->position().toPoint();
    if (tabs_->count() >= 2 && tabs_->tabBar()->tabAt(pressPos_) >= 0 && ZelDocking::isEnabled()) {
        state_ = State::Pressed;
        dragged_.clear();
        before_ = {tabs_->currentWidget(), QApplication::focusWidget(), -1};
    }
}

void ZelDragOutEventFilter::move(QWidget *widget, QMouseEvent *event)
{
    const QPoint point = event->globalPosition().toPoint();
    if (state_ == State::Pressed && widget == tabs_->tabBar()) {
        if (dragging_)
            testTearOut(point);
        else if ((event->position().toPoint() - pressPos_).manhattanLength() >=
                 QApplication::startDragDistance())
            setDragging(true);
    } else if (state_ == State::Detached && widget == tabs_->tabBar()) {
        // The bar keeps the mouse that was pressed on it.
        forwardToDragged(event);
    }
}

void ZelDragOutEventFilter::testTearOut(const QPoint &globalPoint)
{
    const QTabBar *bar = tabs_->tabBar();
    const QRect area(bar->mapToGlobal(QPoint(0, 0)), bar->size());
    if (ZelTabDragRules::isTornOut(area, globalPoint, QApplication::startDragDistance()))
        dragOut(globalPoint);
}

void ZelDragOutEventFilter::dragOut(const QPoint &globalPoint)
{
    before_.tab = tabs_->tabBar()->tabAt(pressPos_);
    dragged_ = tearOut(before_.tab);
    if (!dragged_) {
        finish();
        return;
    }
    state_ = State::Detached;
    ZelDockWidgetTitle *title = dragged_->zelTitleWidget();
    const QPoint grip = title->mapTo(dragged_, title->rect().center());
    dragged_->move(globalPoint - grip);
    // From here on the window follows the pointer as if its title had been pressed.
    const QScopedValueRollback<bool> guard(forwarding_, true);
    sendMouse(title, QEvent::MouseButtonPress, globalPoint, Qt::LeftButton, Qt::NoModifier);
}

void ZelDragOutEventFilter::forwardToDragged(const QMouseEvent *event)
{
    if (!dragged_)
        return;
    const QScopedValueRollback<bool> guard(forwarding_, true);
    sendMouse(dragged_, QEvent::MouseMove, event->globalPosition().toPoint(), event->buttons(),
              event->modifiers());
}

void ZelDragOutEventFilter::release(QWidget *widget, QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || state_ == State::Idle)
        return;
    const QPoint point = event->globalPosition().toPoint();
    if (state_ == State::Detached && dragged_) {
        const QScopedValueRollback<bool> guard(forwarding_, true);
        QWidget *other = widget == tabs_->tabBar() ? static_cast<QWidget *>(dragged_)
                                                   : static_cast<QWidget *>(tabs_->tabBar());
        sendMouse(other, QEvent::MouseButtonRelease, point, Qt::NoButton, event->modifiers());
    } else if (state_ == State::Pressed && dragging_ &&
               tabs_->rect().contains(tabs_->mapFromGlobal(point))) {
        reorder(point);
    }
    finish();
}

void ZelDragOutEventFilter::reorder(const QPoint &globalPoint)
{
    QTabBar *bar = tabs_->tabBar();
    const int from = bar->tabAt(pressPos_);
    if (from < 0)
        return;
    QList<QRect> places;
    for (int i = 0; i < bar->count(); ++i)
        places.append(bar->tabRect(i));
    const int to = ZelTabDragRules::reorderTarget(places, from, bar->mapFromGlobal(globalPoint).x(),
                                                  bar->layoutDirection());
    ZelTabOrder::move(tabs_, from, to);
}

ZelDockWidgetFromTab *ZelDragOutEventFilter::tearOut(int tab)
{
    QMainWindow *window = ZelDocking::mainWindowOf(tabs_);
    QWidget *page = tabs_->widget(tab);
    if (!window || !page || tabs_->count() < 2)
        return nullptr;
    ZelTabOrder::markOriginal(tabs_);
    const QString title = tabs_->dockHeaderPrefix() + tabs_->tabText(tab);
    const QIcon icon = tabs_->tabIcon(tab);
    const QSize pageSize = page->size();
    hadPosition_ = ZelTabOrder::removePosition(tabs_, page);
    tabs_->removeTab(tab);
    page->hide();
    page->setParent(nullptr);

    auto *dock = new ZelDockWidgetFromTab(title, page, tabs_, icon, window);
    dock->installEventFilter(this);
    dock->zelTitleWidget()->installEventFilter(this);
    dock->resize(pageSize);
    dock->move(tabs_->mapToGlobal(QPoint(0, 0)));
    page->show();
    // A workspace shows it in its place.
    if (!ZelDocking::isInRestore())
        dock->show();
    tabs_->updateTabWidths();
    return dock;
}

void ZelDragOutEventFilter::setDragging(bool dragging)
{
    if (dragging == dragging_)
        return;
    dragging_ = dragging;
    if (dragging) {
        QGuiApplication::setOverrideCursor(Qt::DragMoveCursor);
        keys_ = new KeyToSignalFilter(qApp);
        connect(keys_, &KeyToSignalFilter::escapePressed, this, &ZelDragOutEventFilter::cancel);
    } else {
        QGuiApplication::restoreOverrideCursor();
        if (keys_) {
            // It may be in its own signal.
            qApp->removeEventFilter(keys_);
            keys_->deleteLater();
        }
    }
}

void ZelDragOutEventFilter::cancel()
{
    const Before before = before_;
    if (state_ == State::Detached && dragged_)
        putDraggedBack();
    if (before.currentPage && tabs_->indexOf(before.currentPage) >= 0)
        tabs_->setCurrentWidget(before.currentPage);
    if (before.focus)
        before.focus->setFocus();
    finish();
}

void ZelDragOutEventFilter::putDraggedBack()
{
    const QPointer<QWidget> page = dragged_->page();
    // It lets go of the mouse by this, and does not dock where the pointer is.
    dragged_->setFloating(true);
    dragged_->forceRestoreInView();
    const int tab = page ? tabs_->indexOf(page) : -1;
    if (tab < 0)
        return;
    tabs_->tabBar()->moveTab(tab, before_.tab);
    if (hadPosition_)
        ZelTabOrder::store(tabs_);
}

void ZelDragOutEventFilter::finish()
{
    state_ = State::Idle;
    dragged_.clear();
    setDragging(false);
}
