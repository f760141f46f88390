// A page of forty fields that is torn out of a tab widget and put back, and steps of dragging an
// edge of a floating dock with such a page, until all is painted; beside the same with a plain
// QTabWidget and QDockWidget. The paints of the page are counted.

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMainWindow>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int fields = 40;
constexpr int pages = 4;

enum Which { Ours, Plain };

class Page : public QWidget
{
public:
    explicit Page(int number)
    {
        setObjectName(QStringLiteral("page%1").arg(number));
        auto *form = new QFormLayout(this);
        for (int i = 0; i < fields; ++i)
            form->addRow(QStringLiteral("Field %1").arg(i), new QLineEdit(QString::number(i)));
    }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QWidget::paintEvent(event);
        ++paints;
    }
};

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

struct Window : QMainWindow
{
    explicit Window(int which)
    {
        if (which == Ours) {
            own = new ZelTextIconTabWidget(this);
            tabs = own;
        } else {
            tabs = new QTabWidget(this);
        }
        tabs->setObjectName(QStringLiteral("tabs"));
        setCentralWidget(tabs);
        for (int i = 0; i < pages; ++i)
            tabs->addTab(new Page(i), QStringLiteral("Page %1").arg(i));
        if (own)
            own->setDockMode(true);
        resize(1200, 900);
        show();
        settle();
    }

    /// The last page becomes a window.
    QDockWidget *tearOut()
    {
        if (own)
            return own->changeTab2Window(pages - 1);
        QWidget *page = tabs->widget(pages - 1);
        tabs->removeTab(pages - 1);
        auto *dock = new QDockWidget(QStringLiteral("Page"), this);
        dock->setWidget(page);
        dock->setFloating(true);
        page->show();
        dock->show();
        return dock;
    }

    void putBack(QDockWidget *dock)
    {
        if (own) {
            static_cast<ZelDockWidgetFromTab *>(dock)->forceRestoreInView();
            return;
        }
        QWidget *page = dock->widget();
        tabs->addTab(page, QStringLiteral("Page"));
        tabs->setCurrentWidget(page);
        dock->deleteLater();
    }

    QTabWidget *tabs;
    ZelTextIconTabWidget *own = nullptr;
};

void tearOut(benchmark::State &state)
{
    Window window(int(state.range(0)));
    auto *page = static_cast<Page *>(window.tabs->widget(pages - 1));
    int paints = 0;
    for (auto _ : state) {
        page->paints = 0;
        QDockWidget *dock = window.tearOut();
        settle();
        paints += page->paints;
        state.PauseTiming();
        if (!page->isVisible() || !dock->isFloating())
            state.SkipWithError("not torn out");
        window.putBack(dock);
        settle();
        state.ResumeTiming();
    }
    state.counters["paints"] = benchmark::Counter(paints, benchmark::Counter::kAvgIterations);
}

void putBack(benchmark::State &state)
{
    Window window(int(state.range(0)));
    auto *page = static_cast<Page *>(window.tabs->widget(pages - 1));
    int paints = 0;
    for (auto _ : state) {
        state.PauseTiming();
        QDockWidget *dock = window.tearOut();
        settle();
        page->paints = 0;
        state.ResumeTiming();
        window.putBack(dock);
        settle();
        paints += page->paints;
        if (window.tabs->currentWidget() != page)
            state.SkipWithError("not put back");
    }
    state.counters["paints"] = benchmark::Counter(paints, benchmark::Counter::kAvgIterations);
}

void send(QWidget *widget, QEvent::Type type, const QPoint &globalPoint)
{
    const QPointF local = widget->mapFromGlobal(QPointF(globalPoint));
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, local, local, globalPoint, isMove ? Qt::NoButton : Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void edgeStep(benchmark::State &state)
{
    const bool isOurs = state.range(0) == Ours;
    QMainWindow window;
    window.setCentralWidget(new QWidget);
    window.show();
    auto *page = new Page(0);
    QDockWidget *dock = nullptr;
    if (isOurs) {
        auto *own =
            new ZelDockWidget(QStringLiteral("Dock"), QStringLiteral("dock"), true, &window);
        own->setContentsWidget(page);
        dock = own;
    } else {
        dock = new QDockWidget(QStringLiteral("Dock"), &window);
        dock->setWidget(page);
    }
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->setFloating(true);
    dock->show();
    dock->setGeometry(100, 100, 400, 1000);
    settle();

    const QPoint grip = dock->geometry().topLeft() + QPoint(1, 500);
    if (isOurs)
        send(dock, QEvent::MouseButtonPress, grip);
    page->paints = 0;
    int step = 0;
    for (auto _ : state) {
        step = step % 50 + 1;
        if (isOurs)
            send(dock, QEvent::MouseMove, grip - QPoint(step, 0));
        else
            dock->setGeometry(100 - step, 100, 400 + step, 1000);
        settle();
        if (dock->geometry().x() != 100 - step)
            state.SkipWithError("not dragged");
    }
    state.counters["paints"] = benchmark::Counter(page->paints, benchmark::Counter::kAvgIterations);
}

BENCHMARK(tearOut)->Arg(Ours)->Arg(Plain)->Unit(benchmark::kMillisecond);
BENCHMARK(putBack)->Arg(Ours)->Arg(Plain)->Unit(benchmark::kMillisecond);
BENCHMARK(edgeStep)->Arg(Ours)->Arg(Plain)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The plugin tells of everything that it can't do.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    ZelSettings::setStorePath(folder.filePath(QStringLiteral("settings.json")));
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
