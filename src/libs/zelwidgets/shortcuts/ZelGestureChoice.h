#pragma once

#include "ZelMouseAction.h"

#include <QList>
#include <QString>

/// The gestures that an action can be bound to.
namespace ZelGestureChoice {

QList<ZelMouseShortcut::MouseEventAction> events(ZelMouseAction::Category category);
/// What users see of an event.
QString eventText(ZelMouseShortcut::MouseEventAction event);
bool hasButtons(ZelMouseShortcut::MouseEventAction event);
/// The gesture without what its kind doesn't have: buttons other than for drags, a held key that
/// is no digit 1 or 2, or that its text form would lose.
ZelMouseShortcut normalized(const ZelMouseShortcut &gesture);
/// A drag needs a button.
bool isComplete(const ZelMouseShortcut &gesture);

} // namespace ZelGestureChoice
