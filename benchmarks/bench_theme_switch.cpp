// The switch of the theme beside QApplication::setStyleSheet() with the same finished sheets.

#include "BenchmarkRun.h"
#include "SamplePanels.h"
#include "SheetsUnderTest.h"

#include "theme/GlobalEventFilter.h"
#include "theme/ZelHyperLinkStyler.h"
#include "theme/ZelStyleSwitch.h"
#include "theme/ZelmoraStyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>

#include <algorithm>
#include <functional>

namespace {

double msOf(const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e6;
}

void settle()
{
    ZelStyleSwitch::finish();
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

void switchOurWay(const QString &sheet)
{
    GlobalEventFilter::instance()->setStyleChangeMode(true, true);
    ZelStyleSwitch::apply(sheet, ZelStyleSwitch::HiddenWidgets::Later);
    GlobalEventFilter::instance()->setStyleChangeMode(false, false);
}

// Arguments: widgets in all, pages of which one is shown.
void themeSwitch(benchmark::State &state)
{
    const QString sheets[] = {SheetsUnderTest::finished(QStringLiteral("Dark")),
                              SheetsUnderTest::finished(QStringLiteral("Light"))};
    qApp->setStyleSheet(sheets[0]);
    const auto window = SamplePanels::makeWindow(int(state.range(0)), int(state.range(1)));
    window->show();
    settle();
    for (int page = int(state.range(1)); page-- > 0;) {
        SamplePanels::showPage(*window, page);
        settle();
    }

    double plain = 0;
    double ours = 0;
    double palette = 0;
    double later = 0;
    int count = 0;
    for (auto _ : state) {
        double oursNow = 0;
        for (const QString &sheet : {sheets[1], sheets[0]}) {
            plain += msOf([&] { qApp->setStyleSheet(sheet); });
            settle();
        }
        for (const QString &sheet : {sheets[1], sheets[0]}) {
            oursNow += msOf([&] { switchOurWay(sheet); });
            palette += msOf([] { ZelHyperLinkStyler::updateApplicationPalette(); });
            later += msOf([] { ZelStyleSwitch::finish(); });
            settle();
            ++count;
        }
        ours += oursNow;
        state.SetIterationTime(oursNow / 2 / 1000);
    }
    const QWidgetList widgets = QApplication::allWidgets();
    state.counters["widgets"] = double(widgets.size());
    state.counters["visible"] = double(std::count_if(
        widgets.begin(), widgets.end(), [](const QWidget *widget) { return widget->isVisible(); }));
    state.counters["plain_ms"] = plain / count;
    state.counters["ours_ms"] = ours / count;
    state.counters["palette_ms"] = palette / count;
    state.counters["hidden_later_ms"] = later / count;
    state.counters["times_faster"] = plain / ours;
    state.counters["times_faster_in_all"] = plain / (ours + later);
}

} // namespace

BENCHMARK(themeSwitch)
    ->ArgsProduct({{500, 2000, 8000}, {1, 5}})
    ->ArgNames({"widgets", "pages"})
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        QApplication::setStyle(new ZelmoraStyle);
        GlobalEventFilter::instance();
    });
}
