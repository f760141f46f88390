#include "ZelDockingMode.h"

#include "ZelArrowKeys.h"
#include "docks/ZelDockMenu.h"
#include "docks/ZelDockPreview.h"
#include "docks/ZelDockTargets.h"
#include "docks/ZelDockWidget.h"
#include "docks/ZelDocking.h"
#include "docks/ZelPaneFocus.h"
#include "docks/ZelTextIconTabWidget.h"
#include "shortcuts/ZelAction.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>

namespace {

constexpr int pixelStep = 10;

/// Events that take the user elsewhere.
bool endsMode(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::ApplicationDeactivate:
        return true;
    default:
        return false;
    }
}

/// Whether the middle of the title, by which a window is taken hold of, lies on a screen.
bool isTitleOnScreen(const QDockWidget *dock, const QPoint &place)
{
    return QGuiApplication::screenAt(place + QPoint(dock->width() / 2, 0)) != nullptr;
}

} // namespace

class ZelDockingModePrivate
{
public:
    QPointer<QMainWindow> window;
    QPointer<ZelDockPreview> preview;
    QPointer<QWidget> focus;
    ZelDockSubject subject;
    ZelDockTargets targets;
    QRect startGeometry;
    bool isActive = false;
};

ZelDockingMode::ZelDockingMode(QMainWindow *window)
    : QObject(window)
    , d_(std::make_unique<ZelDockingModePrivate>())
{
    d_->window = window;
    auto *action = new ZelAction(QStringLiteral("if.nDockingMode"), tr("Move Panel by Keyboard"),
                                 Qt::CTRL | Qt::Key_M, this);
    connect(action, qOverload<>(&ZelAction::triggered), this, &ZelDockingMode::start);
    window->addAction(action->qAction());
}

ZelDockingMode::~ZelDockingMode() = default;

bool ZelDockingMode::isActive() const
{
    return d_->isActive;
}

QString ZelDockingMode::message() const
{
    return d_->isActive && d_->preview ? d_->preview->message() : QString();
}

void ZelDockingMode::start()
{
    if (d_->isActive || !d_->window)
        return;
    const ZelDockSubject subject = ZelDockSubject::around(QApplication::focusWidget(), d_->window);
    d_->targets = ZelDockTargets(d_->window, subject);
    if (d_->targets.isEmpty())
        return;
    d_->subject = subject;
    d_->focus = QApplication::focusWidget();
    d_->startGeometry = subject.isFloating() ? subject.dock()->geometry() : QRect();
    d_->isActive = true;
    d_->preview = new ZelDockPreview(d_->window);
    qApp->installEventFilter(this);
    Q_EMIT started();
    tell(tr("%1: arrow keys choose the place, Return takes it there, Escape leaves it. %2")
             .arg(subject.title(), d_->targets.text()));
}

void ZelDockingMode::accept()
{
    if (!d_->isActive)
        return;
    const QPointer<ZelDockingMode> guard(this);
    const QPointer<QWidget> focus(d_->focus);
    end();
    const QPointer<QDockWidget> dock(d_->targets.apply());
    if (dock)
        ZelPaneFocus::enter(dock);
    else if (focus)
        focus->setFocus(Qt::ShortcutFocusReason);
    if (guard)
        Q_EMIT finished(true);
}

void ZelDockingMode::cancel()
{
    if (!d_->isActive)
        return;
    if (d_->subject.isFloating() && !d_->startGeometry.isNull())
        d_->subject.dock()->setGeometry(d_->startGeometry);
    end();
    Q_EMIT finished(false);
}

void ZelDockingMode::end()
{
    d_->isActive = false;
    qApp->removeEventFilter(this);
    if (d_->preview) {
        d_->preview->hide();
        d_->preview->deleteLater();
    }
    // Speech goes back to what has had the focus all the time.
    if (QWidget *focus = QApplication::focusWidget()) {
        QAccessibleEvent event(focus, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

bool ZelDockingMode::eventFilter(QObject *object, QEvent *event)
{
    if (!d_->isActive)
        return QObject::eventFilter(object, event);
    if (!d_->subject.isValid() || !d_->preview || endsMode(event)) {
        cancel();
        return false;
    }
    switch (event->type()) {
    case QEvent::ContextMenu:
        openMenu();
        return true;
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        press(static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::KeyRelease:
        return true;
    default:
        return false;
    }
}

void ZelDockingMode::press(QKeyEvent *event)
{
    event->accept();
    const QPoint step = zelArrowStep(event->key());
    const Qt::KeyboardModifiers modifiers =
        event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
    if (event->key() == Qt::Key_Escape)
        cancel();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accept();
    else if (event->key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier)
        openMenu();
    else if (step.isNull())
        return;
    else if (modifiers == Qt::NoModifier)
        choose(step);
    else if (modifiers == Qt::ControlModifier)
        moveWindow(step * pixelStep);
    else if (modifiers == Qt::ShiftModifier)
        sizeWindow(step * pixelStep);
}

void ZelDockingMode::openMenu()
{
    const QPointer<ZelDockWidget> dock(qobject_cast<ZelDockWidget *>(d_->subject.dock()));
    const QPointer<ZelTextIconTabWidget> tabs(d_->subject.dock() ? nullptr : d_->subject.tabs());
    cancel();
    if (dock) {
        ZelDockMenu::openBelowTitle(dock);
    } else if (tabs) {
        QWidget *bar = tabs->decoratedTabBar();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), bar->mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(bar, &menu);
    }
}

void ZelDockingMode::choose(const QPoint &step)
{
    d_->targets.move(step);
    tell(d_->targets.isPresentPlace() ? tr("%1, where it is now").arg(d_->targets.text())
                                      : d_->targets.text());
}

void ZelDockingMode::moveWindow(const QPoint &step)
{
    QDockWidget *dock = d_->subject.dock();
    if (!d_->subject.isFloating()) {
        tell(tr("Only a window of its own can be moved"));
    } else if (!ZelDocking::hasGlobalPositions()) {
        tell(tr("This desktop places windows itself"));
    } else if (!isTitleOnScreen(dock, dock->pos() + step)) {
        tell(tr("The edge of the screens"));
    } else {
        dock->move(dock->pos() + step);
        tell(tr("At %1, %2").arg(dock->x()).arg(dock->y()));
    }
}

void ZelDockingMode::sizeWindow(const QPoint &step)
{
    QDockWidget *dock = d_->subject.dock();
    if (!d_->subject.isFloating()) {
        tell(tr("Only a window of its own can be sized"));
        return;
    }
    dock->resize(dock->size() + QSize(step.x(), step.y()));
    tell(tr("%1 by %2 pixels").arg(dock->width()).arg(dock->height()));
}

void ZelDockingMode::tell(const QString &message)
{
    if (!d_->isActive || !d_->preview)
        return;
    d_->preview->tell(d_->targets.area(), message);
    Q_EMIT messageChanged(message);
}
