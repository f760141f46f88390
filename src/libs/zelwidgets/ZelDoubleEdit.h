#pragma once

#include <ZelCore/Quantity>
#include <ZelWidgets/zelwidgets_export.h>

#include <QDoubleSpinBox>
#include <QLocale>
#include <QPointer>

class ZelUnitManager;

/// A field without buttons that edits a number of the caller's:
///
///     float radius = 1.5f;
///     auto *edit = new ZelDoubleEdit(panel, 0.0, 100.0, &radius);
///     connect(edit, &ZelDoubleEdit::valueUpdated, panel, &Panel::rebuild);
///
/// The number is written when the user commits a text with Return or by leaving the field, steps or
/// resets; then valueUpdated() is emitted. The program calls updateValue() after it has changed the
/// number itself. A focus that comes and goes, or a Return, without typing writes nothing: digits
/// that are not shown stay.
///
/// With a unit manager the field shows and reads the number in the display unit of its quantity.
/// The wheel is left to the panel around the field, unless Control is held: then it turns by single
/// steps, with Shift as well by large ones.
class ZELWIDGETS_EXPORT ZelDoubleEdit : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(QString styleSheet READ styleSheet WRITE setStyleSheet)

public:
    /// What all fields of the class write and read numbers by; the system's at first. A field takes
    /// it over when it is made.
    static QLocale locale;

    /// Without limits and with a number of its own.
    ZelDoubleEdit();
    /// The number has to outlive the field; with a null pointer the field keeps one itself, 0 at
    /// first. It is shown within the limits but not changed until the user does.
    ZelDoubleEdit(QWidget *parent, double minimum, double maximum, float *value);

    float getValue() const;
    bool stripTailingZeros() const;
    /// The field's own sheet, or the one that setCompact() stands for.
    QString styleSheet() const;

    /// Lets the field be as low as its text, as the sheet "ZelDoubleEdit { min-height: 0px; }" of
    /// its own would. Under a sheet of the application or of an ancestor it does without the style
    /// object that Qt makes for each widget with a sheet.
    void setCompact();
    /// How many digits follow the decimal point; a text typed with more raises the number, so that
    /// it stays visible. Takes effect with the next text.
    void setDecimals(int decimals);
    /// With false, numbers below 1 get more decimals the smaller they are. True at first; takes
    /// effect with the next text.
    void setDecimalsIsAbsolute(bool absolute);
    /// Whether zeros at the end are left out, as they are at first. Takes effect with the next
    /// text.
    void setStripTailingZeros(bool strip);
    void setDegreeSuffix();
    void setQuantity(Quantity quantity);
    /// Emits nothing and leaves the number alone, even one outside the limits.
    void setRange(double minimum, double maximum);
    /// Shows the number in the manager's display unit and makes it a length. The manager is not
    /// owned; when it goes, the stored number is shown as it is.
    void setUnit(const ZelUnitManager *manager);

    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;

public Q_SLOTS:
    /// Shows the number as it is now. Emits nothing.
    void updateValue();
    /// Gives the number the value that it had when the field was made, and shows it. Emits nothing.
    void resetValue();

Q_SIGNALS:
    /// The user has changed the number.
    void valueUpdated();
    /// The field has lost the focus; a typed text is committed by now.
    void signalFocusOut();

protected Q_SLOTS:
    void valueChangedSlot(double value);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// The number in the text, without the suffix; the stored number if the locale cannot read it.
    /// More decimals than are shown raise the number of decimals.
    double valueFromText(const QString &text) const override;
    QString textFromValue(double value) const override;

private:
    int countDecimals(const QString &text) const;
    void displayUnitChanged();
    QString stripEndingZeros(const QString &text) const;
    void adaptDecimals(const QString &text) const;
    bool isUntouched() const;
    bool showsAlready(double number) const;
    void rememberShown(double number);
    void resetByUser();
    void tellChange();

    Quantity quantity_ = Quantity::None;
    QPointer<const ZelUnitManager> unitManager_;
    bool decimalsIsAbsolute_ = true;
    bool stripTailingZeros_ = true;
    bool keepsNumber_ = false;
    bool isCompact_ = false;
    float initialValue_ = 0.0F;
    mutable int displayDecimals_ = 3;
    mutable int baseDecimals_ = 3;
    float *value_;
    float ownValue_ = 0.0F;
    /// What the program last showed, and of which number.
    struct Shown
    {
        double number = 0.0;
        double value = 0.0;
        double minimum = 0.0;
        double maximum = 0.0;
        int decimals = 0;
        bool isAbsolute = false;
        bool strips = false;
        QLocale locale;
        QString text;
    };
    Shown shown_;
};
