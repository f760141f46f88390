#include "ZelDoubleSpinBox.h"

#include "ZelControlWheel.h"
#include "ZelKeypadDecimal.h"
#include "ZelNumberDoubleClick.h"
#include "ZelNumberText.h"

#include <QDebug>

QLocale ZelDoubleSpinBox::locale = QLocale::system();

ZelDoubleSpinBox::ZelDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    // The base class reads texts by the widget's own locale.
    setLocale(locale);
    setAlignment(Qt::AlignLeft);
    setKeyboardTracking(false);
    ZelNumberDoubleClick::install(this);
    setDecimals(4);
    setMinimumWidth(50);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusPolicy(Qt::StrongFocus);
}

void ZelDoubleSpinBox::setCanBeZero(bool canBeZero)
{
    canBeZero_ = canBeZero;
}

void ZelDoubleSpinBox::setDegreeSuffix()
{
    setSuffix(tr(" %1").arg(QChar(0xb0)));
}

QSize ZelDoubleSpinBox::sizeHint() const
{
    // The base class measures the limits as they are shown, usually without decimals.
    constexpr int measuredLength = 18;
    const QFontMetrics metrics = fontMetrics();
    int shown = 0;
    int full = 0;
    for (const double limit : {minimum(), maximum()}) {
        const QString allDigits = locale.toString(limit, 'F', decimals());
        shown = qMax(shown, metrics.horizontalAdvance(textFromValue(limit).left(measuredLength)));
        full = qMax(full, metrics.horizontalAdvance(allDigits.left(measuredLength)));
    }
    return QDoubleSpinBox::sizeHint() + QSize(full - shown, 0);
}

void ZelDoubleSpinBox::stepBy(int steps)
{
    if (canBeZero_) {
        QDoubleSpinBox::stepBy(steps);
        return;
    }
    const auto taken = ZelNumberText::stepsPastZero(value(), singleStep(), steps);
    if (taken)
        QDoubleSpinBox::stepBy(*taken);
    else
        qWarning() << "Single step was set unexpectedly low";
}

void ZelDoubleSpinBox::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turn(event,
                          [this](QWheelEvent *turned) { QDoubleSpinBox::wheelEvent(turned); });
}

void ZelDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    ZelKeypadDecimal::press(event, locale,
                            [this](QKeyEvent *typed) { QDoubleSpinBox::keyPressEvent(typed); });
}

double ZelDoubleSpinBox::valueFromText(const QString &text) const
{
    const double number = QDoubleSpinBox::valueFromText(ZelNumberText::readable(text, locale));
    return canBeZero_ ? number : ZelNumberText::keptFromZero(number);
}

QString ZelDoubleSpinBox::textFromValue(double value) const
{
    return ZelNumberText::spinBoxText(value, decimals(), locale);
}

QValidator::State ZelDoubleSpinBox::validate(QString &text, int &position) const
{
    return ZelNumberText::validate(
        text, position, {prefix(), suffix(), locale},
        [this](QString &checked, int &at) { return QDoubleSpinBox::validate(checked, at); });
}

void ZelDoubleSpinBox::fixup(QString &text) const
{
    if (ZelNumberText::isNumber(text, {prefix(), suffix(), locale}))
        QDoubleSpinBox::fixup(text);
}
