#include "ZelDockSubject.h"

#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDocking.h"
#include "docks/ZelTextIconTabWidget.h"

ZelDockSubject ZelDockSubject::around(QWidget *widget, const QMainWindow *window)
{
    ZelDockSubject subject;
    if (!ZelDocking::isEnabled())
        return subject;
    for (QWidget *place = widget; place && !subject.isValid(); place = place->parentWidget()) {
        auto *dock = qobject_cast<QDockWidget *>(place);
        auto *tabs = qobject_cast<ZelTextIconTabWidget *>(place);
        if (dock && dock->features().testFlag(QDockWidget::DockWidgetMovable)) {
            subject.dock_ = dock;
            if (const auto *tornOut = qobject_cast<ZelDockWidgetFromTab *>(dock))
                subject.tabs_ = tornOut->tabWidget();
        } else if (tabs && tabs->dockMode() && tabs->count() > 1) {
            subject.tabs_ = tabs;
            subject.page_ = tabs->currentWidget();
        }
    }
    if (subject.isValid() && ZelDocking::mainWindowOf(widget) != window)
        return {};
    return subject;
}

bool ZelDockSubject::isValid() const
{
    return dock_ || (tabs_ && page_);
}

QDockWidget *ZelDockSubject::dock() const
{
    return dock_;
}

ZelTextIconTabWidget *ZelDockSubject::tabs() const
{
    return tabs_;
}

QString ZelDockSubject::title() const
{
    QString title;
    if (dock_)
        title = dock_->windowTitle();
    else if (isValid())
        title = tabs_->tabText(tabs_->indexOf(page_));
    return title.replace(QLatin1String("&&"), QLatin1String("&"));
}

bool ZelDockSubject::isFloating() const
{
    return dock_ && dock_->isFloating();
}

bool ZelDockSubject::canFloat() const
{
    return !dock_ || dock_->features().testFlag(QDockWidget::DockWidgetFloatable);
}

bool ZelDockSubject::isAreaAllowed(Qt::DockWidgetArea area) const
{
    // The window of a torn-out page goes to both sides.
    return dock_ ? dock_->isAreaAllowed(area)
                 : area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
}

QDockWidget *ZelDockSubject::takeOut()
{
    if (isValid() && !dock_)
        dock_ = tabs_->changeTab2Window(tabs_->indexOf(page_));
    return dock_;
}
