#include "ZelDragHeader.h"

#include "theme/ZelStyleIcon.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>

ZelDragHeader::ZelDragHeader(Qt::Orientation orientation, QIcon const &icon)
    : QHeaderView(orientation)
    , icon_(icon.isNull() ? ZelStyleIcon(QStringLiteral(":ui/icons/draghandle")) : icon)
{
    setSectionsClickable(true);
    connect(this, &QHeaderView::sectionPressed, this, &ZelDragHeader::setLastSectionPress);
}

QIcon ZelDragHeader::icon() const
{
    return icon_;
}

void ZelDragHeader::setIcon(const QIcon &icon)
{
    icon_ = icon;
    viewport()->update();
}

void ZelDragHeader::setViewPortUpdateOnDrag(bool update)
{
    viewportUpdateOnDrag_ = update;
}

void ZelDragHeader::setLastSectionPress(int logicalIndex)
{
    lastSectionPress_ = logicalIndex;
}

/// The picture of the dragged section is a label that Qt puts onto the viewport.
bool ZelDragHeader::isMovingSection() const
{
    const auto *picture = viewport()->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    return picture && picture->isVisible();
}

int ZelDragHeader::movingFrom() const
{
    return isMovingSection() ? lastSectionPress_ : -1;
}

int ZelDragHeader::movingTo() const
{
    return isMovingSection() ? moveTarget_ : -1;
}

int ZelDragHeader::targetOf(int pressed, int visual, int position, int middle)
{
    if (visual < pressed)
        return position >= middle ? visual + 1 : visual;
    if (visual > pressed)
        return position <= middle ? visual - 1 : visual;
    return pressed;
}

int ZelDragHeader::calcMoveToPosition(int position) const
{
    const int visual = visualIndexAt(position);
    if (visual < 0)
        return -1;
    const int section = logicalIndex(visual);
    const int middle = sectionPosition(section) + sectionSize(section) / 2 - offset();
    return logicalIndex(targetOf(visualIndex(lastSectionPress_), visual, position, middle));
}

void ZelDragHeader::mouseMoveEvent(QMouseEvent *event)
{
    QHeaderView::mouseMoveEvent(event);
    const QPoint point = viewport()->mapFromGlobal(event->globalPosition().toPoint());
    const int target = calcMoveToPosition(orientation() == Qt::Horizontal ? point.x() : point.y());
    if (target >= 0)
        moveTarget_ = target;
    updateView();
}

void ZelDragHeader::mouseReleaseEvent(QMouseEvent *event)
{
    QHeaderView::mouseReleaseEvent(event);
    updateView();
}

void ZelDragHeader::updateView() const
{
    const auto *view = qobject_cast<QAbstractItemView *>(parentWidget());
    if (view && viewportUpdateOnDrag_)
        view->viewport()->update();
}

void ZelDragHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = logicalIndex;
    option.text.clear();
    option.icon = icon_;
    option.iconAlignment = Qt::AlignCenter;
    option.rect = rect;
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    if (isMovingSection())
        updateView();
}
