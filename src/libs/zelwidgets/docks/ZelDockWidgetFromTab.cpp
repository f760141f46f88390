#include "ZelDockWidgetFromTab.h"

#include "docks/ZelDocking.h"
#include "docks/ZelTextIconTabWidget.h"
#include "docks/ZelTornOutName.h"

#include <QCloseEvent>
#include <QMainWindow>

ZelDockWidgetFromTab::ZelDockWidgetFromTab(const QString &title, QWidget *page,
                                           ZelTextIconTabWidget *tabs, const QIcon &tabIcon,
                                           QMainWindow *window)
    : ZelDockWidget(title, ZelTornOutName::stable(page), true, window)
    , page_(page)
    , tabs_(tabs)
    , mainWindow_(window)
    , tabIcon_(tabIcon)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFloating(true);
    setContentsWidget(page);
    connect(this, &QDockWidget::topLevelChanged, this, &ZelDockWidgetFromTab::maybeRestoreTab,
            Qt::QueuedConnection);
    for (const QObject *needed : {static_cast<QObject *>(window), static_cast<QObject *>(tabs),
                                  static_cast<QObject *>(page)}) {
        if (needed)
            connect(needed, &QObject::destroyed, this, &ZelDockWidgetFromTab::closeDialog);
    }
}

ZelDockWidgetFromTab::~ZelDockWidgetFromTab()
{
    disconnect();
    putPageBack();
    // A page that stays dies with the widget below this class, which is no receiver any more.
    if (page_)
        page_->disconnect(this);
}

ZelTextIconTabWidget *ZelDockWidgetFromTab::tabWidget() const
{
    return tabs_;
}

void ZelDockWidgetFromTab::assignStableName()
{
    setObjectName(ZelTornOutName::stable(page_));
}

void ZelDockWidgetFromTab::setVisible(bool visible)
{
    if (!visible && ZelDocking::isInRestore() && !allowHide_)
        return;
    ZelDockWidget::setVisible(visible);
}

void ZelDockWidgetFromTab::forceRestoreInView()
{
    const QPointer<ZelDockWidgetFromTab> guard(this);
    putPageBack();
    if (!guard)
        return;
    // It may be in one of its own events, so that it goes later, but it has no place any more: a
    // layout that is stored in the meantime knows nothing of it.
    setObjectName(QString());
    firstMove_ = false;
    if (mainWindow_)
        mainWindow_->removeDockWidget(this);
    deleteLater();
}

void ZelDockWidgetFromTab::maybeRestoreTab(bool visibleOrTopLevel)
{
    if (visibleOrTopLevel || isFloating() || !restoreEnabled_ || ZelDocking::isInRestore())
        return;
    if (mainWindow_ && mainWindow_->dockWidgetArea(this) != Qt::NoDockWidgetArea)
        return;
    forceRestoreInView();
}

void ZelDockWidgetFromTab::closeDialog()
{
    restoreOnClose_ = false;
    allowHide_ = true;
    disconnect();
    close();
}

void ZelDockWidgetFromTab::redock()
{
    if (mainWindow_ && mainWindow_->dockWidgetArea(this) != Qt::NoDockWidgetArea)
        ZelDockWidget::redock();
    else
        forceRestoreInView();
}

void ZelDockWidgetFromTab::closeEvent(QCloseEvent *event)
{
    QDockWidget::closeEvent(event);
}

void ZelDockWidgetFromTab::moveEvent(QMoveEvent *event)
{
    if (firstMove_ && isFloating() && !ZelDocking::isInRestore()) {
        firstMove_ = false;
        setObjectName(ZelTornOutName::takeNext(page_));
    }
    ZelDockWidget::moveEvent(event);
}

void ZelDockWidgetFromTab::putPageBack()
{
    if (!restoreOnClose_ || !page_ || !tabs_ || !mainWindow_)
        return;
    restoreOnClose_ = false;
    const QPointer<QWidget> page(page_);
    page->disconnect(this);
    allowHide_ = true;
    hide();
    if (!page)
        return;
    page->hide();
    page->setParent(nullptr);
    setContentsWidget(nullptr);
    if (tabs_)
        tabs_->takeBack(page, tabIcon_, windowTitle());
    else
        page->deleteLater();
}
