#include "ParameterPanelPage.h"

#include "UnitChoice.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/ZelAccordionWidget>
#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelDropDownDoubleSliderEdit>
#include <ZelWidgets/ZelIntegerSlider>
#include <ZelWidgets/ZelIntegerSliderEdit>
#include <ZelWidgets/ZelSpecificIntegerSliderEdit>
#include <ZelWidgets/ZelTimeSliderEdit>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int floatDigits = 9;
constexpr int tableHeight = 320;
constexpr int rowSpacing = 4;

enum Kind { Fixed, Grows, Recentres, InLine, Disabled };

QString shown(double number)
{
    return QString::number(number, 'g', floatDigits);
}

QString shownRange(double minimum, double maximum)
{
    return ParameterPanelPage::tr("%1 to %2", "range").arg(shown(minimum), shown(maximum));
}

} // namespace

struct ParameterPanelPage::Real
{
    const char *name;
    float start;
    double minimum;
    double maximum;
    float limitMinimum;
    float limitMaximum;
    Quantity quantity = Quantity::None;
    Kind kind = Grows;
};

ParameterPanelPage::ParameterPanelPage(QWidget *parent)
    : GalleryPage(parent)
    , units_(new ZelUnitManager(this))
{
    addUnits();
    addPanel();
    addTable();
    addStretch();
}

void ParameterPanelPage::addUnits()
{
    auto *line = new QHBoxLayout;
    addSection(tr("Display units"), tr("The fields follow at once; the stored numbers stay."))
        ->addLayout(line);
    addUnitChoice(line, tr("Lengths"), int(Quantity::Length));
    addUnitChoice(line, tr("Angles"), int(Quantity::Angle));
    addUnitChoice(line, tr("Temperatures"), int(Quantity::Temperature));
    line->addStretch();
}

void ParameterPanelPage::addUnitChoice(QLayout *layout, const QString &name, int number)
{
    auto *caption = new QLabel(name, this);
    auto *choice = new UnitChoice(units_, static_cast<Quantity>(number), name, this);
    caption->setBuddy(choice);
    layout->addWidget(caption);
    layout->addWidget(choice);
}

void ParameterPanelPage::addPanel()
{
    using Q = Quantity;
    static const Real camera[] = {
        {QT_TR_NOOP("Focal length"), 0.05F, 0, 0.2, 0, 1e6F, Q::Length},
        {QT_TR_NOOP("Sensor width"), 0.036F, 0, 0.1, 0, 1e6F, Q::Length, Fixed},
        {QT_TR_NOOP("Focus distance"), 2.5F, 0, 10, 0, 1e9F, Q::Length},
        {QT_TR_NOOP("Near plane"), 0.01F, 0, 1, 0, 1e9F, Q::Length},
        {QT_TR_NOOP("Far plane"), 1000, 0, 2000, 0, 1e9F, Q::Length},
        {QT_TR_NOOP("Aperture"), 2.8F, 1, 22, 0.5F, 64, Q::None, Fixed},
        {QT_TR_NOOP("Tilt"), -4, -90, 90, -1e4F, 1e4F, Q::Angle, Fixed},
        {QT_TR_NOOP("Roll"), 0, -180, 180, -1e5F, 1e5F, Q::Angle, Fixed},
        {QT_TR_NOOP("Shift"), 0.1F, -1, 1, -100, 100},
        {QT_TR_NOOP("Exposure"), 0.333333343F, -5, 5, -50, 50, Q::None, Recentres},
    };
    static const Real light[] = {
        {QT_TR_NOOP("Intensity"), 12.5F, 0, 100, 0, 1e6F},
        {QT_TR_NOOP("Radius"), 0.25F, 0, 1, 0, 1e6F, Q::Length},
        {QT_TR_NOOP("Cone angle"), 45, 0, 90, 0, 1e5F, Q::Angle, Fixed},
        {QT_TR_NOOP("Falloff"), 0.5F, 0, 1, 0, 1, Q::None, Fixed},
        {QT_TR_NOOP("Filament"), 2700, 1000, 10000, -1e6F, 1e6F, Q::Temperature},
        {QT_TR_NOOP("Height"), 2.2F, 0, 5, -1e9F, 1e9F, Q::Length},
        {QT_TR_NOOP("Red"), 1, 0, 1, 0, 10, Q::None, InLine},
        {QT_TR_NOOP("Green"), 0.85F, 0, 1, 0, 10, Q::None, InLine},
        {QT_TR_NOOP("Blue"), 0.7F, 0, 1, 0, 10, Q::None, InLine},
        {QT_TR_NOOP("Locked"), 0.4F, 0, 1, 0, 1, Q::None, Disabled},
    };
    static const Real material[] = {
        {QT_TR_NOOP("Roughness"), 0.3F, 0, 1, 0, 1, Q::None, Fixed},
        {QT_TR_NOOP("Metalness"), 0, 0, 1, 0, 1, Q::None, Fixed},
        {QT_TR_NOOP("Refraction"), 1.45F, 1, 3, 0, 100},
        {QT_TR_NOOP("Transparency"), 0.05F, 0, 1, 0, 1, Q::None, Fixed},
        {QT_TR_NOOP("Thickness"), 0.002F, 0, 0.01, 0, 1e6F, Q::Length},
        {QT_TR_NOOP("Bump"), -0.6F, -1, 1, -1000, 1000},
        {QT_TR_NOOP("Texture turn"), 15, -360, 360, -1e5F, 1e5F, Q::Angle, Fixed},
        {QT_TR_NOOP("Texture scale"), 3, 0, 5, 0.001F, 1e4F, Q::None, Recentres},
        {QT_TR_NOOP("Emission"), 0, 0, 1, 0, 1e5F},
        {QT_TR_NOOP("Above its range"), 7, 0, 1, 0, 100, Q::None, Fixed},
    };
    QVBoxLayout *panel = addSection(
        tr("Panel"), tr("A row's range follows its number on release, on Return and on leaving it. "
                        "A double click on a caption resets the row; so does its context menu."));
    auto *columns = new QHBoxLayout;
    panel->addLayout(columns);
    const std::array<QVBoxLayout *, 2> sides{new QVBoxLayout, new QVBoxLayout};
    for (QVBoxLayout *side : sides)
        columns->addLayout(side, 1);
    const auto section = [&](int side, const QString &title) {
        auto *part = new ZelAccordionWidget(title, QString(), Accordion::Open);
        part->setSpacing(rowSpacing);
        sides[std::size_t(side)]->addWidget(part);
        return part;
    };
    fill(section(0, tr("Camera")), camera, int(std::size(camera)));
    addWholeNumbers(section(0, tr("Sampling")));
    fill(section(0, tr("Light")), light, int(std::size(light)));
    fill(section(1, tr("Material")), material, int(std::size(material)));
    addOthers(section(1, tr("Surroundings")));
    for (QVBoxLayout *side : sides)
        side->addStretch();
}

void ParameterPanelPage::fill(ZelAccordionWidget *section, const Real *reals, int count)
{
    for (int i = 0; i < count; ++i)
        section->addWidget(makeRow(reals[i]));
}

template <typename Row>
void ParameterPanelPage::follow(Row *row, const Real &real, const float *number)
{
    if (real.quantity != Quantity::None) {
        row->setUnit(units_);
        row->setQuantity(real.quantity);
    }
    if (real.kind == Grows || real.kind == Recentres)
        row->setAutoScaleRange(true, real.kind == Grows);
    const int line = int(lines_.size());
    const auto refreshLine = [this, line] {
        refresh(line);
    };
    connect(row, &Row::valueUpdated, this, refreshLine);
    // The range is adjusted after this.
    connect(row, &Row::beforeAdjustRange, this, refreshLine, Qt::QueuedConnection);
    watch(row, &Row::valueUpdated, QStringLiteral("valueUpdated"));
    watch(row, &Row::beforeAdjustRange, QStringLiteral("beforeAdjustRange"));
    addLine(
        tr(real.name), [number] { return shown(double(*number)); },
        [row] { return shownRange(row->sliderMinimum(), row->sliderMaximum()); });
}

QWidget *ParameterPanelPage::makeRow(const Real &real)
{
    float *number = &reals_[std::size_t(realCount_++)];
    *number = real.start;
    auto *row = new ZelDoubleSliderEdit(tr(real.name), real.minimum, real.maximum, number,
                                        real.limitMinimum, real.limitMaximum, nullptr, nullptr,
                                        real.kind == InLine);
    row->setSliderEditEnabled(real.kind != Disabled);
    follow(row, real, number);
    return row;
}

QWidget *ParameterPanelPage::makeDropDown(const Real &real)
{
    float *number = &reals_[std::size_t(realCount_++)];
    *number = real.start;
    auto *row =
        new ZelDropDownDoubleSliderEdit(tr(real.name), real.minimum, real.maximum, number,
                                        real.limitMinimum, real.limitMaximum, nullptr, true);
    watch(row, &ZelDropDownDoubleSliderEdit::widgetVisible, QStringLiteral("widgetVisible"));
    follow(row, real, number);
    return row;
}

void ParameterPanelPage::addWholeNumbers(ZelAccordionWidget *section)
{
    const std::array<QString, 4> names{tr("Samples"), tr("Bounces"), tr("Tiles"), tr("Size")};
    for (std::size_t i = 0; i < 3; ++i) {
        int *number = &wholes_[i];
        auto *row = new ZelIntegerSliderEdit(names[i], 0, 100, number, 0, 100000);
        row->setSliderTracking(i != 2);
        const int line = int(lines_.size());
        addLine(
            names[i], [number] { return QString::number(*number); },
            [row] { return shownRange(row->sliderWdg()->minimum(), row->sliderWdg()->maximum()); });
        connect(row, &ZelIntegerSliderEdit::valueUpdated, this, [this, line] { refresh(line); });
        connect(row->sliderWdg(), &QAbstractSlider::rangeChanged, this,
                [this, line] { refresh(line); });
        watch(row, &ZelIntegerSliderEdit::valueUpdated, QStringLiteral("valueUpdated"));
        section->addWidget(row);
    }
    int *size = &wholes_[3];
    const QList<int> sizes{256, 512, 1024, 2048, 4096, 8192};
    auto *row = new ZelSpecificIntegerSliderEdit(names[3], sizes, 2, size, 1);
    const int line = int(lines_.size());
    addLine(
        names[3], [size] { return QString::number(*size); },
        [] { return tr("256, 512, 1024, 2048, 4096, 8192"); });
    connect(row, &ZelSpecificIntegerSliderEdit::valueUpdated, this,
            [this, line] { refresh(line); });
    watch(row, &ZelSpecificIntegerSliderEdit::valueUpdated, QStringLiteral("valueUpdated"));
    section->addWidget(row);
}

void ParameterPanelPage::addOthers(ZelAccordionWidget *section)
{
    static const Real fog{QT_TR_NOOP("Fog"), 0.2F, 0, 1, 0, 100};
    static const Real details[] = {
        {QT_TR_NOOP("Fog height"), 30, 0, 100, -1e9F, 1e9F, Quantity::Length},
        {QT_TR_NOOP("Fog falloff"), 0.8F, 0, 1, 0, 1, Quantity::None, Fixed},
    };
    static const Real wind[] = {
        {QT_TR_NOOP("Wind"), 3.5F, 0, 10, 0, 200},
        {QT_TR_NOOP("Air"), 21.5F, -20, 40, -1e6F, 1e6F, Quantity::Temperature, Fixed},
    };
    auto *dropDown = static_cast<ZelDropDownDoubleSliderEdit *>(makeDropDown(fog));
    for (const Real &detail : details)
        dropDown->addWidget(makeRow(detail), 0, {});
    section->addWidget(dropDown);
    fill(section, wind, int(std::size(wind)));

    auto *time = new ZelTimeSliderEdit(tr("Time of day"), nullptr);
    const int line = int(lines_.size());
    addLine(
        tr("Time of day"), [time] { return shown(time->time().seconds); },
        [] { return shownRange(0, 86399); });
    connect(time, &ZelTimeSliderEdit::valueUpdated, this, [this, line] { refresh(line); });
    watch(time, &ZelTimeSliderEdit::valueUpdated, QStringLiteral("valueUpdated"));
    section->addWidget(time);
}

void ParameterPanelPage::addLine(const QString &name, const std::function<QString()> &number,
                                 const std::function<QString()> &range)
{
    lines_.append({name, number, range});
}

void ParameterPanelPage::addTable()
{
    table_ = new QTableWidget(int(lines_.size()), 3, this);
    table_->setObjectName(QStringLiteral("boundNumbers"));
    table_->setAccessibleName(tr("Bound numbers"));
    table_->setHorizontalHeaderLabels({tr("Name"), tr("Stored number"), tr("Slider's range")});
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->setFixedHeight(tableHeight);
    for (int line = 0; line < lines_.size(); ++line) {
        for (int column = 0; column < table_->columnCount(); ++column)
            table_->setItem(line, column, new QTableWidgetItem);
        table_->item(line, 0)->setText(lines_.at(line).name);
        refresh(line);
    }
    addSection(tr("Bound numbers"), tr("What the panel's rows have stored."))->addWidget(table_);
}

void ParameterPanelPage::refresh(int line)
{
    if (!table_)
        return;
    table_->item(line, 1)->setText(lines_.at(line).number());
    table_->item(line, 2)->setText(lines_.at(line).range());
}
