#include "ZelDoubleEdit.h"

#include "ZelControlWheel.h"
#include "ZelKeypadDecimal.h"
#include "ZelNumberDoubleClick.h"
#include "ZelNumberFieldMenu.h"
#include "ZelNumberText.h"

#include <ZelCore/ZelUnitManager>

#include <QAccessible>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyle>

#include <cmath>
#include <limits>

namespace {

QString compactSheet()
{
    return QStringLiteral("ZelDoubleEdit { min-height: 0px; }");
}

} // namespace

QLocale ZelDoubleEdit::locale = QLocale::system();

ZelDoubleEdit::ZelDoubleEdit()
    : ZelDoubleEdit(nullptr, std::numeric_limits<double>::lowest(),
                    std::numeric_limits<double>::max(), nullptr)
{}

ZelDoubleEdit::ZelDoubleEdit(QWidget *parent, double minimum, double maximum, float *value)
    : QDoubleSpinBox(parent)
    , value_(value ? value : &ownValue_)
{
    initialValue_ = *value_;
    setObjectName(QStringLiteral("ZelDoubleEdit"));
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusPolicy(Qt::StrongFocus);
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    // The base class checks texts by the widget's own locale before valueFromText() sees them.
    setLocale(locale);
    QDoubleSpinBox::setDecimals(15);
    displayDecimals_ = baseDecimals_;
    QDoubleSpinBox::setRange(minimum, maximum);
    QDoubleSpinBox::setValue(static_cast<double>(*value_));
    setFixedWidth(80);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setKeyboardTracking(false);
    ZelNumberDoubleClick::install(this);
    rememberShown(static_cast<double>(*value_));
    connect(this, &QDoubleSpinBox::valueChanged, this, &ZelDoubleEdit::valueChangedSlot);
}

float ZelDoubleEdit::getValue() const
{
    return *value_;
}

bool ZelDoubleEdit::stripTailingZeros() const
{
    return stripTailingZeros_;
}

QString ZelDoubleEdit::styleSheet() const
{
    const QString own = QDoubleSpinBox::styleSheet();
    return own.isEmpty() && isCompact_ ? compactSheet() : own;
}

void ZelDoubleEdit::setCompact()
{
    isCompact_ = true;
    // A style sheet style asks each widget for its sheet by the property; other styles don't ask.
    if (!style()->inherits("QStyleSheetStyle"))
        setStyleSheet(compactSheet());
}

void ZelDoubleEdit::setDecimals(int decimals)
{
    displayDecimals_ = qBound(0, decimals, ZelNumberText::maximumDecimals);
    baseDecimals_ = displayDecimals_;
}

void ZelDoubleEdit::setDecimalsIsAbsolute(bool absolute)
{
    decimalsIsAbsolute_ = absolute;
}

void ZelDoubleEdit::setStripTailingZeros(bool strip)
{
    stripTailingZeros_ = strip;
}

void ZelDoubleEdit::setDegreeSuffix()
{
    setSuffix(tr(" %1").arg(QChar(0xb0)));
}

void ZelDoubleEdit::setQuantity(Quantity quantity)
{
    if (quantity_ == quantity)
        return;
    quantity_ = quantity;
    displayUnitChanged();
}

void ZelDoubleEdit::setRange(double minimum, double maximum)
{
    {
        const QSignalBlocker blocker(this);
        QDoubleSpinBox::setRange(minimum, maximum);
    }
    updateValue();
}

void ZelDoubleEdit::setUnit(const ZelUnitManager *manager)
{
    if (manager == unitManager_)
        return;
    if (unitManager_)
        disconnect(unitManager_, nullptr, this, nullptr);
    unitManager_ = manager;
    quantity_ = Quantity::Length;
    if (manager) {
        connect(manager, &ZelUnitManager::displayChanged, this, &ZelDoubleEdit::displayUnitChanged);
        connect(manager, &QObject::destroyed, this, &ZelDoubleEdit::displayUnitChanged);
    }
    displayUnitChanged();
    updateValue();
}

void ZelDoubleEdit::displayUnitChanged()
{
    const QString unit = unitManager_ ? unitManager_->displaySuffix(quantity_)
                                      : ZelUnitManager::suffix(quantity_, Unit::None);
    setSuffix(unit.isEmpty() ? QString() : tr(" %1").arg(unit));
    updateValue();
}

void ZelDoubleEdit::updateValue()
{
    const auto stored = static_cast<double>(*value_);
    const double number = unitManager_ ? unitManager_->convertToDisplay(quantity_, stored) : stored;
    if (showsAlready(number))
        return;
    const QSignalBlocker blocker(this);
    setValue(number);
    rememberShown(number);
}

void ZelDoubleEdit::rememberShown(double number)
{
    shown_ = {number,
              value(),
              minimum(),
              maximum(),
              displayDecimals_,
              decimalsIsAbsolute_,
              stripTailingZeros_,
              locale,
              text()};
}

/// Whether updateValue() would change nothing, found out without making a text.
bool ZelDoubleEdit::showsAlready(double number) const
{
    return number == shown_.number && std::signbit(number) == std::signbit(shown_.number) &&
           value() == shown_.value && minimum() == shown_.minimum && maximum() == shown_.maximum &&
           displayDecimals_ == shown_.decimals && decimalsIsAbsolute_ == shown_.isAbsolute &&
           stripTailingZeros_ == shown_.strips && !lineEdit()->isModified() &&
           text() == shown_.text && locale == shown_.locale;
}

void ZelDoubleEdit::resetValue()
{
    *value_ = initialValue_;
    updateValue();
}

void ZelDoubleEdit::valueChangedSlot(double value)
{
    const double stored = unitManager_ ? unitManager_->convertToCurrent(quantity_, value) : value;
    *value_ = static_cast<float>(stored);
    tellChange();
}

void ZelDoubleEdit::tellChange()
{
    QAccessibleValueChangeEvent change(this, value());
    QAccessible::updateAccessibility(&change);
    Q_EMIT valueUpdated();
}

void ZelDoubleEdit::resetByUser()
{
    const float before = *value_;
    resetValue();
    if (before != *value_)
        tellChange();
}

void ZelDoubleEdit::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turn(event,
                          [this](QWheelEvent *turned) { QDoubleSpinBox::wheelEvent(turned); });
}

void ZelDoubleEdit::focusOutEvent(QFocusEvent *event)
{
    QDoubleSpinBox::focusOutEvent(event);
    Q_EMIT signalFocusOut();
}

/// Whether the line shows what the field has put there, for the number that it holds.
bool ZelDoubleEdit::isUntouched() const
{
    return !lineEdit()->isModified() &&
           lineEdit()->text() == prefix() + textFromValue(value()) + suffix();
}

void ZelDoubleEdit::keyPressEvent(QKeyEvent *event)
{
    const bool commits = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QScopedValueRollback<bool> guard(keepsNumber_, commits && isUntouched());
    ZelKeypadDecimal::press(event, locale,
                            [this](QKeyEvent *typed) { QDoubleSpinBox::keyPressEvent(typed); });
}

void ZelDoubleEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ZelNumberFieldMenu::show(ZelNumberFieldMenu::forField(this, [this] { resetByUser(); }), event);
}

double ZelDoubleEdit::valueFromText(const QString &text) const
{
    if (keepsNumber_)
        return value();
    QString number = text;
    if (!suffix().isEmpty())
        number.remove(suffix());
    number = ZelNumberText::readable(number, locale);
    bool isRead = false;
    const double result = locale.toDouble(number, &isRead);
    if (!isRead)
        return static_cast<double>(*value_);
    adaptDecimals(number);
    return result;
}

void ZelDoubleEdit::adaptDecimals(const QString &text) const
{
    const int count = qMin(countDecimals(text), ZelNumberText::maximumDecimals);
    if (count > displayDecimals_) {
        displayDecimals_ = count;
        baseDecimals_ = count;
    } else if (count < baseDecimals_) {
        displayDecimals_ = baseDecimals_;
    }
}

int ZelDoubleEdit::countDecimals(const QString &text) const
{
    return ZelNumberText::countDecimals(text, locale);
}

QString ZelDoubleEdit::textFromValue(double value) const
{
    const ZelNumberText::Format format{displayDecimals_, decimalsIsAbsolute_, false};
    return stripEndingZeros(ZelNumberText::fromNumber(value, format, locale));
}

QString ZelDoubleEdit::stripEndingZeros(const QString &text) const
{
    return stripTailingZeros_ ? ZelNumberText::stripEndingZeros(text, locale) : text;
}

QValidator::State ZelDoubleEdit::validate(QString &text, int &position) const
{
    return ZelNumberText::validate(
        text, position, {prefix(), suffix(), locale},
        [this](QString &checked, int &at) { return QDoubleSpinBox::validate(checked, at); });
}

void ZelDoubleEdit::fixup(QString &text) const
{
    if (ZelNumberText::isNumber(text, {prefix(), suffix(), locale}))
        QDoubleSpinBox::fixup(text);
}
