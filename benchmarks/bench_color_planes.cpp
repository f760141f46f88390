// The plane of saturation and value for a hue, beside the formula applied to each pixel (argument:
// 100 times the exponent), and the first plane of another gamma; a drag step of the triangle with
// its paint, beside one that draws the ring anew as well (argument: side in pixels).

#include "color/ZelSpectrumMath.h"
#include "color/ZelTriangleGeometry.h"
#include "color/ZelTrianglePainting.h"

#include <ZelCore/ZelColorMath>
#include <ZelWidgets/ZelColorTriangle>

#include <QApplication>
#include <QKeyEvent>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

float nextHue(float hue)
{
    return hue < 359.0F ? hue + 1 : 0;
}

QImage planeByFormula(float hue, float exponent)
{
    constexpr int side = ZelSpectrumMath::planeSize;
    QImage image(side, side, QImage::Format_RGB888);
    for (int row = 0; row < side; ++row) {
        uchar *out = image.scanLine(row);
        for (int column = 0; column < side; ++column) {
            const auto rgb = ZelColorMath::hsvToRgb(
                {hue, float(column) / 255.0F, float(side - 1 - row) / 255.0F});
            for (const float channel : rgb)
                *out++ =
                    uchar(int((exponent == 1 ? channel : std::pow(channel, exponent)) * 255.0F));
        }
    }
    return image;
}

template <typename Make>
void planes(benchmark::State &state, Make &&make)
{
    const float exponent = float(state.range(0)) / 100.0F;
    float hue = 0;
    for (auto _ : state) {
        hue = nextHue(hue);
        benchmark::DoNotOptimize(make(hue, exponent));
    }
}

void planeOurs(benchmark::State &state)
{
    planes(state, &ZelSpectrumMath::plane);
}

void planeOfAnotherGamma(benchmark::State &state)
{
    float exponent = 0.4F;
    for (auto _ : state) {
        exponent = exponent < 0.6F ? exponent + 0.001F : 0.4F;
        benchmark::DoNotOptimize(ZelSpectrumMath::plane(200, exponent));
    }
}

void planePlain(benchmark::State &state)
{
    planes(state, &planeByFormula);
}

void triangleStep(benchmark::State &state, bool withRing)
{
    const QSize size(int(state.range(0)), int(state.range(0)));
    ZelColorTriangle triangle({ZelColor::Space::HSV, 10, 0.5F, 0.5F});
    triangle.resize(size);
    QImage image(size, QImage::Format_RGB32);
    ZelTriangleGeometry geometry;
    geometry.setSize(size);
    triangle.render(&image);
    for (auto _ : state) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QApplication::sendEvent(&triangle, &key);
        if (withRing)
            ZelTrianglePainting::drawRing(image, geometry);
        triangle.render(&image);
    }
}

BENCHMARK(planeOurs)->Arg(100)->Arg(45)->Unit(benchmark::kMicrosecond);
BENCHMARK(planeOfAnotherGamma)->Unit(benchmark::kMicrosecond);
BENCHMARK(planePlain)->Arg(100)->Arg(45)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(triangleStep, ringKept, false)->Arg(200)->Arg(400)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(triangleStep, ringAnew, true)->Arg(200)->Arg(400)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
