#include "WorkSpaceWindow.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>

WorkSpaceWindow::WorkSpaceWindow(bool isShown)
{
    setAnimated(false);
    auto *central = new QWidget;
    auto *row = new QHBoxLayout(central);
    setCentralWidget(central);
    library = addTabs(QStringLiteral("Library"), QStringLiteral("L"));
    project = addTabs(QStringLiteral("Project"), QStringLiteral("P"));
    row->addWidget(library);
    row->addWidget(project);

    subTabs = new QTabWidget(pages.first());
    subTabs->setObjectName(QStringLiteral("ScenePageSubTab"));
    auto *nested = new QTabWidget(pages.last());
    nested->setObjectName(QStringLiteral("Nested"));
    for (QTabWidget *tabs : {subTabs, nested}) {
        for (const QString &text :
             {QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")})
            tabs->addTab(new QWidget, text);
    }
    addDocks();
    addRibbon();
    toolBar = new ZelToolBar(ZelToolBar::StyledBorder);
    toolBar->setObjectName(QStringLiteral("MainToolBar"));
    toolBar->addAction(QStringLiteral("Render"));
    toolBar->setIconSizeMode(ZelToolBar::MediumIcons);
    addToolBar(toolBar);
    setGeometry(200, 100, 1200, 800);
    setVisible(isShown);
}

QStringList WorkSpaceWindow::order(const QTabWidget *tabs)
{
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i)
        names.append(tabs->widget(i)->objectName());
    return names;
}

QWidget *WorkSpaceWindow::makePage(const QString &name)
{
    auto *page = new QWidget;
    page->setObjectName(name);
    page->setMinimumSize(80, 60);
    return page;
}

ZelTextIconTabWidget *WorkSpaceWindow::addTabs(const QString &name, const QString &prefix)
{
    auto *tabs = new ZelTextIconTabWidget(centralWidget());
    tabs->setObjectName(name);
    for (int i = 1; i <= 5; ++i) {
        pages.append(makePage(prefix + QString::number(i)));
        tabs->addTab(pages.last(), QStringLiteral("Page %1").arg(i));
    }
    tabs->setDockMode(true);
    return tabs;
}

void WorkSpaceWindow::addDocks()
{
    for (int i = 0; i < 4; ++i) {
        auto *dock =
            new ZelDockWidget(QStringLiteral("Dock"), QStringLiteral("Dock%1").arg(i), true, this);
        auto *contents = new QLabel(dock->objectName());
        contents->setMinimumSize(60, 40);
        dock->setContentsWidget(contents);
        dock->setAllowedAreas(Qt::AllDockWidgetAreas);
        addDockWidget(i % 2 ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea, dock);
        dock->show();
        docks.append(dock);
    }
}

void WorkSpaceWindow::addRibbon()
{
    ribbon = addToolBar(QStringLiteral("Ribbon"));
    ribbon->setObjectName(QStringLiteral("Ribbon"));
    for (const QString &name :
         {QStringLiteral("RibbonScript"), QStringLiteral("RibbonGPU"), QString(),
          QStringLiteral("RibbonStudios"), QStringLiteral("RibbonStudiosTggl"),
          QStringLiteral("RibbonStudiosStep"), QString(), QStringLiteral("RibbonHDPI")}) {
        if (name.isEmpty())
            ribbon->addSeparator();
        else
            ribbon->addAction(name)->setObjectName(name);
    }
}
