// Capture and restore of a whole interface, beside the main window's own saveState() and
// restoreState() on the same window. A restore ends when all events that it caused are done.

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QAction>
#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

/// Ours with pages torn out in one of the arrangements, ours, and Qt's.
enum Way : int { OursWithPages, Ours, Qts };

QWidget *makePanel(const QString &name)
{
    constexpr int rows = 8;
    auto *panel = new QWidget;
    panel->setObjectName(name);
    auto *form = new QFormLayout(panel);
    for (int row = 0; row < rows; ++row) {
        auto *editors = new QHBoxLayout;
        editors->addWidget(new QSlider(Qt::Horizontal));
        editors->addWidget(new QSpinBox);
        form->addRow(QStringLiteral("Parameter %1").arg(row), editors);
    }
    return panel;
}

/// A window with two tab widgets of six pages, a ribbon, a tool bar and docks of panels.
class Desk
{
public:
    explicit Desk(int dockCount)
    {
        window_.setAnimated(false);
        auto *central = new QWidget;
        auto *row = new QHBoxLayout(central);
        window_.setCentralWidget(central);
        library_ = addTabs(row, QStringLiteral("Library"));
        project_ = addTabs(row, QStringLiteral("Project"));
        auto *ribbon = window_.addToolBar(QStringLiteral("Ribbon"));
        ribbon->setObjectName(QStringLiteral("Ribbon"));
        for (int i = 0; i < 12; ++i)
            ribbon->addAction(QString::number(i))->setObjectName(QStringLiteral("Ribbon%1").arg(i));
        auto *bar = new ZelToolBar(ZelToolBar::StyledBorder);
        bar->setObjectName(QStringLiteral("MainToolBar"));
        bar->addAction(QStringLiteral("Render"));
        bar->setIconSizeMode(ZelToolBar::MediumIcons);
        window_.addToolBar(bar);
        addDocks(dockCount);
        window_.resize(1900, 1000);
        window_.show();
        settle();
    }

    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Half of the docks at the other side, every tenth one floating, and pages torn out.
    void rearrange(int pages)
    {
        for (int i = 0; i < int(docks_.size()); i += 2)
            window_.addDockWidget(i % 4 ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea,
                                  docks_[i]);
        tabify();
        for (int i = 0; i < int(docks_.size()); i += 10) {
            docks_[i]->setFloating(true);
            docks_[i]->setGeometry(300 + 10 * i, 200, 300, 400);
        }
        for (int i = 0; i < pages; ++i)
            (i % 2 ? library_ : project_)->changeTab2Window(1)->setGeometry(200, 200, 300, 500);
        settle();
    }

    QMainWindow &window() { return window_; }
    QByteArray capture() const { return WorkSpaceHandler::getWorkSpaceData(library_, project_); }
    void restore(const QByteArray &data)
    {
        if (!WorkSpaceHandler::restoreWorkSpace(data, library_, project_, false))
            qFatal("the workspace is not restored");
    }

private:
    ZelTextIconTabWidget *addTabs(QHBoxLayout *row, const QString &name)
    {
        auto *tabs = new ZelTextIconTabWidget;
        tabs->setObjectName(name);
        for (int i = 0; i < 6; ++i)
            tabs->addTab(makePanel(name + QString::number(i)), QString::number(i));
        row->addWidget(tabs);
        tabs->setDockMode(true);
        return tabs;
    }

    void addDocks(int count)
    {
        for (int i = 0; i < count; ++i) {
            const QString name = QStringLiteral("Dock%1").arg(i);
            auto *dock = new ZelDockWidget(name, name, true, &window_);
            dock->setContentsWidget(makePanel(QString()));
            window_.addDockWidget(i % 2 ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea, dock);
            dock->show();
            docks_.append(dock);
        }
        tabify();
    }

    /// Two stacks at each side.
    void tabify()
    {
        for (const Qt::DockWidgetArea area : {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea}) {
            QList<ZelDockWidget *> here;
            for (ZelDockWidget *dock : std::as_const(docks_)) {
                if (window_.dockWidgetArea(dock) == area)
                    here.append(dock);
            }
            for (int i = 2; i < int(here.size()); ++i)
                window_.tabifyDockWidget(here[i % 2], here[i]);
        }
    }

    QMainWindow window_;
    ZelTextIconTabWidget *library_;
    ZelTextIconTabWidget *project_;
    QList<ZelDockWidget *> docks_;
};

void capture(benchmark::State &state)
{
    Desk desk(int(state.range(0)));
    desk.rearrange(state.range(1) == OursWithPages ? 2 : 0);
    for (auto _ : state) {
        if (state.range(1) == Qts)
            benchmark::DoNotOptimize(desk.window().saveState());
        else
            benchmark::DoNotOptimize(desk.capture());
    }
}

/// There and back.
void restore(benchmark::State &state)
{
    Desk desk(int(state.range(0)));
    const QByteArray first = desk.capture();
    const QByteArray firstState = desk.window().saveState();
    desk.rearrange(state.range(1) == OursWithPages ? 2 : 0);
    const QByteArray second = desk.capture();
    const QByteArray secondState = desk.window().saveState();
    for (auto _ : state) {
        for (int way = 0; way < 2; ++way) {
            if (state.range(1) == Qts)
                desk.window().restoreState(way ? secondState : firstState);
            else
                desk.restore(way ? second : first);
            Desk::settle();
        }
    }
}

void ways(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"docks", "way"});
    for (const int docks : {20, 100}) {
        for (const Way way : {Qts, Ours, OursWithPages})
            benchmark->Args({docks, way});
    }
}

BENCHMARK(capture)->Apply(ways)->Unit(benchmark::kMicrosecond);
BENCHMARK(restore)->Apply(ways)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    ZelSettings::setStorePath(folder.filePath(QStringLiteral("settings.json")));
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
