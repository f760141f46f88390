#pragma once

#include "GalleryPage.h"

class ZelMenu;
class ZelToolBar;
class QLabel;
class QToolButton;

/// Menus with entries that stay open, submenu chains, tool tips of entries, tool bars in three icon
/// sizes, separators, a button in a menu and in a tool bar.
class MenusPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MenusPage(QWidget *parent = nullptr);

private:
    void addMenus();
    void addToolBars();
    void addSizeChoice(QVBoxLayout *section);
    void addSeparators();
    QToolButton *createMenuButton(const QString &text, ZelMenu *menu);
    ZelMenu *createOptions();
    ZelMenu *createChain();
    ZelMenu *createExplained();
    ZelMenu *createStates();
    void fill(ZelToolBar *bar);

    QLabel *explanation_ = nullptr;
    QList<ZelToolBar *> bars_;
};
