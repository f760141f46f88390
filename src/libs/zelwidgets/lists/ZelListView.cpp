#include "ZelListView.h"

#include "lists/ZelItemDrag.h"
#include "lists/ZelZoomAnchor.h"
#include "lists/ZelZoomRequest.h"
#include "shortcuts/ZelShortcut.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>

ZelListView::ZelListView(QWidget *parent)
    : QListView(parent)
{
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setWrapping(true);
    setAcceptDrops(true);
    setDragEnabled(true);
    setDragDropMode(DragDrop);
    setDropIndicatorShown(false);
    setDefaultDropAction(Qt::CopyAction);
    setResizeMode(Adjust);
    new ZelShortcut(QStringLiteral("gen.aCopy"), tr("Copy"), Qt::Key_Copy, this,
                    SIGNAL(copyRequest()));
}

ZelListView::~ZelListView() = default;

void ZelListView::setExtendDropToSelection(bool extend)
{
    extendDropToSelection_ = extend;
}

QModelIndexList ZelListView::draggableIndices() const
{
    return ZelItemDrag::draggable(selectedIndexes());
}

bool ZelListView::event(QEvent *event)
{
    ZelItemDrag::hearToolTips(this, event);
    return QListView::event(event);
}

void ZelListView::dragEnterEvent(QDragEnterEvent *event)
{
    QListView::dragEnterEvent(event);
    if (event->isAccepted())
        Q_EMIT dragEnter();
}

void ZelListView::dragLeaveEvent(QDragLeaveEvent *event)
{
    QListView::dragLeaveEvent(event);
    if (event->isAccepted())
        Q_EMIT dragLeave();
}

void ZelListView::dropEvent(QDropEvent *event)
{
    const QPointer<ZelListView> self(this);
    if (extendDropToSelection_)
        doExtendDropToSelection(event);
    else
        QListView::dropEvent(event);
    if (self)
        Q_EMIT dragLeave();
}

void ZelListView::doExtendDropToSelection(QDropEvent *event)
{
    const auto drop = [this, event](const QList<QPersistentModelIndex> &targets) {
        return dropOn(event, targets);
    };
    if (!ZelItemDrag::dropBetweenSignals(this, event, getDropTargets(event), drop))
        return;
    stopAutoScroll();
    setState(NoState);
}

QList<QPersistentModelIndex> ZelListView::getDropTargets(QDropEvent const *event) const
{
    return ZelItemDrag::targets(this, selectedIndexes(), event);
}

bool ZelListView::dropOn(QDropEvent const *event, QList<QPersistentModelIndex> const &targets)
{
    return ZelItemDrag::dropOn(model(), event, targets);
}

void ZelListView::startDrag(Qt::DropActions)
{
    ZelItemDrag::start(this, draggableIndices(), Qt::DecorationRole);
}

ZelListViewWithZoom::ZelListViewWithZoom(QWidget *parent)
    : ZelListView(parent)
{}

void ZelListViewWithZoom::keyPressEvent(QKeyEvent *event)
{
    if (const auto delta = ZelZoomRequest::of(event)) {
        const ZelZoomAnchor anchor(this);
        Q_EMIT resize(*delta);
    } else {
        QAbstractItemView::keyPressEvent(event);
    }
}

void ZelListViewWithZoom::wheelEvent(QWheelEvent *event)
{
    if (const auto delta = ZelZoomRequest::of(event)) {
        const ZelZoomAnchor anchor(this, event->position().toPoint());
        Q_EMIT resize(*delta);
    } else {
        ZelListView::wheelEvent(event);
    }
}
