// Shortcuts in great numbers, beside Qt's own.

#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelMouseActionSettings>
#include <ZelWidgets/ZelShortcut>
#include <ZelWidgets/ZelShortcutHandler>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QShortcut>
#include <QtTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

namespace {

constexpr int objectCount = 10'000;
constexpr int sharedKeys = 2'000;

QKeySequence keyOf(int number)
{
    // Letters of a script that has as many as wanted.
    constexpr int first = 0x4e00;
    return QKeySequence(first + number);
}

QString idOf(int number)
{
    return QStringLiteral("cam.x%1").arg(number);
}

/// A window and an empty registry that knows it.
class Desk
{
public:
    Desk()
    {
        ZelShortcutHandler::destroy();
        ZelShortcutHandler::prepareInstance();
        ZelShortcutHandler::instance()->setSystemInitialized(&window_);
    }
    QMainWindow &window() { return window_; }
    /// The focus is in the central widget.
    QWidget *show()
    {
        auto *view = new QWidget;
        view->setFocusPolicy(Qt::StrongFocus);
        window_.setCentralWidget(view);
        window_.show();
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_))
            qFatal("the window does not become active");
        view->setFocus();
        return view;
    }

private:
    QMainWindow window_;
};

/// Measures the time of the process, which others on the machine don't lengthen.
class Clock
{
public:
    void start() { start_ = now(); }
    double ms() const { return now() - start_; }

private:
    static double now()
    {
        constexpr double msPerSecond = 1e3;
        return double(std::clock()) * msPerSecond / CLOCKS_PER_SEC;
    }
    double start_ = 0;
};

void registerObjects(benchmark::State &state)
{
    const int count = int(state.range(0));
    double plain = 1e9;
    double ours = 1e9;
    for (auto _ : state) {
        Clock clock;
        {
            QMainWindow window;
            clock.start();
            for (int number = 0; number < count; ++number)
                new QShortcut(keyOf(number), &window);
            plain = std::min(plain, clock.ms());
        }
        Desk desk;
        // The caller's ids are literals.
        QStringList ids;
        for (int number = 0; number < count; ++number)
            ids << idOf(number);
        clock.start();
        for (int number = 0; number < count; ++number)
            new ZelShortcut(ids.at(number), QString(), keyOf(number), &desk.window());
        ours = std::min(ours, clock.ms());
    }
    state.counters["plain_ms"] = plain;
    state.counters["ours_ms"] = ours;
    state.counters["times_plain"] = ours / plain;
}

void rebuild(benchmark::State &state)
{
    Desk desk;
    QMainWindow other;
    double anew = 1e9;
    QList<ZelAction *> actions;
    for (int number = 0; number < objectCount; ++number) {
        // Four of five objects share one of the keys.
        const bool isShared = number % 5 != 0;
        const int key = isShared ? number % sharedKeys : sharedKeys + number;
        actions << new ZelAction(idOf(number), QString(), keyOf(key), &desk.window());
    }
    double texts = 1e9;
    double ours = 1e9;
    for (auto _ : state) {
        Clock clock;
        clock.start();
        for (const ZelAction *action : actions) {
            QString text = action->qAction()->shortcut().toString(QKeySequence::PortableText);
            benchmark::DoNotOptimize(text);
        }
        texts = std::min(texts, clock.ms());
        clock.start();
        ZelShortcutHandler::instance()->setSystemInitialized(&desk.window());
        ours = std::min(ours, clock.ms());
        // All handlers are made anew for another parent.
        for (QMainWindow *window : {&other, &desk.window()}) {
            clock.start();
            ZelShortcutHandler::instance()->setSystemInitialized(window);
            anew = std::min(anew, clock.ms());
        }
    }
    state.counters["texts_ms"] = texts;
    state.counters["rebuild_ms"] = ours;
    state.counters["times_texts"] = ours / texts;
    state.counters["all_anew_ms"] = anew;
}

double usPerPress(QWidget *view, const int &fired)
{
    constexpr int presses = 200;
    const int before = fired;
    Clock clock;
    clock.start();
    for (int press = 0; press < presses; ++press)
        QTest::sendKeyEvent(QTest::Click, view, Qt::Key_D, QString(QChar(4)), Qt::ControlModifier);
    if (fired != before + presses)
        qFatal("not each press fired");
    return clock.ms() * 1000 / presses;
}

void pressKey(benchmark::State &state)
{
    const int members = int(state.range(0));
    const QKeySequence key(Qt::CTRL | Qt::Key_D);
    Desk desk;
    QWidget *view = desk.show();
    int fired = 0;
    double plain = 1e9;
    double ours = 1e9;
    for (auto _ : state) {
        {
            QShortcut shortcut(key, view);
            QObject::connect(&shortcut, &QShortcut::activated, [&fired] { ++fired; });
            plain = std::min(plain, usPerPress(view, fired));
        }
        QList<QObject *> holders;
        for (int number = 0; number < members; ++number) {
            auto *holder = number == 0 ? new QWidget(view) : new QWidget(&desk.window());
            QWidget *scope = number == 0 ? view : holder;
            holders << holder;
            auto *shortcut = new ZelShortcut(idOf(number), QString(), key, holder);
            shortcut->setScope(scope);
            QObject::connect(shortcut, &QShortcut::activated, [&fired] { ++fired; });
        }
        ours = std::min(ours, usPerPress(view, fired));
        qDeleteAll(holders);
        ZelShortcutHandler::instance()->applyCurrentSettingsToShortcuts();
    }
    state.counters["plain_us"] = plain;
    state.counters["ours_us"] = ours;
    state.counters["times_plain"] = ours / plain;
}

void findAction(benchmark::State &state)
{
    const Desk desk;
    const ZelMouseActionSettings *settings = ZelMouseActionSettings::instance();
    // A movement that is nothing, so that the whole table is gone through.
    const QKeyCombination keys(Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier,
                               Qt::Key_2);
    if (settings->findAction(ZelMouseShortcut::Drag, Qt::MiddleButton, keys))
        qFatal("the movement means something");
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            settings->findAction(ZelMouseShortcut::Drag, Qt::MiddleButton, keys));
    }
}

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    // The registry tells of each object above its limit.
    qInstallMessageHandler(ignoreMessages);
    constexpr auto ms = benchmark::kMillisecond;
    benchmark::RegisterBenchmark("registerObjects", registerObjects)
        ->Arg(objectCount / 10) // the registry does not warn of so few
        ->Arg(objectCount / 2)
        ->Arg(objectCount)
        ->Iterations(9)
        ->Unit(ms);
    benchmark::RegisterBenchmark("rebuild", rebuild)->Iterations(5)->Unit(ms);
    benchmark::RegisterBenchmark("pressKey", pressKey)->Arg(5)->Arg(50)->Iterations(10)->Unit(ms);
    benchmark::RegisterBenchmark("findAction", findAction);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
