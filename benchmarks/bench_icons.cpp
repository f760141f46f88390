// Painting a themed icon beside parsing and rendering an equal document that is coloured already.

#include "BenchmarkRun.h"
#include "theme/StyleSvgIconEngine.h"

#include <ZelWidgets/IconColorTheme>

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryFile>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

namespace {

// An icon of about 1.3 KB: a tool's comment, two global markers, one local one, nine shapes.
const QByteArray document = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Drawn by hand on a grid of 24 units -->
<svg xmlns="http://www.w3.org/2000/svg" version="1.2" width="24" height="24" viewBox="0 0 24 24">
<!--@*#808080:icon_main-->
<!--@*#3a7bd5:icon_accent-->
<g fill="none" stroke="#808080" stroke-width="1.5" stroke-linecap="round" stroke-linejoin="round">
<path d="M12.75 8.25L5.25 15.75L3.75 20.25L8.25 18.75L15.75 11.25"/>
<path d="M11.25 6.75L17.25 12.75"/>
<path d="M14.25 9.75L17.6 4.9C18.5 3.7 19.6 3.7 20 4C20.4 4.4 20.3 5.5 19.1 6.4Z"/>
<circle cx="6" cy="6" r="2.25"/>
<rect x="2.25" y="2.25" width="19.5" height="19.5" rx="2"/>
</g>
<g fill="none" stroke="#3a7bd5" stroke-width="1.5" stroke-linecap="round" stroke-linejoin="round">
<path d="M11.25 10.5V16.5M8.25 13.5L11.25 16.5L14.25 13.5"/>
<path d="M4 20C6 18 8.5 17.2 11.4 17.6C14.8 18 17.6 19.4 20 21.3"/>
<line x1="3" y1="22" x2="21" y2="22"/>
</g>
<path fill="#123456" d="M18 2L22 2L22 6Z"/><!--@#123456:icon_shade-->
<path fill="none" stroke="#808080" d="M1 1L23 1L23 23L1 23Z"/>
<path fill="#808080" d="M9 3C10.1 3 11 3.9 11 5C11 6.1 10.1 7 9 7C7.9 7 7 6.1 7 5C7 3.9 7.9 3 9 3Z"/>
</svg>
)";

struct Setting
{
    explicit Setting(int size)
        : image(size, size, QImage::Format_ARGB32_Premultiplied)
        , painter(&image)
    {
        IconColorTheme *theme = IconColorTheme::instance();
        if (theme->isNull()) {
            theme->buildMap(QStringLiteral(
                R"([{"icon_main": "#d0d0d0", "icon_main_disabled": "#707070",
                     "icon_main_hover": "#ffffff", "icon_accent": "#4aa3ff",
                     "icon_accent_disabled": "#3a5a7a", "icon_shade": "#101010"}])"));
        }
        QTemporaryFile file(QDir::tempPath() + QStringLiteral("/bench_icon_XXXXXX.svg"));
        if (!file.open() || file.write(document) != document.size() || !file.flush())
            qFatal("can't write the icon");
        engine = std::make_unique<StyleSvgIconEngine>(file.fileName());
        coloured = theme
                       ->mapSvgToTheme(QString::fromUtf8(document), QIcon::Normal, QIcon::Off,
                                       QStringLiteral("bench"))
                       .toUtf8();
    }

    void paintThemed() { engine->paint(&painter, image.rect(), QIcon::Normal, QIcon::Off); }
    void paintPlain() { QSvgRenderer(coloured).render(&painter, image.rect()); }

    QImage image;
    QPainter painter;
    std::unique_ptr<StyleSvgIconEngine> engine;
    QByteArray coloured;
};

void plainSvg(benchmark::State &state)
{
    Setting setting(int(state.range(0)));
    for (auto _ : state)
        setting.paintPlain();
}

template <typename Work>
double nanoseconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start)
        .count();
}

// The ratio is taken in this same run: each themed paint is followed by a plain one, and what the
// machine does meanwhile meets both; the medians are compared.
void themedIcon(benchmark::State &state)
{
    Setting setting(int(state.range(0)));
    std::vector<double> themed;
    std::vector<double> plain;
    for (auto _ : state) {
        themed.push_back(nanoseconds([&]() { setting.paintThemed(); }));
        state.SetIterationTime(themed.back() * 1e-9);
        plain.push_back(nanoseconds([&]() { setting.paintPlain(); }));
    }
    const auto median = [](std::vector<double> &times) {
        const auto middle = times.begin() + std::ptrdiff_t(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    };
    state.counters["ratio"] = median(themed) / median(plain);
}

template <bool Prepared>
void rewriting(benchmark::State &state)
{
    const Setting setting(16);
    const QString text = QString::fromUtf8(document);
    const ThemedSvg prepared(text);
    const IconColorTheme *theme = IconColorTheme::instance();
    for (auto _ : state) {
        if constexpr (Prepared) {
            benchmark::DoNotOptimize(
                theme->mapSvgToTheme(prepared, QIcon::Normal, QIcon::Off, QString()));
        } else {
            benchmark::DoNotOptimize(
                theme->mapSvgToTheme(text, QIcon::Normal, QIcon::Off, QString()));
        }
    }
}

BENCHMARK(plainSvg)->Arg(16)->Arg(24)->Arg(48)->Unit(benchmark::kMicrosecond);
BENCHMARK(themedIcon)->Arg(16)->Arg(24)->Arg(48)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(rewriting<false>)->Name("rewritingFromText")->Unit(benchmark::kMicrosecond);
BENCHMARK(rewriting<true>)->Name("rewritingPrepared")->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QGuiApplication>(argc, argv);
}
