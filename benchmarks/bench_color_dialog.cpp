// The colour dialog under the gallery's sheet: a drag step, from the mouse event to everything
// updated and painted, in the plane, in the ring of hues and on a slider, beside the same in Qt's
// own dialog; and opening a dialog, from its construction to its first picture, beside Qt's.

#include "BenchmarkRun.h"
#include "SheetsUnderTest.h"

#include <ZelSceneGraph/Color>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorSlider>
#include <ZelWidgets/ZelColorTriangle>
#include <ZelWidgets/ZelRGBSpectrum>

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QMouseEvent>

#include <memory>

namespace {

const zelsg::Color start(0.2F, 0.45F, 0.7F);

void send(QWidget *widget, QEvent::Type type, QPoint position)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// Three pixels to and fro, each step with all that it leaves to be done.
void dragSteps(benchmark::State &state, QWidget *widget, QPoint from)
{
    if (!widget) {
        state.SkipWithError("no such widget");
        return;
    }
    QCoreApplication::processEvents();
    send(widget, QEvent::MouseButtonPress, from);
    bool isAway = false;
    for (auto _ : state) {
        isAway = !isAway;
        send(widget, QEvent::MouseMove, isAway ? from + QPoint(3, 3) : from);
        QCoreApplication::processEvents();
    }
    send(widget, QEvent::MouseButtonRelease, from);
}

std::unique_ptr<ZelColorDialog> shownDialog()
{
    auto dialog = std::make_unique<ZelColorDialog>(nullptr, start, QString(), nullptr);
    dialog->show();
    QCoreApplication::processEvents();
    return dialog;
}

std::unique_ptr<QColorDialog> shownPlain()
{
    auto dialog = std::make_unique<QColorDialog>(Qt::blue);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->show();
    QCoreApplication::processEvents();
    return dialog;
}

template <typename Part>
void dragOurs(benchmark::State &state)
{
    const auto dialog = shownDialog();
    if (std::is_same_v<Part, ZelColorTriangle>) {
        for (QAction *action : dialog->findChildren<QAction *>()) {
            if (action->text() == QLatin1String("Use Triadic Color Wheel"))
                action->trigger();
        }
    }
    auto *part = dialog->findChild<Part *>();
    int changes = 0;
    QObject::connect(dialog.get(), &ZelColorDialog::colorChanged, dialog.get(),
                     [&changes] { ++changes; });
    dragSteps(state, part, part->rect().center());
    if (changes < int(state.iterations()) - 1)
        state.SkipWithError("the colour did not follow");
}

void dragPlain(benchmark::State &state)
{
    const auto dialog = shownPlain();
    int changes = 0;
    QObject::connect(dialog.get(), &QColorDialog::currentColorChanged, dialog.get(),
                     [&changes] { ++changes; });
    QWidget *field = nullptr;
    for (QWidget *child : dialog->findChildren<QWidget *>()) {
        if (qstrcmp(child->metaObject()->className(), "QColorPicker") == 0)
            field = child;
    }
    dragSteps(state, field, QPoint(80, 80));
    if (changes < int(state.iterations()) - 1)
        state.SkipWithError("the colour did not follow");
}

// Closing isn't counted.
template <typename Make>
void open(benchmark::State &state, Make &&make)
{
    for (auto _ : state) {
        auto dialog = make();
        state.PauseTiming();
        dialog.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void openOurs(benchmark::State &state)
{
    open(state, shownDialog);
}

void openPlain(benchmark::State &state)
{
    open(state, shownPlain);
}

BENCHMARK(dragOurs<ZelRGBSpectrum>)->Name("drag/plane")->Unit(benchmark::kMicrosecond);
BENCHMARK(dragOurs<ZelColorTriangle>)->Name("drag/triangle")->Unit(benchmark::kMicrosecond);
BENCHMARK(dragOurs<ZelColorSlider>)->Name("drag/slider")->Unit(benchmark::kMicrosecond);
BENCHMARK(dragPlain)->Name("drag/plain")->Unit(benchmark::kMicrosecond);
BENCHMARK(openOurs)->Name("open/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(openPlain)->Name("open/plain")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
        qApp->setStyleSheet(SheetsUnderTest::finished(QStringLiteral("Dark")));
    });
}
