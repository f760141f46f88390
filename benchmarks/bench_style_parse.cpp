// The way from a `.style` file of 3,000 lines to the finished sheet, beside Qt's own replacement of
// the same keys.

#include "SheetsUnderTest.h"

#include "theme/ZelStylePalette.h"

#include <QElapsedTimer>
#include <QStringList>

#include <benchmark/benchmark.h>

namespace {

constexpr int lineCount = 3000;

QString longStyleFile()
{
    const auto sections = ZelStylePalette::splitSections(SheetsUnderTest::styleFile());
    QStringList lines = sections.sheet.split(QLatin1Char('\n'));
    while (lines.size() < lineCount)
        lines += lines;
    lines.resize(lineCount);
    return sections.palette + QStringLiteral("// BEGIN STYLESHEET SECTION") +
           lines.join(QLatin1Char('\n'));
}

QString plainlyReplaced(QString sheet, const ZelStylePalette::Colors &colors)
{
    for (const auto &[key, value] : colors)
        sheet.replace(QString::fromStdString(key), QString::fromStdString(value));
    return sheet;
}

void wholeFile(benchmark::State &state)
{
    const QByteArray file = longStyleFile().toUtf8();
    for (auto _ : state) {
        const auto sections = ZelStylePalette::splitSections(QString::fromUtf8(file));
        const auto palette = ZelStylePalette::parse(sections.palette.simplified());
        const QString sheet = ZelStylePalette::withFontRule(
            ZelStylePalette::substitute(sections.sheet, palette.at("Dark")), 9);
        benchmark::DoNotOptimize(sheet.constData());
    }
}

void substitution(benchmark::State &state)
{
    const auto sections = ZelStylePalette::splitSections(longStyleFile());
    const auto colors = ZelStylePalette::parse(sections.palette).at("Dark");
    qint64 plain = 0;
    qint64 ours = 0;
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        benchmark::DoNotOptimize(plainlyReplaced(sections.sheet, colors));
        plain += clock.nsecsElapsed();
        clock.start();
        benchmark::DoNotOptimize(ZelStylePalette::substitute(sections.sheet, colors));
        ours += clock.nsecsElapsed();
    }
    state.counters["times_plain_replace"] = double(ours) / double(plain);
    state.counters["ours_ms"] = double(ours) / 1e6 / double(state.iterations());
}

} // namespace

BENCHMARK(wholeFile)->Unit(benchmark::kMillisecond);
BENCHMARK(substitution)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
