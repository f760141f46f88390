#include "SlidersPage.h"

#include <ZelWidgets/ZelDoubleSlider>
#include <ZelWidgets/ZelIntegerSlider>
#include <ZelWidgets/ZelSlider>

#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr int sliderColumn = 1;
constexpr int numberColumn = 2;

QGridLayout *addGrid(QVBoxLayout *section)
{
    auto *grid = new QGridLayout;
    grid->setColumnStretch(sliderColumn, 1);
    section->addLayout(grid);
    return grid;
}

QString shown(float number)
{
    return QLocale().toString(static_cast<double>(number), 'g', 6);
}

} // namespace

SlidersPage::SlidersPage(QWidget *parent)
    : GalleryPage(parent)
{
    addRealSliders();
    addWholeSliders();
    addPlainSliders();
    addStretch();
}

void SlidersPage::addRow(QGridLayout *grid, const QString &name, QAbstractSlider *slider,
                         const std::function<QString()> &number)
{
    auto *caption = new QLabel(name, this);
    caption->setBuddy(slider);
    auto *value = new QLabel(number(), this);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0.000000")));
    value->setEnabled(slider->isEnabled());
    caption->setEnabled(slider->isEnabled());
    slider->setAccessibleName(name);
    slider->setMinimumWidth(120);
    const int row = grid->rowCount();
    grid->addWidget(caption, row, 0);
    grid->addWidget(slider, row, sliderColumn);
    grid->addWidget(value, row, numberColumn);
    // The slider's own position changes before its number does.
    connect(
        slider, &QAbstractSlider::valueChanged, value,
        [value, number] { value->setText(number()); }, Qt::QueuedConnection);
}

void SlidersPage::addRealSliders()
{
    QGridLayout *grid = addGrid(addSection(
        tr("Real numbers"),
        tr("A click on the groove puts the handle there. The wheel needs Control; with Shift it "
           "turns finely. A range with negative numbers is filled from its centre; a number "
           "outside of the range stays as it is until the slider is moved.")));
    const std::array<Range, 6> ranges{Range{tr("0 to 1"), 0, 1, true},
                                      Range{tr("-1 to 1"), -1, 1, true},
                                      Range{tr("-1 to 1, below the centre"), -1, 1, true},
                                      Range{tr("0 to 1, number above"), 0, 1, true},
                                      Range{tr("Disabled"), 0, 1, false},
                                      Range{tr("Disabled, from the centre"), -1, 1, false}};
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        const Range &range = ranges[i];
        float *number = &reals_[i];
        auto *slider = new ZelDoubleSlider(this, range.minimum, range.maximum, number);
        slider->setEnabled(range.isEnabled);
        addRow(grid, range.name, slider, [number] { return shown(*number); });
        watch(slider, &ZelDoubleSlider::valueUpdated, QStringLiteral("valueUpdated"));
        watch(slider, &ZelDoubleSlider::scrolledToMinOrMax, QStringLiteral("scrolledToMinOrMax"));
    }
}

void SlidersPage::addWholeSliders()
{
    QGridLayout *grid =
        addGrid(addSection(tr("Whole numbers"), tr("The wheel needs Control alone.")));
    const std::array<Range, 3> ranges{Range{tr("0 to 100"), 0, 100, true},
                                      Range{tr("-50 to 50"), -50, 50, true},
                                      Range{tr("Disabled"), 0, 100, false}};
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        const Range &range = ranges[i];
        int *number = &wholes_[i];
        auto *slider = new ZelIntegerSlider(this, static_cast<int>(range.minimum),
                                            static_cast<int>(range.maximum), number);
        slider->setEnabled(range.isEnabled);
        addRow(grid, range.name, slider, [number] { return QLocale().toString(*number); });
        watch(slider, &ZelIntegerSlider::valueUpdated, QStringLiteral("valueUpdated"));
        watch(slider, &ZelIntegerSlider::scrolledToMax, QStringLiteral("scrolledToMax"));
    }
}

void SlidersPage::addPlainSliders()
{
    QGridLayout *grid = addGrid(addSection(
        tr("Plain slider"), tr("Drawn by the style; over it the wheel without Control does "
                               "nothing.")));
    auto *slider = new ZelSlider(Qt::Horizontal, this);
    slider->setValue(30);
    addRow(grid, tr("0 to 99"), slider, [slider] { return QLocale().toString(slider->value()); });
    watch(slider, &QAbstractSlider::valueChanged, QStringLiteral("valueChanged"));
}
