// The time from the start of a program to the first paint of a bare window: with library, style and
// sheet, and with plain Qt and the same sheet. Both are programs of their own.

#include "SheetsUnderTest.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

double msOfRun(const QString &program, const QStringList &arguments)
{
    QElapsedTimer clock;
    clock.start();
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s did not start", qPrintable(program));
    return double(clock.nsecsElapsed()) / 1e6;
}

double medianOf(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + qsizetype(values.size() / 2), values.end());
    return values[values.size() / 2];
}

void startToFirstPaint(benchmark::State &state)
{
    QTemporaryFile sheet;
    sheet.open();
    sheet.write(SheetsUnderTest::finished(QStringLiteral("Dark")).toUtf8());
    sheet.close();
    std::vector<double> plain;
    std::vector<double> ours;
    for (auto _ : state) {
        plain.push_back(msOfRun(QStringLiteral("startup_plain"), {sheet.fileName()}));
        ours.push_back(msOfRun(QStringLiteral("startup_library"), {}));
    }
    state.counters["plain_ms"] = medianOf(plain);
    state.counters["ours_ms"] = medianOf(ours);
    state.counters["times_plain"] = medianOf(ours) / medianOf(plain);
}

} // namespace

BENCHMARK(startToFirstPaint)->Iterations(25)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
