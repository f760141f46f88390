#include "WorkSpaceWindow.h"
#include "docks/ZelDockHold.h"

#include "TestCase.h"

#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelDockWidgetTitle>
#include <ZelWidgets/ZelWorkSpaceReport>

#include <QPointer>
#include <QRandomGenerator>
#include <QScreen>
#include <QTabBar>

namespace {

constexpr int stepsOfSequence = 14;

int sequenceCount()
{
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue("ZEL_WORKSPACE_SEQUENCES", &isSet);
    return isSet ? count : 40;
}

/// A user who arranges the window at random.
class Arranger
{
public:
    explicit Arranger(quint32 seed)
        : random_(seed)
    {}

    WorkSpaceWindow &window() { return window_; }
    QStringList log() const { return log_; }

    QByteArray capture()
    {
        return WorkSpaceHandler::getWorkSpaceData(window_.library, window_.project);
    }
    bool restore(const QByteArray &data)
    {
        return WorkSpaceHandler::restoreWorkSpace(data, window_.library, window_.project, false);
    }

    void step()
    {
        using Step = void (Arranger::*)();
        static constexpr std::array<std::pair<const char *, Step>, 11> steps{{
            {"dock", &Arranger::dock},
            {"tabify", &Arranger::tabify},
            {"float", &Arranger::floatDock},
            {"tear out", &Arranger::tearOut},
            {"tear out", &Arranger::tearOut},
            {"put back", &Arranger::putBack},
            {"reorder", &Arranger::reorder},
            {"hide or show", &Arranger::toggle},
            {"move", &Arranger::move},
            {"resize", &Arranger::resize},
            {"ribbon and tool bar", &Arranger::changeBars},
        }};
        const auto &[name, run] = steps[size_t(number(int(steps.size())))];
        log_.append(QLatin1String(name));
        (this->*run)();
        QCoreApplication::processEvents();
    }

    int number(int below) { return random_.bounded(below); }

private:
    QList<ZelDockWidget *> docks() const
    {
        QList<ZelDockWidget *> all;
        for (ZelDockWidget *dock : window_.findChildren<ZelDockWidget *>()) {
            if (dock->contentsWidget())
                all.append(dock);
        }
        return all;
    }
    ZelDockWidget *anyDock() { return docks()[number(int(docks().size()))]; }
    ZelTextIconTabWidget *anyTabs() { return number(2) ? window_.library : window_.project; }
    Qt::DockWidgetArea anyArea()
    {
        return number(2) ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea;
    }

    void dock()
    {
        ZelDockWidget *dock = anyDock();
        window_.addDockWidget(anyArea(), dock);
        dock->setFloating(false);
        dock->show();
    }
    void tabify()
    {
        ZelDockWidget *first = anyDock();
        ZelDockWidget *second = anyDock();
        if (first == second || first->isFloating() || second->isFloating() ||
            window_.dockWidgetArea(first) == Qt::NoDockWidgetArea)
            return;
        window_.tabifyDockWidget(first, second);
    }
    void floatDock()
    {
        ZelDockWidget *dock = anyDock();
        if (dock->isFloating())
            return;
        // The title bar of a dock behind others can't be reached.
        dock->raise();
        QCoreApplication::processEvents();
        if (dock->isVisible())
            Q_EMIT dock->zelTitleWidget()->toggleFloating();
    }
    void tearOut()
    {
        ZelTextIconTabWidget *tabs = anyTabs();
        ZelDockWidget *dock = tabs->changeTab2Window(number(tabs->count()));
        if (dock)
            dock->move(100 + number(2000), 50 + number(600));
    }
    void putBack()
    {
        const auto children = anyTabs()->getChildren();
        if (!children.isEmpty())
            children[number(int(children.size()))]->forceRestoreInView();
    }
    void reorder()
    {
        ZelTextIconTabWidget *tabs = anyTabs();
        tabs->tabBar()->moveTab(number(tabs->count()), number(tabs->count()));
        tabs->setCurrentIndex(number(tabs->count()));
    }
    void toggle()
    {
        ZelDockWidget *dock = anyDock();
        dock->setVisible(dock->isHidden());
    }
    void move()
    {
        ZelDockWidget *dock = anyDock();
        if (dock->isFloating())
            dock->move(number(3000), number(900));
    }
    void resize()
    {
        ZelDockWidget *dock = anyDock();
        if (dock->isFloating())
            dock->resize(150 + number(300), 150 + number(300));
        else
            window_.resizeDocks({dock}, {120 + number(200)}, Qt::Horizontal);
    }
    void changeBars()
    {
        QAction *action = window_.ribbon->actions()[number(int(window_.ribbon->actions().size()))];
        // Those of the studios are shown and hidden by their own rule.
        if (!action->isSeparator() && !action->objectName().contains(QLatin1String("Studios")))
            action->setVisible(!action->isVisible());
        WorkSpaceHandler::fixSeparators(window_.ribbon);
        window_.toolBar->setIconSizeMode(ZelToolBar::IconSizeMode(1 + number(3)));
        window_.toolBar->setVisible(number(2));
        window_.subTabs->setCurrentIndex(number(3));
    }

    QRandomGenerator random_;
    WorkSpaceWindow window_;
    QStringList log_;
};

/// What must hold at any moment; empty if it does.
QString fault(WorkSpaceWindow &window)
{
    for (QWidget *page : window.pages) {
        int places =
            int(window.library->indexOf(page) >= 0) + int(window.project->indexOf(page) >= 0);
        for (const ZelDockWidgetFromTab *dock : window.findChildren<ZelDockWidgetFromTab *>())
            places += dock->contentsWidget() == page;
        if (places != 1)
            return QStringLiteral("page %1 in %2 places").arg(page->objectName()).arg(places);
    }
    for (const ZelDockWidget *dock : window.findChildren<ZelDockWidget *>()) {
        bool isSeen = !dock->isVisible() || !dock->isFloating();
        for (const QScreen *screen : QGuiApplication::screens())
            isSeen = isSeen || screen->geometry().intersects(dock->geometry());
        if (!isSeen)
            return dock->objectName() + QLatin1String(" off all screens");
        const bool isFixed = dock->minimumWidth() == dock->maximumWidth() ||
                             dock->minimumHeight() == dock->maximumHeight();
        if (isFixed && !ZelDockHold::isPending(&window))
            return dock->objectName() + QLatin1String(" with a fixed size");
    }
    for (const auto *bar : window.findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (bar->isVisible() && window.rect().intersects(bar->geometry()) && bar->count() < 2)
            return QStringLiteral("tab bar of %1 docks").arg(bar->count());
    }
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && !widget->updatesEnabled())
            return widget->objectName() + QLatin1String(" isn't painted");
    }
    if (QGuiApplication::overrideCursor())
        return QStringLiteral("override cursor");
    return WorkSpaceHandler::isInWorkspaceRestore() ? QStringLiteral("still in a restore")
                                                    : QString();
}

/// The fields in which the two differ.
QString difference(const QByteArray &found, const QByteArray &wanted)
{
    const QVariantMap first = ZelWorkSpaceReport::describe(QString(), found).toVariantMap();
    const QVariantMap second = ZelWorkSpaceReport::describe(QString(), wanted).toVariantMap();
    QString text;
    QDebug stream(&text);
    for (const QString &field : first.keys()) {
        if (first[field] != second[field])
            stream << field << first[field] << second[field];
    }
    return text;
}

} // namespace

class tst_workspace_arrangements : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    }
    void anyArrangementComesBack_data();
    void anyArrangementComesBack();
};

void tst_workspace_arrangements::anyArrangementComesBack_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= sequenceCount(); ++seed)
        QTest::addRow("%d", seed) << seed;
}

void tst_workspace_arrangements::anyArrangementComesBack()
{
    QFETCH(int, seed);
    Arranger arranger{quint32(seed)};
    QCoreApplication::processEvents();
    QList<QByteArray> stored{arranger.capture()};
    for (int i = 0; i < stepsOfSequence; ++i) {
        arranger.step();
        const QString trouble = fault(arranger.window());
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble + arranger.log().join(u',')));
        if (arranger.number(4) == 0)
            stored.append(arranger.capture());
        if (arranger.number(5) != 0)
            continue;
        const QByteArray &wanted = stored[arranger.number(int(stored.size()))];
        QVERIFY(arranger.restore(wanted));
        QVERIFY(!ZelDockHold::isPending(&arranger.window()));
        const QString after = fault(arranger.window());
        QVERIFY2(after.isEmpty(), qPrintable(after + arranger.log().join(u',')));
        const QByteArray found = arranger.capture();
        QVERIFY2(found == wanted,
                 qPrintable(difference(found, wanted) + arranger.log().join(u',')));
    }
}

ZEL_TEST_MAIN(tst_workspace_arrangements)
#include "tst_workspace_arrangements.moc"
