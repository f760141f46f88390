#include "ZelCheckBox.h"

#include "ZelAccessible.h"

#include <QAction>
#include <QScopedValueRollback>

ZelCheckBox::ZelCheckBox(const QString &text, bool *value)
    : QCheckBox(text)
{
    bind(value);
}

ZelCheckBox::ZelCheckBox(QWidget *parent, bool *value)
    : QCheckBox(parent)
{
    bind(value);
}

ZelCheckBox::ZelCheckBox(QAction *action)
{
    bind(nullptr);
    if (!action)
        return;
    setText(action->text());
    setChecked(action->isChecked());
    setToolTip(action->toolTip());
    setIcon(action->icon());
    connect(this, &QCheckBox::clicked, action, &QAction::trigger);
    connect(action, &QAction::toggled, this, &QCheckBox::setChecked);
}

void ZelCheckBox::bind(bool *value)
{
    ZelAccessible::installFactory();
    value_ = value;
    if (value) {
        initialValue_ = *value;
        setChecked(*value);
    }
    connect(this, &QCheckBox::stateChanged, this, qOverload<int>(&ZelCheckBox::clicked));
}

void ZelCheckBox::clicked(int state)
{
    if (updating_ || !value_)
        return;
    *value_ = state == Qt::Checked;
    Q_EMIT valueUpdated();
}

void ZelCheckBox::updateValue()
{
    if (!value_)
        return;
    const QScopedValueRollback<bool> guard(updating_, true);
    setChecked(*value_);
}

void ZelCheckBox::resetValue()
{
    if (!value_)
        return;
    *value_ = initialValue_;
    updateValue();
}
