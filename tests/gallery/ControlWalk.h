#pragma once

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QAccessibleInterface;

/// A walk over what assistive technology is told of controls.
namespace ControlWalk {

/// The controls in the accessible tree below the root that the user reaches by themselves.
QList<QPointer<QWidget>> controlsIn(QAccessibleInterface *root);

/// What is wrong with the name and the role of a control, and which of the actions that it offers
/// do nothing when they are run. None if it is gone.
QStringList faultsOf(const QPointer<QWidget> &widget);

} // namespace ControlWalk
