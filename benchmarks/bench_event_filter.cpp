// What the application's event filter costs off duty, beside a filter that does nothing.

#include "BenchmarkRun.h"
#include "theme/GlobalEventFilter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace {

class EmptyFilter : public QObject
{
protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        return QObject::eventFilter(object, event);
    }
};

// Takes every event at once, so that little but the filters is measured.
class Target : public QWidget
{
protected:
    bool event(QEvent *) override { return true; }
};

double nsPerEvent(Target &target, QEvent::Type type)
{
    constexpr int eventCount = 100'000;
    QEvent event(type);
    QElapsedTimer clock;
    clock.start();
    for (int number = 0; number < eventCount; ++number)
        QCoreApplication::sendEvent(&target, &event);
    return double(clock.nsecsElapsed()) / eventCount;
}

// The quickest of the rounds: the others were disturbed.
void offDuty(benchmark::State &state, QEvent::Type type)
{
    Target target;
    EmptyFilter emptyFilter;
    double none = 1e9;
    double empty = 1e9;
    double ours = 1e9;
    for (auto _ : state) {
        none = std::min(none, nsPerEvent(target, type));
        qApp->installEventFilter(&emptyFilter);
        empty = std::min(empty, nsPerEvent(target, type));
        qApp->removeEventFilter(&emptyFilter);
        qApp->installEventFilter(GlobalEventFilter::instance());
        ours = std::min(ours, nsPerEvent(target, type));
        qApp->removeEventFilter(GlobalEventFilter::instance());
    }
    state.counters["none_ns"] = none;
    state.counters["empty_ns"] = empty;
    state.counters["ours_ns"] = ours;
    state.counters["adds_times_empty"] = (ours - none) / (empty - none);
}

void registerFor(const char *name, QEvent::Type type)
{
    benchmark::RegisterBenchmark(name, offDuty, type)
        ->Iterations(20)
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        GlobalEventFilter *filter = GlobalEventFilter::instance();
        qApp->removeEventFilter(filter);
        registerFor("offDuty/Timer", QEvent::Timer);
        registerFor("offDuty/UpdateRequest", QEvent::UpdateRequest);
        registerFor("offDuty/LayoutRequest", QEvent::LayoutRequest);
        registerFor("offDuty/HoverMove", QEvent::HoverMove);
        registerFor("offDuty/Paint", QEvent::Paint);
    });
}
