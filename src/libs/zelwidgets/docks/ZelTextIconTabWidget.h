#pragma once

#include <ZelWidgets/ZelDecoratedTabWidget>
#include <ZelWidgets/ZelTabWidgetDragDropHelper>
#include <ZelWidgets/ZelTextIconTabBar>

/// The tab widget of the side panels. In dock mode its tabs can be dragged out into windows of
/// their own and come back when those are closed; the others can be put into another order.
///
///     auto *panel = new ZelTextIconTabWidget(window);
///     panel->setObjectName(QStringLiteral("LibraryWindow"));
///     panel->addTab(page, icon, tr("Materials"));
///     panel->setDockMode(true);
///
/// It has to be inside a QMainWindow for that. The order is stored by the object names of the tab
/// widget and of the pages.
class ZELWIDGETS_EXPORT ZelTextIconTabWidget : public ZelDecoratedTabWidget<ZelTextIconTabBar>
{
    Q_OBJECT

public:
    explicit ZelTextIconTabWidget(QWidget *parent = nullptr);
    ~ZelTextIconTabWidget() override;

    int actualCount() const override;
    /// What stands in front of a tab's text in the title of its window.
    QString dockHeaderPrefix() const;
    bool dockMode() const;
    /// The windows of the torn-out pages.
    QList<ZelDockWidgetFromTab *> getChildren() const;
    QList<ZelDockWidgetFromTab *> getHiddenChildren() const;
    bool hasChildrenDialogs() const;
    /// True if the tabs don't stand in the order that the application built.
    bool hasReorderedDialogs() const;

    /// Tears the tab out and gives its window; null without dock mode or a main window, and for
    /// the last tab.
    ZelDockWidgetFromTab *changeTab2Window(int tab);
    void setDockHeaderPrefix(const QString &prefix);
    void setDockMode(bool on);
    /// Raises and activates the window of a torn-out page.
    void raiseDockWidget(QWidget *page);
    /// Makes a page that was torn out a tab again and selects it; the title is that of its window.
    void takeBack(QWidget *page, const QIcon &icon, const QString &title);

public Q_SLOTS:
    /// Puts all torn-out pages back and the tabs into the order that the application built.
    void restoreDocked2Tabs();

protected:
    QList<QWidget *> tornOutPages() const override;

private:
    ZelTabWidgetDragDropHelper helper_;
};
