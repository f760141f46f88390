#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QSpinBox>

/// A field without buttons that edits a whole number of the caller's, as ZelDoubleEdit does
/// for a float. Control and the wheel turn it by single steps; any other wheel is left to the panel
/// around it.
class ZELWIDGETS_EXPORT ZelIntegerEdit : public QSpinBox
{
    Q_OBJECT

public:
    /// The number may not be null and has to outlive the field. It is shown within the limits but
    /// not changed until the user does.
    ZelIntegerEdit(QWidget *parent, int minimum, int maximum, int *value);

    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;

public Q_SLOTS:
    /// The number, as a float.
    float getValue();
    /// Shows the number as it is now. valueUpdated() is not emitted; other listeners of
    /// valueChanged(int) hear the change.
    void updateValue();
    /// Gives the number the value that it had when the field was made. The text stays until
    /// updateValue().
    void resetValue();

Q_SIGNALS:
    /// The user has changed the number.
    void valueUpdated();
    /// The field has lost the focus; a typed text is committed by now.
    void signalFocusOut();

protected Q_SLOTS:
    void valueChangedSlot(int value);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    int valueFromText(const QString &text) const override;

private:
    void resetByUser();
    void tellChange();

    int *value_;
    int initialValue_;
};
