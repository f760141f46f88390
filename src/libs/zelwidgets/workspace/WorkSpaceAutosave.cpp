#include "workspace/WorkSpaceAutosave.h"

#include "ZelStoredValue.h"
#include "docks/ZelDocking.h"
#include "workspace/WorkSpaceHandler.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr int defaultDelay = 1000;

ZelSettings store()
{
    return ZelSettings(QStringLiteral("WorkSpaces"));
}

QString key()
{
    return QStringLiteral("AutosavedArrangement");
}

void drop()
{
    store().removeKey(key());
    ZelSettings::save();
}

} // namespace

WorkSpaceAutosave::WorkSpaceAutosave(QWidget *libraryWindow, QWidget *projectWindow,
                                     QObject *parent)
    : QObject(parent)
    , library_(libraryWindow)
    , project_(projectWindow)
{
    timer_.setSingleShot(true);
    timer_.setInterval(defaultDelay);
    timer_.callOnTimeout(this, &WorkSpaceAutosave::save);
}

WorkSpaceAutosave::RestoreResult WorkSpaceAutosave::restore()
{
    const QByteArray stored = storedValue(store(), key(), QByteArray());
    if (WorkSpaceHandler::mayHaveStartupRestoreIssue()) {
        WorkSpaceHandler::clearStartupIssueFlag();
        drop();
        return Skipped;
    }
    if (stored.isEmpty())
        return NothingStored;
    // Events run in it, and this may be gone then.
    if (WorkSpaceHandler::restoreWorkSpace(stored, library_, project_, true))
        return Restored;
    drop();
    return Failed;
}

void WorkSpaceAutosave::setEnabled(bool enabled)
{
    isEnabled_ = enabled;
    if (!enabled) {
        timer_.stop();
        return;
    }
    watch();
    schedule();
}

void WorkSpaceAutosave::setDelay(int milliseconds)
{
    timer_.setInterval(std::max(milliseconds, 0));
}

void WorkSpaceAutosave::schedule()
{
    // A timer that runs is left alone: changes without an end are stored too.
    if (isEnabled_ && !timer_.isActive())
        timer_.start();
}

bool WorkSpaceAutosave::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
    case QEvent::ActionChanged:
    case QEvent::WindowStateChange:
        schedule();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool WorkSpaceAutosave::isClosing() const
{
    return !library_ || !project_ || !window_ || !window_->isVisible() ||
           window_->property("ClosingZelmora").toBool();
}

bool WorkSpaceAutosave::mustWait() const
{
    return WorkSpaceHandler::isInWorkspaceRestore() ||
           QGuiApplication::mouseButtons() != Qt::NoButton;
}

void WorkSpaceAutosave::save()
{
    watch();
    if (isClosing())
        return;
    if (mustWait()) {
        schedule();
        return;
    }
    const QByteArray data = WorkSpaceHandler::getWorkSpaceData(library_, project_);
    if (data == last_)
        return;
    store().setValue(key(), data);
    if (!ZelSettings::save())
        return;
    last_ = data;
    Q_EMIT saved(data);
}

/// Watches what has come since the last time as well.
void WorkSpaceAutosave::watch()
{
    window_ = ZelDocking::mainWindowOf(library_);
    if (!window_)
        return;
    window_->installEventFilter(this);
    for (QDockWidget *dock : window_->findChildren<QDockWidget *>())
        dock->installEventFilter(this);
    for (QToolBar *bar : window_->findChildren<QToolBar *>()) {
        bar->installEventFilter(this);
        connect(bar, &QToolBar::iconSizeChanged, this, &WorkSpaceAutosave::schedule,
                Qt::UniqueConnection);
        connect(bar, &QToolBar::toolButtonStyleChanged, this, &WorkSpaceAutosave::schedule,
                Qt::UniqueConnection);
    }
    for (QTabWidget *tabs : window_->findChildren<QTabWidget *>()) {
        connect(tabs, &QTabWidget::currentChanged, this, &WorkSpaceAutosave::schedule,
                Qt::UniqueConnection);
        connect(tabs->tabBar(), &QTabBar::tabMoved, this, &WorkSpaceAutosave::schedule,
                Qt::UniqueConnection);
    }
}
