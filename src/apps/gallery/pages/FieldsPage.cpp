#include "FieldsPage.h"

#include "UnitChoice.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSpinBox>
#include <ZelWidgets/ZelIntegerEdit>
#include <ZelWidgets/ZelSpinBox>
#include <ZelWidgets/ZelTimeEdit>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

namespace {

/// Enough digits to tell every float from its neighbours.
constexpr int floatDigits = 9;

/// Two forms side by side.
struct Columns
{
    explicit Columns(QVBoxLayout *section)
    {
        auto *row = new QHBoxLayout;
        row->setSpacing(32);
        section->addLayout(row);
        for (QFormLayout *form : {left, right}) {
            form->setHorizontalSpacing(12);
            form->setVerticalSpacing(8);
            row->addLayout(form);
            row->setAlignment(form, Qt::AlignTop);
        }
        row->addStretch(1);
    }
    QFormLayout *left = new QFormLayout;
    QFormLayout *right = new QFormLayout;
};

template <typename Field>
Field *addRow(QFormLayout *form, const QString &name, Field *field)
{
    field->setAccessibleName(name);
    form->addRow(name, field);
    return field;
}

/// A row with the number behind the field as it is stored.
QLabel *addStoredRow(QFormLayout *form, const QString &name, QWidget *field)
{
    field->setAccessibleName(name);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(field);
    auto *stored = new QLabel;
    stored->setProperty("dim", true);
    stored->setAccessibleName(FieldsPage::tr("Stored number of %1").arg(name));
    row->addWidget(stored);
    form->addRow(name, row);
    if (auto *label = qobject_cast<QLabel *>(form->labelForField(row)))
        label->setBuddy(field);
    return stored;
}

} // namespace

FieldsPage::FieldsPage(QWidget *parent)
    : GalleryPage(parent)
    , units_(new ZelUnitManager(this))
{
    addBoundFields();
    addUnits();
    addSpinBoxes();
    addStretch();
}

ZelDoubleEdit *FieldsPage::addNumber(QFormLayout *form, const QString &name, float start,
                                     double minimum, double maximum)
{
    const auto number = std::make_shared<float>(start);
    auto *field = new ZelDoubleEdit(this, minimum, maximum, number.get());
    QLabel *stored = addStoredRow(form, name, field);
    stored->setText(QString::number(double(start), 'g', floatDigits));
    // The connection keeps the number as long as the field lives.
    connect(field, &ZelDoubleEdit::valueUpdated, stored, [number, stored] {
        stored->setText(QString::number(double(*number), 'g', floatDigits));
    });
    watch(field, &ZelDoubleEdit::valueUpdated, QStringLiteral("valueUpdated"));
    return field;
}

QSpinBox *FieldsPage::addWholeNumber(QFormLayout *form, const QString &name, int start)
{
    const auto number = std::make_shared<int>(start);
    auto *field = new ZelIntegerEdit(this, 0, 100000, number.get());
    QLabel *stored = addStoredRow(form, name, field);
    stored->setText(QString::number(start));
    connect(field, &ZelIntegerEdit::valueUpdated, stored,
            [number, stored] { stored->setText(QString::number(*number)); });
    watch(field, &ZelIntegerEdit::valueUpdated, QStringLiteral("valueUpdated"));
    return field;
}

void FieldsPage::addBoundFields()
{
    const Columns columns(addSection(
        tr("Bound fields"),
        tr("Beside each field stands the number that it edits. The wheel scrolls the page; with "
           "Control it turns the number, one of decimals with Shift as well in large steps. A "
           "double click selects the number, the context menu resets it. More typed decimals "
           "than are shown stay visible.")));
    addNumber(columns.left, tr("Radius"), 2.5F, 0.0, 1000.0);
    addNumber(columns.left, tr("Third"), 1.0F / 3.0F, 0.0, 1.0);
    ZelDoubleEdit *zeros = addNumber(columns.left, tr("With all zeros"), 2.5F, -1000.0, 1000.0);
    zeros->setStripTailingZeros(false);
    zeros->updateValue();
    ZelDoubleEdit *small = addNumber(columns.left, tr("Small numbers"), 0.00123F, -1.0, 1.0);
    small->setDecimalsIsAbsolute(false);
    small->setSingleStep(0.0001);
    small->updateValue();
    addNumber(columns.left, tr("Rotation"), 45.0F, -360.0, 360.0)->setDegreeSuffix();

    addWholeNumber(columns.right, tr("Samples"), 256);
    addWholeNumber(columns.right, tr("Samples, disabled"), 64)->setEnabled(false);
    addNumber(columns.right, tr("Disabled"), 1.5F, 0.0, 10.0)->setEnabled(false);
    addNumber(columns.right, tr("Read only"), 1.5F, 0.0, 10.0)->setReadOnly(true);
    addNumber(columns.right, tr("Error"), -1.0F, -10.0, 10.0)->setProperty("error", true);
}

void FieldsPage::addUnitRow(QFormLayout *form, const QString &name, Quantity quantity, float start)
{
    ZelDoubleEdit *field = addNumber(form, name, start, -1e12, 1e12);
    field->setUnit(units_);
    field->setQuantity(quantity);
    auto *row = static_cast<QHBoxLayout *>(
        form->itemAt(form->rowCount() - 1, QFormLayout::FieldRole)->layout());
    row->insertWidget(1, new UnitChoice(units_, quantity, name, this));
}

void FieldsPage::addUnits()
{
    const Columns columns(
        addSection(tr("Units"), tr("The field shows the number in the chosen unit; the stored "
                                   "number beside it stays what it is.")));
    addUnitRow(columns.left, tr("Length"), Quantity::Length, 1.25F);
    addUnitRow(columns.left, tr("Area"), Quantity::Area, 2.0F);
    addUnitRow(columns.left, tr("Volume"), Quantity::Volume, 0.5F);
    addUnitRow(columns.left, tr("Angle"), Quantity::Angle, 90.0F);
    addUnitRow(columns.right, tr("Temperature"), Quantity::Temperature, 21.5F);
    addUnitRow(columns.right, tr("Duration"), Quantity::Time, 5400.0F);
    addUnitRow(columns.right, tr("Mass"), Quantity::Mass, 0.75F);
    connect(units_, &ZelUnitManager::displayChanged, this, [this](Unit unit) {
        log(QStringLiteral("ZelUnitManager: displayChanged(%1)").arg(static_cast<int>(unit)));
    });
}

void FieldsPage::addSpinBoxes()
{
    const Columns columns(addSection(
        tr("Spin boxes and times"),
        tr("They keep their number themselves. The second one is never zero: its steps jump over "
           "it. Control and the wheel turn whole numbers by ten.")));
    auto *plain = addRow(columns.left, tr("Decimals"), new ZelDoubleSpinBox(this));
    plain->setRange(-100.0, 100.0);
    plain->setValue(2.25);
    auto *nonZero = addRow(columns.left, tr("Never zero"), new ZelDoubleSpinBox(this));
    nonZero->setRange(-1.0, 1.0);
    nonZero->setDecimals(6);
    nonZero->setSingleStep(0.1);
    nonZero->setValue(0.1);
    nonZero->setCanBeZero(false);
    auto *angle = addRow(columns.left, tr("Angle of the sun"), new ZelDoubleSpinBox(this));
    angle->setRange(0.0, 90.0);
    angle->setDegreeSuffix();
    angle->setValue(30.5);
    auto *whole = addRow(columns.right, tr("Whole number"), new ZelSpinBox(this));
    whole->setRange(-1000, 1000);
    whole->setValue(12);
    auto *disabled = addRow(columns.right, tr("Whole number, disabled"), new ZelSpinBox(this));
    disabled->setEnabled(false);
    auto *time = addRow(columns.right, tr("Time of day"), new ZelTimeEdit(this));
    for (ZelDoubleSpinBox *box : {plain, nonZero, angle})
        watch(box, &QDoubleSpinBox::valueChanged, QStringLiteral("valueChanged"));
    watch(whole, &QSpinBox::valueChanged, QStringLiteral("valueChanged"));
    watch(time, &QDateTimeEdit::timeChanged, QStringLiteral("timeChanged"));
}
