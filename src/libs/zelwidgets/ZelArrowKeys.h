#pragma once

#include <QPoint>
#include <Qt>

/// The pixel that an arrow key stands for, from left to right and from top to bottom; null for
/// other keys.
inline QPoint zelArrowStep(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}
