#include "SameSizeController.h"

#include <algorithm>

SameSizeController::SameSizeController() = default;

SameSizeController::SameSizeController(QObject *parent)
    : QObject(parent)
{}

SameSizeController::SameSizeController(QObjectPrivate &d)
    : QObject(d)
{}

void SameSizeController::addChildInf(ChildFunction function, QPointer<QWidget> child)
{
    if (!function || !child)
        return;
    functions_.append(std::move(function));
    children_.append(child);
}

void SameSizeController::addUnaffectedChild(QWidget *child)
{
    addChildInf(
        [child](SzHintMode mode) {
            return mode == SizeHint ? child->sizeHint() : child->minimumSizeHint();
        },
        child);
}

void SameSizeController::setSameSizeDirection(QFlags<Qt::Orientation> direction)
{
    direction_ = direction;
}

QSize SameSizeController::szHint(QSize size) const
{
    return largest(size, SizeHint);
}

QSize SameSizeController::minSzHint(QSize size) const
{
    return largest(size, MinimumSizeHint);
}

QSize SameSizeController::largest(QSize size, SzHintMode mode) const
{
    for (qsizetype i = 0; i < children_.size(); ++i) {
        if (!children_.at(i))
            continue;
        const QSize childSize = functions_.at(i)(mode);
        if (direction_.testFlag(Qt::Vertical))
            size.setHeight(std::max(size.height(), childSize.height()));
        if (direction_.testFlag(Qt::Horizontal))
            size.setWidth(std::max(size.width(), childSize.width()));
        size = size.expandedTo(childSize);
    }
    return size;
}
