// A panel full of number rows beside the same panel of plain Qt: time and memory of building it,
// showing numbers that did not change, a drag on its way to the owner, numbers to text and back.

#include "BenchmarkRun.h"
#include "SheetsUnderTest.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSlider>
#include <ZelWidgets/ZelDoubleSliderEdit>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

#include <malloc.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int rowCount = 1000;

std::vector<float> &numbers()
{
    static std::vector<float> numbers(rowCount, 0.25F);
    return numbers;
}

QWidget *makePlainRow(int)
{
    auto *row = new QWidget;
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *line = new QHBoxLayout;
    line->addWidget(new QLabel(QStringLiteral("Radius")), 0, Qt::AlignLeft);
    auto *field = new QDoubleSpinBox;
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setFixedWidth(80);
    field->setValue(0.25);
    line->addWidget(field, 0, Qt::AlignRight);
    column->addLayout(line);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, 1000);
    slider->setValue(250);
    column->addWidget(slider, 1);
    QObject::connect(slider, &QSlider::valueChanged, field,
                     [field](int position) { field->setValue(position * 0.001); });
    QObject::connect(field, &QDoubleSpinBox::valueChanged, slider,
                     [slider](double number) { slider->setValue(int(number * 1000)); });
    return row;
}

// The plain row with the sheet that our field has, for what that alone costs.
QWidget *makeSheetedRow(int index)
{
    QWidget *row = makePlainRow(index);
    row->findChild<QDoubleSpinBox *>()->setStyleSheet(
        QStringLiteral("QDoubleSpinBox { min-height: 0px; }"));
    return row;
}

QWidget *makeRow(int index)
{
    return new ZelDoubleSliderEdit(QStringLiteral("Radius"), 0, 1, &numbers()[std::size_t(index)],
                                   0, 100, nullptr, nullptr, false);
}

using Maker = QWidget *(*)(int index);

std::unique_ptr<QWidget> panelOf(Maker make)
{
    auto panel = std::make_unique<QWidget>();
    auto *column = new QVBoxLayout(panel.get());
    column->setSpacing(1);
    for (int i = 0; i < rowCount; ++i)
        column->addWidget(make(i));
    return panel;
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

struct Cost
{
    double microseconds;
    double bytes;
};

Cost costOfPanel(Maker make)
{
    const double before = allocatedBytes();
    QElapsedTimer clock;
    clock.start();
    const std::unique_ptr<QWidget> panel = panelOf(make);
    panel->show();
    panel->layout()->activate();
    QApplication::sendPostedEvents();
    const double microseconds = double(clock.nsecsElapsed()) / 1e3 / rowCount;
    return {microseconds, (allocatedBytes() - before) / rowCount};
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// All kinds in turn in each round, and the medians, so that what disturbs the machine meets all.
void panels(benchmark::State &state, const QString &sheet)
{
    qApp->setStyleSheet(sheet);
    constexpr Maker makers[] = {&makePlainRow, &makeSheetedRow, &makeRow};
    std::vector<double> times[3];
    std::vector<double> bytes[3];
    for (const Maker make : makers)
        costOfPanel(make);
    for (auto _ : state) {
        for (std::size_t i = 0; i < 3; ++i) {
            const Cost cost = costOfPanel(makers[i]);
            times[i].push_back(cost.microseconds);
            bytes[i].push_back(cost.bytes);
        }
    }
    state.counters["plain_us_each"] = median(times[0]);
    state.counters["sheeted_us_each"] = median(times[1]);
    state.counters["ours_us_each"] = median(times[2]);
    state.counters["time_ratio"] = median(times[2]) / median(times[0]);
    state.counters["plain_bytes_each"] = median(bytes[0]);
    state.counters["ours_bytes_each"] = median(bytes[2]);
    state.counters["memory_ratio"] = median(bytes[2]) / median(bytes[0]);
}

class PaintCount : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest;
        return false;
    }
};

void updateUnchanged(benchmark::State &state, const QString &sheet)
{
    qApp->setStyleSheet(sheet);
    const std::unique_ptr<QWidget> panel = panelOf(&makeRow);
    panel->resize(400, 1000);
    panel->show();
    if (!QTest::qWaitForWindowExposed(panel.get())) {
        state.SkipWithError("The panel was not shown.");
        return;
    }
    panel->repaint();
    const auto rows = panel->findChildren<ZelDoubleSliderEdit *>();
    PaintCount count;
    qApp->installEventFilter(&count);
    for (auto _ : state) {
        for (ZelDoubleSliderEdit *row : rows)
            row->updateValue();
    }
    QApplication::processEvents();
    state.counters["paints"] = count.paints;
    state.counters["per_row"] =
        benchmark::Counter(double(rowCount), benchmark::Counter::kIsIterationInvariantRate |
                                                 benchmark::Counter::kInvert);
}

void dragStep(benchmark::State &state)
{
    ZelDoubleSliderEdit row(QStringLiteral("Radius"), 0, 1, numbers().data(), 0, 100, nullptr,
                            nullptr, false);
    row.show();
    QApplication::processEvents();
    int heard = 0;
    QObject::connect(&row, &ZelDoubleSliderEdit::valueUpdated, &row, [&heard] { ++heard; });
    auto *slider = row.findChild<ZelDoubleSlider *>();
    slider->setSliderDown(true);
    int position = 0;
    for (auto _ : state)
        slider->setSliderPosition(position = (position + 1) % 1000);
    slider->setSliderDown(false);
    if (heard == 0)
        state.SkipWithError("The owner heard nothing.");
}

void plainDragStep(benchmark::State &state)
{
    const std::unique_ptr<QWidget> row(makePlainRow(0));
    row->show();
    QApplication::processEvents();
    int heard = 0;
    auto *slider = row->findChild<QSlider *>();
    QObject::connect(slider, &QSlider::valueChanged, row.get(), [&heard] { ++heard; });
    slider->setSliderDown(true);
    int position = 0;
    for (auto _ : state)
        slider->setSliderPosition(position = (position + 1) % 1000);
    if (heard == 0)
        state.SkipWithError("The owner heard nothing.");
}

class OpenEdit : public ZelDoubleEdit
{
public:
    using ZelDoubleEdit::textFromValue;
    using ZelDoubleEdit::valueFromText;
};

void toText(benchmark::State &state)
{
    const OpenEdit edit;
    for (auto _ : state)
        benchmark::DoNotOptimize(edit.textFromValue(12.345));
}

void toTextByLocale(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ZelDoubleEdit::locale.toString(12.345, 'F', 3));
}

void fromText(benchmark::State &state)
{
    const OpenEdit edit;
    const QString text = edit.textFromValue(12.345);
    for (auto _ : state)
        benchmark::DoNotOptimize(edit.valueFromText(text));
}

void fromTextByLocale(benchmark::State &state)
{
    const QString text = ZelDoubleEdit::locale.toString(12.345, 'F', 3);
    for (auto _ : state)
        benchmark::DoNotOptimize(ZelDoubleEdit::locale.toDouble(text));
}

} // namespace

BENCHMARK(dragStep);
BENCHMARK(plainDragStep);
BENCHMARK(toText);
BENCHMARK(toTextByLocale);
BENCHMARK(fromText);
BENCHMARK(fromTextByLocale);

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        IconColorTheme::instance()->loadThemeFile(QStringLiteral(
            ZEL_SOURCE_DIR "/src/apps/gallery/resources/res/icon_themes/dark_theme.json"));
        HandleSvgInStyle::prepareHandleSvgIcons();

        const QString sheet = SheetsUnderTest::finished(QStringLiteral("Dark"));
        const struct
        {
            const char *suffix;
            QString sheet;
        } looks[] = {{"/noSheet", QString()}, {"/sheet", sheet}};
        for (const auto &look : looks) {
            const std::string suffix(look.suffix);
            benchmark::RegisterBenchmark(("panels" + suffix).c_str(), panels, look.sheet)
                ->Iterations(7)
                ->Unit(benchmark::kMillisecond);
            benchmark::RegisterBenchmark(("updateUnchanged" + suffix).c_str(), updateUnchanged,
                                         look.sheet)
                ->Unit(benchmark::kMicrosecond);
        }
    });
}
