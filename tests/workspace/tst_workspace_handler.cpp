#include "WorkSpaceWindow.h"
#include "workspace/WorkSpaceRecord.h"

#include "TestCase.h"

#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelDockWidgetFromTab>

class tst_workspace_handler : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    }
    void restoresArrangement();

private:
    static QByteArray capture(const WorkSpaceWindow &window)
    {
        return WorkSpaceHandler::getWorkSpaceData(window.library, window.project);
    }
};

void tst_workspace_handler::restoresArrangement()
{
    WorkSpaceWindow window;
    QTest::qWait(0);
    const QByteArray plain = capture(window);

    ZelDockWidgetFromTab *floating = window.library->changeTab2Window(1);
    floating->setGeometry(400, 300, 320, 240);
    ZelDockWidgetFromTab *docked = window.project->changeTab2Window(2);
    window.addDockWidget(Qt::LeftDockWidgetArea, docked);
    docked->setFloating(false);
    window.library->tabBar()->moveTab(0, 2);
    window.library->setCurrentIndex(1);
    window.docks[0]->setFloating(true);
    window.docks[0]->setGeometry(2000, 100, 260, 300);
    window.docks[1]->hide();
    window.subTabs->setCurrentIndex(2);
    window.toolBar->setIconSizeMode(ZelToolBar::LargeIcons);
    window.ribbon->actions().first()->setVisible(false);
    QTest::qWait(50);
    const QByteArray changed = capture(window);

    QVERIFY(WorkSpaceHandler::restoreWorkSpace(plain, window.library, window.project, false));
    QTest::qWait(50);
    QCOMPARE(capture(window), plain);
    QVERIFY(WorkSpaceHandler::restoreWorkSpace(changed, window.library, window.project, false));
    QTest::qWait(50);
    QCOMPARE(capture(window), changed);
}

ZEL_TEST_MAIN(tst_workspace_handler)
#include "tst_workspace_handler.moc"
