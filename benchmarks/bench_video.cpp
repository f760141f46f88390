// Extraction of the frames of a clip of 10 seconds: the bare command, and the dialog around it, in
// turn. The ratio is that of the medians.
// stall_ms and stall_max_ms are the longest time for which the event loop was not served meanwhile,
// median and maximum over the runs; cpu_ms is the processor time that the dialog itself takes.

#include <ZelWidgets/ExtractFramesFromVideoDlg>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr int frames = 250;

QString program()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
}

bool run(const QStringList &arguments)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program(), arguments);
    return process.waitForFinished(-1) && process.exitCode() == 0;
}

/// The clip, in a folder of its own.
class Clip
{
public:
    Clip()
    {
        run({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
             QStringLiteral("testsrc=size=640x360:rate=25:duration=10"), QStringLiteral("-c:v"),
             QStringLiteral("mpeg4"), path()});
    }

    QString path() const { return folder_.filePath(QStringLiteral("clip.mp4")); }
    QString pattern() const { return folder_.filePath(QStringLiteral("clip%01d.png")); }
    /// Takes the frames away; false if it was another number of them.
    bool clear() const
    {
        QDir folder(folder_.path());
        const QStringList names = folder.entryList({QStringLiteral("*.png")});
        for (const QString &name : names)
            folder.remove(name);
        return names.size() == frames;
    }

private:
    QTemporaryDir folder_;
};

/// Measures how long the event loop is away.
class StallWatch : public QTimer
{
public:
    StallWatch()
    {
        callOnTimeout(this, [this] {
            longest_ = std::max(longest_, since_.nsecsElapsed());
            since_.restart();
        });
        since_.start();
        start(1);
    }
    double milliseconds() const { return double(longest_) / 1e6; }

private:
    QElapsedTimer since_;
    qint64 longest_ = 0;
};

/// Seconds that the bare command takes.
double bareCommand(const Clip &clip)
{
    QElapsedTimer time;
    time.start();
    run({QStringLiteral("-y"), QStringLiteral("-i"), clip.path(), clip.pattern()});
    return double(time.nsecsElapsed()) / 1e9;
}

/// Seconds from the click on OK to the end of the dialog, with all that it checks.
double dialog(const Clip &clip, double &stall, double &cpu)
{
    QElapsedTimer time;
    std::unique_ptr<StallWatch> watch;
    std::clock_t start = 0;
    QTimer look;
    look.callOnTimeout(&look, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        auto *box = modal ? modal->findChild<QDialogButtonBox *>() : nullptr;
        if (!box)
            return;
        look.stop();
        // The first paint is over by then.
        QTimer::singleShot(200, box, [&, box] {
            watch = std::make_unique<StallWatch>();
            time.start();
            start = std::clock();
            box->button(QDialogButtonBox::Ok)->click();
        });
    });
    look.start(5);
    ExtractFramesFromVideoDlg::getExtractedFiles(clip.path(), nullptr);
    const double seconds = double(time.nsecsElapsed()) / 1e9;
    cpu = double(std::clock() - start) / CLOCKS_PER_SEC;
    stall = watch->milliseconds();
    return seconds;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void extraction(benchmark::State &state)
{
    const Clip clip;
    std::vector<double> bare;
    std::vector<double> ours;
    std::vector<double> stalls;
    std::vector<double> cpu;
    for (auto _ : state) {
        bare.push_back(bareCommand(clip));
        bool isRight = clip.clear();
        ours.push_back(dialog(clip, stalls.emplace_back(), cpu.emplace_back()));
        isRight = clip.clear() && isRight;
        state.SetIterationTime(ours.back());
        if (!isRight) {
            state.SkipWithError("another number of frames was written");
            return;
        }
    }
    state.counters["bare_ms"] = median(bare) * 1000;
    state.counters["ours_ms"] = median(ours) * 1000;
    state.counters["ratio"] = median(ours) / median(bare);
    state.counters["cpu_ms"] = median(cpu) * 1000;
    state.counters["stall_ms"] = median(stalls);
    state.counters["stall_max_ms"] = *std::max_element(stalls.begin(), stalls.end());
}

BENCHMARK(extraction)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(11);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString installed = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
    if (!QFile::exists(program()) && !QFile::link(installed, program())) {
        std::puts("there is no ffmpeg on this system");
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
