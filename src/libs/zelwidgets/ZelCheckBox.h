#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCheckBox>
#include <QPointer>

class QAction;

/// A check box bound to a bool of the caller's, which has to outlive it.
///
///     auto *box = new ZelCheckBox(tr("Cast shadows"), &light.castsShadows);
///     connect(box, &ZelCheckBox::valueUpdated, this, &Panel::render);
///
/// What the user does is written to the value at once; updateValue() reads it again. With a null
/// value the box keeps its state for itself. A literal nullptr as the first argument is ambiguous:
/// write the type, as in `ZelCheckBox(static_cast<QWidget *>(nullptr), &value)`.
class ZELWIDGETS_EXPORT ZelCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit ZelCheckBox(const QString &text, bool *value = nullptr);
    explicit ZelCheckBox(QWidget *parent, bool *value = nullptr);
    /// A box for the action: its text, state, tool tip and icon are copied; a click triggers it and
    /// its toggled() checks the box.
    explicit ZelCheckBox(QAction *action);

    /// Shows the bound value, without valueUpdated().
    void updateValue();
    /// Puts the value that was bound at first back into the caller's value and shows it, without
    /// valueUpdated().
    void resetValue();

Q_SIGNALS:
    /// After a change of the state was written to the bound value.
    void valueUpdated();

protected Q_SLOTS:
    /// Takes a new state of the box, a Qt::CheckState. It hides QAbstractButton::clicked(bool):
    /// connect to `&QCheckBox::clicked`.
    void clicked(int state);

private:
    void bind(bool *value);

    bool *value_ = nullptr;
    bool initialValue_ = false;
    bool updating_ = false;
};
