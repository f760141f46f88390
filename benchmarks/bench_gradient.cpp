// A row of a gradient with 8 stops of each kind, beside a QColor for each pixel and beside a
// QLinearGradient whose stops have just changed (which makes straight lines only). First argument:
// width in pixels; second: 100 times the display gamma, 0 for none.
// Then one edit of a gradient with very many stops, and a step of a drag in the editor, from the
// mouse event to the painted panel (argument: stops of a kind).

#include "BenchmarkRun.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientDisplay>
#include <ZelWidgets/ZelGradientText>
#include <ZelWidgets/ZelGradientView>
#include <ZelWidgets/ZelResources>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int stopsOfAKind = 8;

void setGamma(int64_t hundredths)
{
    ZelGammaPolicy *policy = ZelGammaPolicy::get();
    policy->setEnableGammaCorrection(hundredths > 0);
    if (hundredths > 0)
        policy->setGamma(float(hundredths) / 100.0F);
}

ZelColor someColor(int i)
{
    return {ZelColor::Space::RGB, float(i % 3) / 2, float(i % 5) / 4, float(i % 7) / 6};
}

void fill(ZelGradient &gradient, int count)
{
    for (int i = 0; i < count; ++i) {
        const float location = float(i) / float(count - 1);
        gradient.addColorStop(location, someColor(i)).setSlopeIn(float(i % 5));
        gradient.addAlphaStop(location, float(i % 4) / 3).setSlopeOut(float(i % 5));
    }
}

float weight(const orv::color::BlendCurve &curve, float x)
{
    if (curve.start >= x)
        return 0;
    if (x >= curve.end)
        return 1;
    const float u = (x - curve.start) * curve.invSpan;
    return std::clamp(((curve.a * u + curve.b) * u + curve.c) * u, 0.0F, 1.0F);
}

QImage paintByQColor(const ZelGradient &gradient, int width)
{
    QImage image(width, 1, QImage::Format_ARGB32);
    auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(0));
    orv::color::BlendCurve alpha;
    orv::color::BlendCurve color;
    float fromAlpha = 1;
    float toAlpha = 1;
    ZelColor fromColor;
    ZelColor toColor;
    int nextAlpha = 0;
    int nextColor = 0;
    gradient.getAlphaCurve(nextAlpha++, alpha, fromAlpha, toAlpha);
    gradient.getColorCurve(nextColor++, color, fromColor, toColor);
    for (int i = 0; i < width; ++i) {
        const float t = float(i) / float(width - 1);
        if (t > alpha.end)
            gradient.getAlphaCurve(nextAlpha++, alpha, fromAlpha, toAlpha);
        if (t > color.end)
            gradient.getColorCurve(nextColor++, color, fromColor, toColor);
        const float blend = weight(color, t);
        const auto from = fromColor.toRGB();
        const auto to = toColor.toRGB();
        QColor pixel = toDisplayQColor({ZelColor::Space::RGB, from[0] + (to[0] - from[0]) * blend,
                                        from[1] + (to[1] - from[1]) * blend,
                                        from[2] + (to[2] - from[2]) * blend});
        pixel.setAlphaF(fromAlpha + (toAlpha - fromAlpha) * weight(alpha, t));
        pixels[i] = pixel.rgba();
    }
    return image;
}

void rowOurs(benchmark::State &state)
{
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient, stopsOfAKind);
    setGamma(state.range(1));
    if (gradient.paint(int(state.range(0))) != paintByQColor(gradient, int(state.range(0))))
        state.SkipWithError("not the bytes of QColor");
    for (auto _ : state)
        benchmark::DoNotOptimize(gradient.paint(int(state.range(0))));
}

void rowQColor(benchmark::State &state)
{
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient, stopsOfAKind);
    setGamma(state.range(1));
    for (auto _ : state)
        benchmark::DoNotOptimize(paintByQColor(gradient, int(state.range(0))));
}

void rowQLinearGradient(benchmark::State &state)
{
    const int width = int(state.range(0));
    int round = 0;
    for (auto _ : state) {
        QLinearGradient gradient(0, 0, width, 0);
        ++round;
        for (int i = 0; i < 2 * stopsOfAKind; ++i) {
            QColor color = toQColor(someColor(i));
            color.setAlpha((i * 16 + round) % 256); // never from Qt's cache
            gradient.setColorAt(double(i) / (2 * stopsOfAKind - 1), color);
        }
        QImage image(width, 1, QImage::Format_ARGB32);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(image.rect(), gradient);
        painter.end();
        benchmark::DoNotOptimize(image);
    }
}

void addStops(benchmark::State &state)
{
    const int count = int(state.range(0));
    for (auto _ : state) {
        ZelGradient gradient(ZelGradient::Alpha);
        uint place = 1;
        for (int i = 0; i < count; ++i) {
            place = place * 1664525U + 1013904223U;
            gradient.addColorStop(float(place >> 8) / float(1 << 24), someColor(i));
        }
        benchmark::DoNotOptimize(gradient.stops());
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void moveStopAndPaint(benchmark::State &state)
{
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient, int(state.range(0)));
    ZelGradientStop stop = gradient.colorStop(0);
    float location = 0;
    for (auto _ : state) {
        location = location < 0.99F ? location + 0.01F : 0;
        stop.setLocation(location);
        benchmark::DoNotOptimize(gradient.paint(1024));
    }
}

void sendMouse(QWidget *widget, QEvent::Type type, QPoint position)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void dragStop(benchmark::State &state)
{
    ZelGradient gradient(ZelGradient::Alpha | ZelGradient::Hdr);
    fill(gradient, int(state.range(0)));
    ZelGradientView view(nullptr);
    view.setGradient(&gradient);
    view.resize(600, 260);
    view.show();
    QCoreApplication::processEvents();
    auto *bar = view.findChild<ZelGradientDisplay *>();
    // The first colour stop stands at the left end of the bar, below it.
    const QPoint handle(8, bar->height() - 7);
    sendMouse(bar, QEvent::MouseButtonPress, handle);
    if (!gradient.selected()) {
        state.SkipWithError("no stop is hit");
        return;
    }
    int x = 0;
    for (auto _ : state) {
        x = (x + 3) % 500;
        sendMouse(bar, QEvent::MouseMove, handle + QPoint(x, 0));
        QCoreApplication::processEvents();
    }
}

void textAndBack(benchmark::State &state)
{
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient, int(state.range(0)));
    ZelGradient copy(ZelGradient::Alpha);
    for (auto _ : state)
        benchmark::DoNotOptimize(ZelGradientText::read(ZelGradientText::write(gradient), copy));
}

BENCHMARK(rowOurs)->ArgsProduct({{1024, 4096}, {0, 220}})->Unit(benchmark::kMicrosecond);
BENCHMARK(rowQColor)->ArgsProduct({{1024, 4096}, {0, 220}})->Unit(benchmark::kMicrosecond);
BENCHMARK(rowQLinearGradient)->Arg(1024)->Arg(4096)->Unit(benchmark::kMicrosecond);
BENCHMARK(addStops)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(moveStopAndPaint)->Arg(8)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(dragStop)->Arg(8)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(textAndBack)->Arg(8)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        zelmorawidgets_init_resources();
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    });
}
