#include "ColorValuesPage.h"

#include <ZelCore/ZelColorMath>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorWidget>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelRGBSpectrumDisplay>
#include <ZelWidgets/toQColor>

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

using Space = ZelColor::Space;

constexpr QSize planeSize(240, 200);
constexpr QSize fieldSize(120, 40);
constexpr int editorWidth = 260;
/// Of the table: captions, four components, what a round trip changes.
constexpr int componentCount = 4;
constexpr int columnCount = componentCount + 2;

struct Row
{
    Space space;
    const char *name;
    const char *components[componentCount];
};

constexpr Row rows[] = {
    {Space::RGB, "RGB", {"R", "G", "B", ""}},    {Space::HSV, "HSV", {"H", "S", "V", ""}},
    {Space::CMYK, "CMYK", {"C", "M", "Y", "K"}}, {Space::Lab, "CIE-L*ab", {"L*", "a*", "b*", ""}},
    {Space::XYZ, "XYZ", {"X", "Y", "Z", ""}},
};

struct Sample
{
    const char *name;
    Space space;
    float components[3];
};

constexpr Sample samples[] = {
    {QT_TRANSLATE_NOOP("ColorValuesPage", "Cobalt"), Space::RGB, {0.0F, 0.28F, 0.67F}},
    {QT_TRANSLATE_NOOP("ColorValuesPage", "Brick"), Space::Lab, {45, 42, 35}},
    {QT_TRANSLATE_NOOP("ColorValuesPage", "Moss"), Space::HSV, {85, 0.55F, 0.45F}},
    {QT_TRANSLATE_NOOP("ColorValuesPage", "Daylight"), Space::XYZ, {47.5F, 50, 54.4F}},
    {QT_TRANSLATE_NOOP("ColorValuesPage", "Candle"), Space::RGB, {1, 0.58F, 0.16F}},
    {QT_TRANSLATE_NOOP("ColorValuesPage", "Black"), Space::RGB, {0, 0, 0}},
};

std::array<float, 4> components(const ZelColor &color, Space space)
{
    const auto three = [](std::array<float, 3> numbers) {
        return std::array<float, 4>{numbers[0], numbers[1], numbers[2], 0};
    };
    switch (space) {
    case Space::XYZ:
        return three(color.toXYZ());
    case Space::RGB:
        return three(color.toRGB());
    case Space::HSV:
        return three(color.toHSV());
    case Space::Lab:
        return three(color.toLab());
    default:
        return color.toCMYK();
    }
}

/// The largest difference of an RGB channel after a way through the space.
float roundTrip(const ZelColor &color, Space space)
{
    const auto [a, b, c, d] = components(color, space);
    const std::array<float, 3> before = color.toRGB();
    const std::array<float, 3> after = ZelColor(space, a, b, c, d).toRGB();
    float largest = 0;
    for (std::size_t i = 0; i < before.size(); ++i)
        largest = std::max(largest, std::abs(after[i] - before[i]));
    return largest;
}

QLabel *bold(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

ColorValuesPage::ColorValuesPage(QWidget *parent)
    : GalleryPage(parent)
{
    addChoice();
    addTable();
    addStretch();
    samples_->setCurrentIndex(0);
    Q_EMIT samples_->activated(0);
}

void ColorValuesPage::addChoice()
{
    QVBoxLayout *section =
        addSection(tr("A colour"), tr("Choose a sample, pick in the plane, or set a temperature. "
                                      "The numbers below are linear."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    plane_ = new ZelRGBSpectrumDisplay(color_, this);
    plane_->setFixedSize(planeSize);
    row->addWidget(plane_);
    connect(plane_, qOverload<ZelColor>(&ZelSpectrumDisplay::colorChanged), this,
            &ColorValuesPage::takeFromUser);

    auto *column = new QVBoxLayout;
    row->addLayout(column);
    auto *form = new QFormLayout;
    form->setVerticalSpacing(12);
    column->addLayout(form);
    column->addStretch();
    samples_ = new ZelComboBox(this);
    for (const Sample &sample : samples)
        samples_->addItem(tr(sample.name));
    connect(samples_, &QComboBox::activated, this, [this](int index) {
        const Sample &sample = samples[index];
        ZelColor color(sample.space, sample.components[0], sample.components[1],
                       sample.components[2]);
        color.setName(tr(sample.name).toStdString());
        take(color);
    });
    name_ = new QLineEdit(this);
    name_->setFixedWidth(editorWidth);
    connect(name_, &QLineEdit::textChanged, this, [this](const QString &name) {
        color_.setName(name.toStdString());
        field_->setToolTip(name);
    });
    temperature_ = new ZelTemperatureColorInput(color_, false, this);
    temperature_->setFixedWidth(editorWidth);
    temperature_->setAccessibleName(tr("Temperature"));
    connect(temperature_, &ZelColorInput::colorChanged, this, &ColorValuesPage::takeFromUser);
    field_ = new ZelColorWidget(color_, fieldSize, false, this);
    form->addRow(tr("&Sample"), samples_);
    form->addRow(tr("&Name"), name_);
    form->addRow(tr("On the display"), field_);
    form->addRow(temperature_);
    row->addStretch();
}

void ColorValuesPage::addTable()
{
    QVBoxLayout *section =
        addSection(tr("In all spaces"),
                   tr("The last column is the largest change of an RGB channel on the way "
                      "into the space and back."));
    auto *line = new QHBoxLayout;
    section->addLayout(line);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(8);
    line->addLayout(grid);
    line->addStretch();
    grid->addWidget(bold(tr("Space"), this), 0, 0);
    grid->addWidget(bold(tr("Round trip"), this), 0, columnCount - 1);
    int rowIndex = 1;
    for (const Row &row : rows) {
        grid->addWidget(bold(QLatin1String(row.name), this), rowIndex, 0);
        for (int column = 1; column < columnCount; ++column) {
            auto *cell = new QLabel(this);
            cell->setTextInteractionFlags(Qt::TextSelectableByMouse);
            cell->setMinimumWidth(cell->fontMetrics().horizontalAdvance(u'0') * 12);
            grid->addWidget(cell, rowIndex, column);
            cells_.append(cell);
        }
        ++rowIndex;
    }
    grid->addWidget(bold(tr("Temperature"), this), rowIndex, 0);
    cells_.append(new QLabel(this));
    grid->addWidget(cells_.last(), rowIndex, 1, 1, columnCount - 1);
}

void ColorValuesPage::takeFromUser(const ZelColor &color)
{
    ZelColor named = color;
    named.setName(color_.name());
    take(named);
}

void ColorValuesPage::take(const ZelColor &color)
{
    color_ = color;
    if (sender() != plane_)
        plane_->setColor(color);
    if (sender() != temperature_)
        temperature_->setColor(color);
    field_->setColor(zelsg::Color(color));
    const QSignalBlocker blocker(name_);
    name_->setText(QString::fromStdString(color.name()));
    field_->setToolTip(name_->text());
    updateTable();
    log(QStringLiteral("%1: %2").arg(name_->text(), toQColor(color_).name()));
}

void ColorValuesPage::updateTable()
{
    const QLocale locale;
    auto cell = cells_.cbegin();
    for (const Row &row : rows) {
        const std::array<float, 4> numbers = components(color_, row.space);
        for (int i = 0; i < componentCount; ++i) {
            const QLatin1String name(row.components[i]);
            const double number = double(numbers[std::size_t(i)]);
            (*cell++)->setText(name.isEmpty() ? QString()
                                              : name + u' ' + locale.toString(number, 'f', 4));
        }
        (*cell++)->setText(locale.toString(double(roundTrip(color_, row.space)), 'g', 2));
    }
    const float kelvin = ZelColorMath::temperature(color_.toXYZ());
    (*cell)->setText(kelvin > 0 ? tr("%1 K").arg(locale.toString(qRound(kelvin)))
                                : tr("none: the colour is too far from any black body"));
}
