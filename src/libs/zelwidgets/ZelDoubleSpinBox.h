#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDoubleSpinBox>
#include <QLocale>

/// A spin box that keeps its number itself, for numbers with decimals: four at first, zeros at the
/// end are not shown. It may be kept from being zero.
///
/// The wheel is left to the panel around it, unless Control is held: then it turns by single steps,
/// with Shift as well by large ones.
class ZELWIDGETS_EXPORT ZelDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// What all spin boxes of the class write and read numbers by; the system's at first. A spin
    /// box takes it over when it is made.
    static QLocale locale;

    explicit ZelDoubleSpinBox(QWidget *parent);

    /// With false, a typed number nearer to zero than 1e-6 becomes that, steps jump over zero, and
    /// a step below 2e-6 that would reach it is refused with a warning. True at first.
    void setCanBeZero(bool canBeZero);
    void setDegreeSuffix();

    /// Wide enough for the limits with all decimals.
    QSize sizeHint() const override;
    void stepBy(int steps) override;
    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    double valueFromText(const QString &text) const override;
    QString textFromValue(double value) const override;

private:
    bool canBeZero_ = true;
};
