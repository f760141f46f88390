#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QTabBar>

#include <memory>

class QAction;
class QMenu;
class ZelTextIconTabWidget;

/// The tab bar of the side panels: the icon above the text, all tabs of one width. Its context menu
/// chooses between texts and icons and, in a ZelTextIconTabWidget in dock mode, tears tabs out and
/// puts them back. The wheel doesn't change the tab.
class ZELWIDGETS_EXPORT ZelTextIconTabBar : public QTabBar
{
    Q_OBJECT

public:
    /// Bits of the header style.
    enum HeaderStyle : int { TextStyle = 1, IconStyle = 2 };

    explicit ZelTextIconTabBar(QWidget *parent = nullptr);
    ~ZelTextIconTabBar() override;

    int tabHeaderStyle() const;
    /// The width that all tabs need at least.
    int minimumWidth() const;

    /// Bits of HeaderStyle; none of them counts as texts.
    void setTabHeaderStyle(int style);
    /// Shares a width among the tabs.
    void setTabWidgetWidth(int width);
    /// The context menu, which belongs to the caller; its last entries are about the tab, without
    /// one about the current tab.
    QMenu *createContextMenu(int tab = -1);

public Q_SLOTS:
    /// Does what the entry of the context menu stands for.
    void handleContextMenuAction(QAction *action);

Q_SIGNALS:
    /// The user chose another style.
    void tabHeaderStyleUpdated(int style);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    ZelTextIconTabWidget *tabWidget() const;
    void addTabEntries(QMenu *menu, ZelTextIconTabWidget *tabs);
    void paintTab(class QStylePainter *painter, int index);
    void chooseStyle(int bit, bool on);

    std::unique_ptr<class ZelTextIconTabBarPrivate> d_;
};
