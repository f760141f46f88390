#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QList>
#include <QString>

class QWidget;
class ZelDockWidgetFromTab;
class ZelDragOutEventFilter;
class ZelTextIconTabWidget;

/// Tears tabs out of a ZelTextIconTabWidget and puts them back; the tab widget owns it and forwards
/// to it.
class ZELWIDGETS_EXPORT ZelTabWidgetDragDropHelper
{
public:
    explicit ZelTabWidgetDragDropHelper(ZelTextIconTabWidget *tabs);

    QString dockHeaderPrefix() const { return dockHeaderPrefix_; }
    bool dockMode() const;
    int countChildrenDialogs() const;
    QList<ZelDockWidgetFromTab *> getChildren() const;
    QList<ZelDockWidgetFromTab *> getHiddenChildren() const;
    bool hasReorderedDialogs() const;

    ZelDockWidgetFromTab *changeTab2Window(int tab);
    void raiseDockWidget(QWidget *page);
    void restoreDocked2Tabs();
    void setDockHeaderPrefix(const QString &prefix) { dockHeaderPrefix_ = prefix; }
    void setDockMode(bool on);
    void takeBack(QWidget *page, const QIcon &icon, const QString &title);

private:
    ZelDragOutEventFilter *filter() const;

    ZelTextIconTabWidget *tabs_;
    QString dockHeaderPrefix_;
};
