#include "DeskMenus.h"

#include "BindableAction.h"
#include "DeskRibbon.h"
#include "DeskWindow.h"
#include "GalleryApplication.h"
#include "LookControls.h"
#include "PageCatalog.h"
#include "PageGroups.h"
#include "viewport/Viewport.h"

#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

DeskMenus::DeskMenus(DeskWindow *window, GalleryApplication *application)
    : QObject(window)
    , window_(window)
    , application_(application)
{
    addFile();
    addView();
    addPages();
    addTheme();
    addWindow();
}

void DeskMenus::addFile()
{
    QMenu *menu = window_->menuBar()->addMenu(tr("&File"));
    bindable("file.cSavePicture",
             menu->addAction(tr("&Save picture..."), QKeySequence::Save, window_,
                             &DeskWindow::savePicture),
             window_);
    menu->addSeparator();
    bindable("file.zQuit",
             menu->addAction(tr("&Quit"), QKeySequence::Quit, window_, &QWidget::close), window_);
}

void DeskMenus::addView()
{
    QMenu *menu = window_->menuBar()->addMenu(tr("&View"));
    Viewport *viewport = window_->viewport();
    bindable("cam.aFit",
             menu->addAction(tr("&Fit the selection"), QKeySequence(Qt::Key_F3), viewport,
                             &Viewport::fitSelected),
             window_);
    bindable("cam.bReset",
             menu->addAction(tr("&Reset the camera"), QKeySequence(Qt::SHIFT | Qt::Key_F3),
                             viewport, &Viewport::resetCamera),
             window_);
    menu->addSeparator();
    int number = 1;
    for (const ZelDockWidget *dock : window_->docks()) {
        QAction *action = dock->toggleViewAction();
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + number++)));
        menu->addAction(action);
    }
    menu->addSeparator();
    menu->addAction(window_->ribbon()->toggleViewAction());
    menu->addAction(window_->mainToolBar()->toggleViewAction());
    addIconSizes(menu->addMenu(tr("&Icons of the tool bar")));
    menu->addSeparator();
    QAction *commands = window_->ribbon()->button(QStringLiteral("Script"));
    bindable("if.gCommandPalette",
             menu->addAction(tr("&Command palette"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
                             commands, &QAction::trigger),
             window_);
}

void DeskMenus::addIconSizes(QMenu *menu)
{
    ZelToolBar *bar = window_->mainToolBar();
    auto *group = new QActionGroup(menu);
    const QList<QPair<QString, ZelToolBar::IconSizeMode>> sizes{
        {tr("&Small"), ZelToolBar::SmallIcons},
        {tr("&Medium"), ZelToolBar::MediumIcons},
        {tr("&Large"), ZelToolBar::LargeIcons}};
    for (const auto &[text, mode] : sizes) {
        QAction *action =
            menu->addAction(text, bar, [bar, mode = mode] { bar->setIconSizeMode(mode); });
        action->setCheckable(true);
        action->setActionGroup(group);
        // A workspace may have changed it.
        connect(menu, &QMenu::aboutToShow, action, [bar, action, mode = mode] {
            action->setChecked(bar->currentIconSizeMode() == mode);
        });
    }
}

void DeskMenus::addPages()
{
    QMenu *menu = window_->menuBar()->addMenu(tr("&Pages"));
    for (const PageGroupEntry &group : pageGroups()) {
        QMenu *pages = menu->addMenu(LookControls::icon(group.icon), group.title);
        for (const QString &id : group.pages) {
            const int index = pageIndex(id);
            const PageEntry &page = pageCatalog()[index];
            pages->addAction(LookControls::icon(page.icon), page.title, window_,
                             [this, index] { window_->showPage(index); });
        }
    }
    menu->addSeparator();
    bindable("if.cNextPage",
             menu->addAction(tr("&Next page"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), this,
                             [this] { stepPage(1); }),
             window_);
    bindable("if.dPreviousPage",
             menu->addAction(tr("&Previous page"), QKeySequence(Qt::CTRL | Qt::Key_PageUp), this,
                             [this] { stepPage(-1); }),
             window_);
}

void DeskMenus::stepPage(int step)
{
    const int count = int(pageCatalog().size());
    window_->showPage((window_->currentPage() + step + count) % count);
}

void DeskMenus::addTheme()
{
    QMenu *menu = window_->menuBar()->addMenu(tr("&Theme"));
    LookControls::addThemes(menu, application_);
    menu->addSeparator();
    bindable("if.fOtherTheme",
             menu->addAction(tr("&Other theme"), QKeySequence(Qt::CTRL | Qt::Key_T), this,
                             [this] { LookControls::takeOtherTheme(application_); }),
             window_);
}

void DeskMenus::addWindow()
{
    QMenu *menu = window_->menuBar()->addMenu(tr("&Window"));
    QAction *docking = menu->addAction(tr("&Enable docking"));
    docking->setObjectName(QStringLiteral("EnableDocking"));
    docking->setCheckable(true);
    docking->setChecked(window_->docksAreEnabled());
    connect(docking, &QAction::triggered, window_, &DeskWindow::setDocksEnabled);
    QAction *back = menu->addAction(tr("Put all &tabs back"), this, [this] {
        window_->library()->restoreDocked2Tabs();
        window_->project()->restoreDocked2Tabs();
    });
    connect(menu, &QMenu::aboutToShow, this, [this, docking, back] {
        docking->setChecked(window_->docksAreEnabled());
        const auto differs = [](const ZelTextIconTabWidget *tabs) {
            return tabs->hasChildrenDialogs() || tabs->hasReorderedDialogs();
        };
        back->setEnabled(differs(window_->library()) || differs(window_->project()));
    });
}
