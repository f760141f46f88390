#include "ZelDialWidget.h"

#include "ZelAccessibleValue.h"
#include "ZelControlWheel.h"
#include "ZelDialAngle.h"
#include "ZelNumberDoubleClick.h"

#include <QDebug>
#include <QDial>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <cmath>
#include <limits>

namespace {

constexpr int fieldWidth = 90;
constexpr int singleStep = 5;
constexpr int pageStep = 45;
constexpr QChar degreeSign(176);

/// The dial, with the real angle for assistive technology.
class AngleDial : public QDial
{
    Q_OBJECT

public:
    explicit AngleDial(ZelDialWidget *owner);
    ZelDialWidget *owner() const { return static_cast<ZelDialWidget *>(parentWidget()); }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        ZelControlWheel::turn(event, [this](QWheelEvent *turned) { QDial::wheelEvent(turned); });
    }
};

/// The field; each of its steps is a finished entry.
class AngleField : public QDoubleSpinBox
{
public:
    explicit AngleField(QWidget *parent)
        : QDoubleSpinBox(parent)
    {}
    void stepBy(int steps) override
    {
        QDoubleSpinBox::stepBy(steps);
        Q_EMIT editingFinished();
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        ZelControlWheel::turn(event,
                              [this](QWheelEvent *turned) { QDoubleSpinBox::wheelEvent(turned); });
    }
};

class AccessibleDial : public ZelAccessibleValue
{
public:
    explicit AccessibleDial(QWidget *dial)
        : ZelAccessibleValue(dial, QAccessible::Dial)
    {}
    QVariant currentValue() const override { return owner()->getValue(); }
    void setCurrentValue(const QVariant &value) override { owner()->setValue(value.toDouble()); }
    QVariant maximumValue() const override { return dial()->maximum(); }
    QVariant minimumValue() const override { return dial()->minimum(); }
    QVariant minimumStepSize() const override { return dial()->singleStep(); }

private:
    AngleDial *dial() const { return static_cast<AngleDial *>(object()); }
    ZelDialWidget *owner() const { return dial()->owner(); }
};

AngleDial::AngleDial(ZelDialWidget *owner)
    : QDial(owner)
{
    ZelAccessibleValue::serve<AccessibleDial, AngleDial>();
}

} // namespace

ZelDialWidget::ZelDialWidget(QSize const &dialSize, bool backward, QWidget *parent)
    : QWidget(parent)
    , backward_(backward)
    , dial_(new AngleDial(this))
    , field_(new AngleField(this))
{
    dial_->setFixedSize(dialSize);
    dial_->setNotchesVisible(true);
    dial_->setSingleStep(singleStep);
    dial_->setPageStep(pageStep);
    dial_->setRange(0, ZelDialAngle::fullTurn);
    field_->setDecimals(2);
    field_->setMaximum(std::numeric_limits<double>::max());
    field_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field_->setSuffix(degreeSign);
    field_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field_->setValue(0.0);
    field_->setFixedWidth(fieldWidth);
    ZelNumberDoubleClick::install(field_);
    dial_->setAccessibleName(tr("Angle"));
    field_->setAccessibleName(tr("Angle in degrees"));
    ZelAccessibleValue::describeBy(dial_, field_);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(dial_);
    layout->addWidget(field_);
    setFocusProxy(dial_);
    showOnDial();
    connect(dial_, &QDial::valueChanged, this, &ZelDialWidget::onValueChanged);
    connect(dial_, &QDial::sliderReleased, this, &ZelDialWidget::sliderReleased);
    connect(field_, &QDoubleSpinBox::editingFinished, this, &ZelDialWidget::onEditingFinished);
}

ZelDialWidget::~ZelDialWidget()
{
    // A field that has the focus finishes its editing while it is destroyed.
    field_->disconnect(this);
}

void ZelDialWidget::setValue(double value)
{
    if (!std::isfinite(value)) {
        qWarning() << "An angle has to be finite:" << value << objectName();
        return;
    }
    take(ZelDialAngle::positive(value));
}

void ZelDialWidget::setBackward(bool backward)
{
    backward_ = backward;
    showOnDial();
}

void ZelDialWidget::setContinuing(bool continuing)
{
    continuing_ = continuing;
    const QSignalBlocker blocker(dial_);
    dial_->setWrapping(continuing);
    showOnDial();
}

void ZelDialWidget::onValueChanged(int value)
{
    take(ZelDialAngle::angle(value, value_, {backward_, continuing_}));
    ZelAccessibleValue::announce(dial_, value_);
}

void ZelDialWidget::onEditingFinished()
{
    // The field shows two decimals; what it shows of an unchanged angle is no new one.
    const QString shown = field_->textFromValue(value_);
    if (field_->textFromValue(field_->value()) != shown)
        take(field_->value());
}

void ZelDialWidget::take(double value)
{
    const bool isOther = value != value_;
    value_ = value;
    field_->setValue(value_);
    showOnDial();
    if (isOther)
        Q_EMIT valueChanged(value_);
}

void ZelDialWidget::showOnDial()
{
    const QSignalBlocker blocker(dial_);
    dial_->setValue(ZelDialAngle::position(value_, {backward_, continuing_}));
}

#include "ZelDialWidget.moc"
