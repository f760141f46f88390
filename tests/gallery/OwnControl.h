#pragma once

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QToolBox>
#include <QWidget>

/// A control that the user reaches by itself: not the field of a spin box, nor the list of a combo
/// box, nor a part that Qt composes a widget of.
inline bool isOwnControl(const QWidget *widget)
{
    if (!(widget->focusPolicy() & Qt::TabFocus) ||
        widget->objectName().startsWith(QLatin1String("qt_")))
        return false;
    if (qobject_cast<const QToolBox *>(widget->parentWidget()))
        return false;
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QComboBox *>(parent) ||
            qobject_cast<const QAbstractSpinBox *>(parent))
            return false;
    }
    return true;
}
