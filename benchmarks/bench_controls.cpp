// Panels full of controls beside the same panels of plain Qt: time and memory of building them, and
// how often a page of buttons is repainted under the mouse.

#include "BenchmarkRun.h"
#include "SheetsUnderTest.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelAccordionWidget>
#include <ZelWidgets/ZelLabel>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <malloc.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int controlCount = 1000;
constexpr int hoveredCount = 500;
constexpr int columns = 25;

QIcon icon()
{
    return ZelStyleIcon(
        QStringLiteral(ZEL_SOURCE_DIR "/src/apps/gallery/resources/ui/icons/folder.svg"));
}

struct Cost
{
    double milliseconds;
    double bytes;
};

using Maker = QWidget *(*)(const QIcon &icon);

template <typename Button>
QWidget *makeButton(const QIcon &icon)
{
    auto *button = new Button;
    button->setIcon(icon);
    button->setAutoRaise(true);
    return button;
}

template <typename Label>
QWidget *makeLabel(const QIcon &)
{
    return new Label(QStringLiteral("A label"));
}

template <typename Edit>
QWidget *makeEdit(const QIcon &)
{
    return new Edit(QStringLiteral("Text"));
}

// What a panel does without the accordion: a checkable button over a container.
QWidget *makePlainSection(const QIcon &)
{
    auto *section = new QWidget;
    auto *layout = new QVBoxLayout(section);
    auto *header = new QPushButton(QStringLiteral("Section"));
    header->setCheckable(true);
    header->setChecked(true);
    auto *content = new QWidget;
    (new QVBoxLayout(content))->addWidget(new QLabel(QStringLiteral("Content")));
    layout->addWidget(header);
    layout->addWidget(content);
    QObject::connect(header, &QPushButton::toggled, content, &QWidget::setVisible);
    return section;
}

QWidget *makeSection(const QIcon &)
{
    auto *section = new ZelAccordionWidget(QStringLiteral("Section"), QString(), Accordion::Open);
    section->addWidget(new QLabel(QStringLiteral("Content")));
    return section;
}

std::unique_ptr<QWidget> panelOf(int count, Maker make, const QIcon &icon)
{
    auto panel = std::make_unique<QWidget>();
    auto *grid = new QGridLayout(panel.get());
    grid->setSpacing(1);
    for (int i = 0; i < count; ++i)
        grid->addWidget(make(icon), i / columns, i % columns);
    return panel;
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

Cost costOfPanel(Maker make, const QIcon &icon)
{
    const double before = allocatedBytes();
    QElapsedTimer clock;
    clock.start();
    const std::unique_ptr<QWidget> panel = panelOf(controlCount, make, icon);
    panel->show();
    panel->layout()->activate();
    QApplication::sendPostedEvents();
    const double milliseconds = double(clock.nsecsElapsed()) / 1e6;
    return {milliseconds, allocatedBytes() - before};
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Both kinds in turn in each round, and the medians, so that what disturbs the machine meets both.
void panel(benchmark::State &state, Maker makePlain, Maker makeOurs, const QString &sheet)
{
    qApp->setStyleSheet(sheet);
    const QIcon picture = icon();
    costOfPanel(makePlain, picture);
    costOfPanel(makeOurs, picture);
    std::vector<double> plainTimes;
    std::vector<double> ourTimes;
    std::vector<double> plainBytes;
    std::vector<double> ourBytes;
    for (auto _ : state) {
        const Cost plain = costOfPanel(makePlain, picture);
        const Cost ours = costOfPanel(makeOurs, picture);
        plainTimes.push_back(plain.milliseconds);
        ourTimes.push_back(ours.milliseconds);
        plainBytes.push_back(plain.bytes);
        ourBytes.push_back(ours.bytes);
    }
    state.counters["plain_ms"] = median(plainTimes);
    state.counters["ours_ms"] = median(ourTimes);
    state.counters["time_ratio"] = median(ourTimes) / median(plainTimes);
    state.counters["plain_bytes_each"] = median(plainBytes) / controlCount;
    state.counters["ours_bytes_each"] = median(ourBytes) / controlCount;
    state.counters["memory_ratio"] = median(ourBytes) / median(plainBytes);
}

class PaintCount : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

template <typename Button>
struct HoveredPage
{
    explicit HoveredPage(const QIcon &icon)
        : panel(panelOf(hoveredCount, &makeButton<Button>, icon))
    {
        panel->show();
        QApplication::processEvents();
        buttons = panel->template findChildren<QAbstractButton *>();
        for (QAbstractButton *button : std::as_const(buttons))
            button->installEventFilter(&count);
    }

    // The mouse goes over every button; paints per button.
    double hoverAll()
    {
        count.paints = 0;
        for (QAbstractButton *button : std::as_const(buttons)) {
            QTest::mouseMove(panel->windowHandle(),
                             button->mapTo(panel.get(), button->rect().center()));
            QApplication::processEvents();
        }
        return double(count.paints) / double(buttons.size());
    }

    PaintCount count;
    std::unique_ptr<QWidget> panel;
    QList<QAbstractButton *> buttons;
};

void hoverRepaints(benchmark::State &state, const QString &sheet)
{
    qApp->setStyleSheet(sheet);
    const QIcon picture = icon();
    double plain = 0;
    double ours = 0;
    std::vector<double> plainTimes;
    std::vector<double> ourTimes;
    for (auto _ : state) {
        QElapsedTimer clock;
        {
            HoveredPage<QToolButton> page(picture);
            clock.start();
            plain = page.hoverAll();
            plainTimes.push_back(double(clock.nsecsElapsed()) / 1e6);
        }
        HoveredPage<ZelToolButton> page(picture);
        clock.start();
        ours = page.hoverAll();
        ourTimes.push_back(double(clock.nsecsElapsed()) / 1e6);
    }
    state.counters["plain_paints_each"] = plain;
    state.counters["ours_paints_each"] = ours;
    state.counters["time_ratio"] = median(ourTimes) / median(plainTimes);
}

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        IconColorTheme::instance()->loadThemeFile(QStringLiteral(
            ZEL_SOURCE_DIR "/src/apps/gallery/resources/res/icon_themes/dark_theme.json"));
        HandleSvgInStyle::prepareHandleSvgIcons();

        const QString sheet = SheetsUnderTest::finished(QStringLiteral("Dark"));
        const struct
        {
            const char *name;
            Maker plain;
            Maker ours;
        } panels[] = {
            {"toolButtons", &makeButton<QToolButton>, &makeButton<ZelToolButton>},
            {"labels", &makeLabel<QLabel>, &makeLabel<ZelLabel>},
            {"lineEdits", &makeEdit<QLineEdit>, &makeEdit<ZelLineEdit>},
            {"sections", &makePlainSection, &makeSection},
        };
        for (const auto &entry : panels) {
            const std::string name(entry.name);
            benchmark::RegisterBenchmark((name + "/noSheet").c_str(), panel, entry.plain,
                                         entry.ours, QString())
                ->Iterations(9)
                ->Unit(benchmark::kMillisecond);
            benchmark::RegisterBenchmark((name + "/sheet").c_str(), panel, entry.plain, entry.ours,
                                         sheet)
                ->Iterations(9)
                ->Unit(benchmark::kMillisecond);
        }
        benchmark::RegisterBenchmark("hoverRepaints/noSheet", hoverRepaints, QString())
            ->Iterations(3)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("hoverRepaints/sheet", hoverRepaints, sheet)
            ->Iterations(3)
            ->Unit(benchmark::kMillisecond);
    });
}
