#include "DialsPage.h"

#include <ZelWidgets/QtThumbWheel>
#include <ZelWidgets/ZelDialWidget>
#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelMetricWidget>
#include <ZelWidgets/ZelParameterGroup>
#include <ZelWidgets/ZelScaleWidget>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr QSize dialSize(72, 72);

QLabel *caption(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    label->setEnabled(buddy->isEnabled());
    return label;
}

} // namespace

DialsPage::DialsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addDials();
    addWheels();
    addScales();
    addGroups();
    addStretch();
}

void DialsPage::addDials()
{
    QVBoxLayout *section = addSection(
        tr("Dials"), tr("The field takes more than one turn and decimals, which the dial "
                        "does not touch. The mouse wheel needs Control."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    section->addLayout(grid);
    const QStringList names{tr("Angle"), tr("Backward"), tr("Counts turns"), tr("Disabled")};
    const std::array<double, 4> angles{12.75, 90, 810.5, 45};
    for (int i = 0; i < names.size(); ++i) {
        auto *dial = new ZelDialWidget(dialSize, i == 1, this);
        dial->setAccessibleName(names[i]);
        dial->setContinuing(i == 2);
        dial->setValue(angles[static_cast<std::size_t>(i)]);
        dial->setEnabled(i != 3);
        grid->addWidget(caption(names[i], dial), 0, i);
        grid->addWidget(dial, 1, i, Qt::AlignLeft);
        watch(dial, &ZelDialWidget::valueChanged, QStringLiteral("valueChanged"));
        watch(dial, &ZelDialWidget::sliderReleased, QStringLiteral("sliderReleased"));
    }
    grid->setColumnStretch(grid->columnCount(), 1);
}

void DialsPage::addWheels()
{
    QVBoxLayout *section = addSection(
        tr("Thumb wheels"), tr("Drag them, also beyond their ends, or use the keys of a slider. "
                               "Escape takes a drag back; the mouse wheel needs Control."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    section->addLayout(grid);
    const QStringList names{tr("-1000 to 1000"), tr("0 to 359, goes round"),
                            tr("0 to 100, fine, few cogs"), tr("Disabled")};
    for (int i = 0; i < names.size(); ++i) {
        auto *wheel = new QtThumbWheel(i == 0 ? -1000 : 0,
                                       i == 1   ? 359
                                       : i == 0 ? 1000
                                                : 100,
                                       10, i * 30, Qt::Horizontal, this);
        wheel->setAccessibleName(names[i]);
        wheel->setWrapsAround(i == 1);
        if (i == 2) {
            wheel->setTransmissionRatio(0.1);
            wheel->setCogCount(7);
        }
        wheel->setEnabled(i != 3);
        auto *number = new QLabel(QLocale().toString(wheel->value()), this);
        number->setEnabled(wheel->isEnabled());
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-1,000")));
        grid->addWidget(caption(names[i], wheel), i, 0);
        grid->addWidget(wheel, i, 1);
        grid->addWidget(number, i, 2);
        connect(wheel, &QtThumbWheel::valueChanged, number,
                [number](int value) { number->setText(QLocale().toString(value)); });
        watch(wheel, &QtThumbWheel::valueChanged, QStringLiteral("valueChanged"));
        watch(wheel, &QtThumbWheel::wheelReleased, QStringLiteral("wheelReleased"));
    }
    auto *upright = new QtThumbWheel(this);
    upright->setAccessibleName(tr("Upright wheel"));
    upright->setToolTip(tr("0 to 99, upwards"));
    upright->setValue(50);
    grid->addWidget(upright, 0, 3, static_cast<int>(names.size()), 1);
    grid->setColumnStretch(1, 1);
    watch(upright, &QtThumbWheel::valueChanged, QStringLiteral("valueChanged"));
}

void DialsPage::addScales()
{
    QVBoxLayout *section = addSection(
        tr("Scales"), tr("A click on the caption opens one row for each direction; the chain links "
                         "them by their ratio."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    for (const bool isOpen : {false, true}) {
        auto *scale = new ZelScaleWidget(isOpen ? tr("Scale, open") : tr("Scale, closed"), this);
        scale->setAutoScaleRange(true, true);
        scale->set(1, 1.5F, 1.5F);
        scale->open(isOpen);
        row->addWidget(scale, 1, Qt::AlignTop);
        watch(scale, &ZelScaleWidget::scaleUpdated, QStringLiteral("scaleUpdated"));
    }
}

void DialsPage::addGroups()
{
    QVBoxLayout *section =
        addSection(tr("Groups"), tr("The row below the caption stays in sight, the details flip."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    const auto newRow = [this](const QString &text, std::size_t i, float maximum) {
        return new ZelDoubleSliderEdit(text, 0, static_cast<double>(maximum), &numbers_[i], 0,
                                       maximum, nullptr, nullptr, false);
    };
    auto *group = new ZelParameterGroup(tr("Relief"), this);
    group->setGroupWidget(newRow(tr("Strength"), 0, 1));
    group->addDetailWidget(newRow(tr("Blur"), 1, 1));
    group->addDetailWidget(newRow(tr("Radius"), 2, 10));
    group->setOpen(true);
    row->addWidget(group, 1, Qt::AlignTop);
    watch(group, &ZelParameterGroup::valueUpdated, QStringLiteral("valueUpdated"));

    auto *metric = new ZelMetricWidget(ZelFontMetrics::EditorHeight, this);
    auto *content = new QLabel(tr("As high as a field"));
    content->setFrameShape(QFrame::Box);
    metric->setChildWidget(content);
    row->addWidget(metric, 1, Qt::AlignTop);
}
