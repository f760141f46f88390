#include "ZelTreeView.h"

#include "lists/ZelItemDrag.h"
#include "lists/ZelTreeAccessible.h"
#include "shortcuts/ZelShortcut.h"
#include "theme/ZelFontMetrics.h"

#include <QDropEvent>
#include <QIcon>
#include <QMouseEvent>
#include <QPointer>

ZelTreeView::ZelTreeView(QWidget *parent)
    : QTreeView(parent)
{
    ZelTreeAccessible::installFactory();
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideNone);
    setAcceptDrops(true);
    setDragEnabled(true);
    setDragDropMode(DragDrop);
    setDropIndicatorShown(false);
    setDefaultDropAction(Qt::CopyAction);
    new ZelShortcut(QStringLiteral("gen.aCopy"), tr("Copy"), Qt::Key_Copy, this,
                    SIGNAL(copyRequest()));
}

ZelTreeView::~ZelTreeView() = default;

void ZelTreeView::setExtendDropToSelection(bool extend)
{
    extendDropToSelection_ = extend;
}

void ZelTreeView::setRepaintOnMouseMove(bool repaint)
{
    setAttribute(Qt::WA_MouseTracking, repaint);
    viewport()->setMouseTracking(repaint);
    repaintOnMouseMove_ = repaint;
}

void ZelTreeView::setSizeConstraintText(QString const &text)
{
    sizeConstraintText_ = text;
    updateGeometry();
}

void ZelTreeView::setThumbnailRole(int role)
{
    thumbnailRole_ = role;
}

QSize ZelTreeView::constrained(QSize size) const
{
    if (!sizeConstraintText_.isEmpty())
        size.setWidth(ZelFontMetrics(this).horizontalAdvance(sizeConstraintText_));
    return size;
}

QSize ZelTreeView::minimumSizeHint() const
{
    return constrained(QTreeView::minimumSizeHint());
}

QSize ZelTreeView::sizeHint() const
{
    return constrained(QTreeView::sizeHint());
}

QModelIndexList ZelTreeView::draggableIndices() const
{
    return ZelItemDrag::draggable(selectedIndexes());
}

bool ZelTreeView::event(QEvent *event)
{
    ZelItemDrag::hearToolTips(this, event);
    return QTreeView::event(event);
}

void ZelTreeView::mouseMoveEvent(QMouseEvent *event)
{
    if (repaintOnMouseMove_)
        viewport()->update(visualRect(indexAt(event->pos())));
    QTreeView::mouseMoveEvent(event);
}

void ZelTreeView::dragEnterEvent(QDragEnterEvent *event)
{
    QTreeView::dragEnterEvent(event);
    if (event->isAccepted())
        Q_EMIT dragEnter();
}

void ZelTreeView::dragLeaveEvent(QDragLeaveEvent *event)
{
    QTreeView::dragLeaveEvent(event);
    if (event->isAccepted())
        Q_EMIT dragLeave();
}

void ZelTreeView::dropEvent(QDropEvent *event)
{
    const QPointer<ZelTreeView> self(this);
    if (extendDropToSelection_)
        dropOnSelection(event);
    else
        QTreeView::dropEvent(event);
    if (self)
        Q_EMIT dragLeave();
}

void ZelTreeView::dropOnSelection(QDropEvent *event)
{
    const auto drop = [this, event](const QList<QPersistentModelIndex> &targets) {
        return ZelItemDrag::dropOn(model(), event, targets);
    };
    const auto targets = ZelItemDrag::targets(this, selectedIndexes(), event);
    if (!ZelItemDrag::dropBetweenSignals(this, event, targets, drop))
        return;
    stopAutoScroll();
    setState(NoState);
}

void ZelTreeView::startDrag(Qt::DropActions)
{
    ZelItemDrag::start(this, draggableIndices(), thumbnailRole_);
}
