#include "BenchmarkRun.h"
#include "color/ZelColorStrip.h"

#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSliderEdit>

#include <QApplication>
#include <QImage>

#include <array>
#include <cmath>

namespace {

using ZelColorChannel::Mode;

constexpr ZelColorChannel::Range kelvins{2500, 9500};
constexpr float gammaExponent = 1.0f / 2.2f;

const ZelColor &orange()
{
    static const ZelColor color(ZelColor::Space::RGB, 0.8f, 0.4f, 0.2f);
    return color;
}

/// The plain way to the same pixels: a colour for each, with its channel replaced.
QImage plainStrip(Mode mode, int width)
{
    const ZelColorChannel::Range range = ZelColorChannel::sliderRange(mode);
    const float step = float(range.maximum - range.minimum) / float(width);
    QImage image(width, 1, QImage::Format_RGB888);
    for (int x = 0; x < width; ++x) {
        const float number = float(range.minimum) + float(x) * step;
        const QColor color = toQColor(ZelColorChannel::setChannelValue(mode, orange(), number));
        image.setPixelColor(x, 0,
                            QColor::fromRgbF(std::pow(color.redF(), gammaExponent),
                                             std::pow(color.greenF(), gammaExponent),
                                             std::pow(color.blueF(), gammaExponent)));
    }
    return image;
}

void stripOfTheLibrary(benchmark::State &state)
{
    const Mode mode = Mode(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(ZelColorStrip::image(mode, orange(), gammaExponent, kelvins));
}

void stripByColors(benchmark::State &state)
{
    const Mode mode = Mode(state.range(0));
    const int width = ZelColorStrip::image(mode, orange(), 1.0f, kelvins).width();
    for (auto _ : state)
        benchmark::DoNotOptimize(plainStrip(mode, width));
}

void strips(benchmark::internal::Benchmark *benchmark)
{
    constexpr std::array modes{Mode::Red,   Mode::Hue,  Mode::Saturation, Mode::Cyan,
                               Mode::Black, Mode::LabL, Mode::LabA,       Mode::Temperature};
    for (const Mode mode : modes)
        benchmark->Arg(int(mode));
}

BENCHMARK(stripOfTheLibrary)->Apply(strips);
BENCHMARK(stripByColors)->Apply(strips);

/// A step of a drag in an input: the colour, all its strips, and the painting of its rows.
template <typename Input>
void dragStep(benchmark::State &state)
{
    Input input(orange(), true);
    input.resize(300, input.sizeHint().height());
    input.show();
    auto *row = input.template findChild<ZelColorSliderEdit *>();
    QImage target(input.size(), QImage::Format_RGB32);
    int position = 0;
    for (auto _ : state) {
        position = (position + 1) % 100;
        row->setValue(float(position));
        input.render(&target);
    }
}

BENCHMARK(dragStep<ZelRGBColorInput>)->Unit(benchmark::kMicrosecond);
BENCHMARK(dragStep<ZelHSVColorInput>)->Unit(benchmark::kMicrosecond);
BENCHMARK(dragStep<ZelCMYKColorInput>)->Unit(benchmark::kMicrosecond);
BENCHMARK(dragStep<ZelCIELABColorInput>)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv);
}
