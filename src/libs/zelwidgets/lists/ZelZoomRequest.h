#pragma once

#include <QKeyEvent>
#include <QWheelEvent>

#include <optional>

/// Which events ask a list for other icon sizes, and by how much: one notch of the wheel is one key
/// press.
namespace ZelZoomRequest {

inline constexpr int notch = 120;

inline std::optional<int> of(const QKeyEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return {};
    if (event->key() == Qt::Key_Plus)
        return notch;
    if (event->key() == Qt::Key_Minus || event->key() == Qt::Key_Underscore)
        return -notch;
    return {};
}

inline std::optional<int> of(const QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return {};
    return event->angleDelta().y();
}

} // namespace ZelZoomRequest
