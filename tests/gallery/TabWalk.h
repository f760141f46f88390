#pragma once

#include <QList>
#include <QString>

class QWidget;

/// A walk by the Tab key.
namespace TabWalk {

/// Where the focus goes from the widget on until it is there again, which is the last then; given
/// up after a number that no window of ours has.
QList<QWidget *> onceAround(QWidget *start);

/// A control that the Tab key has to stop at: of the radio buttons of a group it is the chosen one.
bool isStop(const QWidget *widget);

/// True if the control, a part of it or what stands in for it is among those reached.
bool holds(const QList<QWidget *> &reached, const QWidget *control);

QString nameOf(const QWidget *widget);

} // namespace TabWalk
