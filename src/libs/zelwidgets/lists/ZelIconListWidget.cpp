#include "ZelIconListWidget.h"

#include "ZelMessageBox.h"
#include "lists/ZelIconListItemDelegate.h"
#include "lists/ZelIconListWidgetAdapter.h"
#include "lists/ZelItemDrag.h"
#include "lists/ZelLazyMimeData.h"
#include "shortcuts/ZelShortcut.h"

#include <QBitmap>
#include <QCursor>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>

#include <memory>

ZelIconListWidgetAdapter::~ZelIconListWidgetAdapter() = default;

ZelIconListWidget::ZelIconListWidget(QWidget *parent, ZelIconListWidgetAdapter *adapter)
    : ZelListWidgetWithZoom(parent)
    , adapter_(adapter)
{
    setItemDelegate(new ZelIconListItemDelegate(this));
    setViewMode(IconMode);
    setUniformItemSizes(true);
    setFlow(LeftToRight);
    setMovement(Snap);
    setWrapping(true);
    setWordWrap(true);
    setTextElideMode(Qt::ElideRight);
    setResizeMode(Adjust);
    setDragDropMode(DragDrop);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setSelectionMode(SingleSelection);
    setSortingEnabled(true);
    sortItems(Qt::AscendingOrder);
    new ZelShortcut(QStringLiteral("gen.aCopy"), tr("Copy"), Qt::Key_Copy, this,
                    SLOT(slotCopyHotKey()));
}

ZelIconListWidget::~ZelIconListWidget() = default;

void ZelIconListWidget::setIconMode()
{
    if (viewMode() == IconMode)
        return;
    setViewMode(IconMode);
    setFlow(LeftToRight);
    setTextElideMode(Qt::ElideRight);
    setWrapping(true);
    setSelectionRectVisible(false);
}

void ZelIconListWidget::setListMode()
{
    if (viewMode() == ListMode)
        return;
    setViewMode(ListMode);
    setFlow(TopToBottom);
    setTextElideMode(Qt::ElideNone);
    setWrapping(false);
    setSelectionRectVisible(false);
}

void ZelIconListWidget::enableCustomTooltips(bool enable)
{
    customTooltips_ = enable;
}

void ZelIconListWidget::slotCopyHotKey()
{
    QListWidgetItem *item = currentItem();
    if (item && item->isSelected() && selectedIndexes().size() == 1)
        adapter_->copyItem(item);
}

bool ZelIconListWidget::event(QEvent *event)
{
    // A screen of another pixel ratio needs a new layout.
    if (event->type() == QEvent::ScreenChangeInternal && model())
        Q_EMIT model()->layoutChanged();
    return ZelListWidgetWithZoom::event(event);
}

void ZelIconListWidget::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool opens = isReturn && currentItem() && state() != EditingState;
    const QPointer<ZelIconListWidget> self(this);
    ZelListWidgetWithZoom::keyPressEvent(event);
    if (!self || !opens || !currentItem())
        return;
    event->accept();
    adapter_->openItem(currentItem());
}

// Mouse

void ZelIconListWidget::mousePressEvent(QMouseEvent *event)
{
    QListWidgetItem *item = itemAt(event->pos());
    const bool isLeft = event->button() == Qt::LeftButton;
    pressedItem_ = QPersistentModelIndex();
    if (isLeft && dragFinished_) {
        repairAfterDrag(item);
    } else if (isLeft && item && item->isSelected()) {
        if (copyByClick(item, event->modifiers()))
            return;
        pressedItem_ = indexFromItem(item);
    }
    QAbstractItemView::mousePressEvent(event);
}

/// The release after a drag went to the place of the drop.
void ZelIconListWidget::repairAfterDrag(QListWidgetItem *pressed)
{
    selectOnly(pressed);
    dragFinished_ = false;
    setState(NoState);
}

void ZelIconListWidget::selectOnly(QListWidgetItem *item)
{
    clearSelection();
    if (item)
        item->setSelected(true);
}

bool ZelIconListWidget::copyByClick(QListWidgetItem *item, Qt::KeyboardModifiers modifiers)
{
    if (modifiers != Qt::ShiftModifier)
        return false;
    const QPersistentModelIndex index = indexFromItem(item);
    const QPointer<ZelIconListWidget> self(this);
    adapter_->copyItem(item);
    if (self)
        selectOnly(itemFromIndex(index));
    return true;
}

void ZelIconListWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!dragFinished_)
        ZelListWidgetWithZoom::mouseMoveEvent(event);
}

/// A click on the item that is selected already renames it.
void ZelIconListWidget::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidgetItem *item = itemAt(event->pos());
    const bool isPressed = event->button() == Qt::LeftButton && item && item->isSelected() &&
                           pressedItem_.isValid() && indexFromItem(item) == pressedItem_;
    if (isPressed && selectedIndexes().size() > 1) {
        selectOnly(item);
        update();
        return;
    }
    pressedItem_ = QPersistentModelIndex();
    if (isPressed) {
        editItem(item);
        item->setSelected(true);
        return;
    }
    QListView::mouseReleaseEvent(event);
}

void ZelIconListWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (QListWidgetItem *item = itemAt(event->pos()))
        adapter_->openItem(item);
    else
        ZelListWidgetWithZoom::mouseDoubleClickEvent(event);
}

// Drags

QPixmap ZelIconListWidget::pixmapFromItem(QListWidgetItem *item, QSize size)
{
    return item->icon().pixmap(size, 1.0, QIcon::Normal, QIcon::Off);
}

QPixmap ZelIconListWidget::dragPixmap(QListWidgetItem *item)
{
    const qreal ratio = devicePixelRatioF();
    const QSize size = (QSizeF(ZelItemDrag::pictureSize) * ratio).toSize();
    QPixmap pixmap = pixmapFromItem(item, size);
    const std::unique_ptr<QBitmap> mask(adapter_->dragMask(item, size, ratio));
    if (mask)
        pixmap.setMask(*mask);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QPixmap ZelIconListWidget::dragPicture(const QList<QListWidgetItem *> &items)
{
    return ZelItemDrag::picture(items.size(), devicePixelRatioF(),
                                [&](qsizetype at) { return dragPixmap(items[at]); });
}

QMimeData *ZelIconListWidget::mimeData(const QList<QListWidgetItem *> &items) const
{
    if (items.isEmpty())
        return nullptr;
    QList<QPersistentModelIndex> rows;
    for (const QListWidgetItem *item : items)
        rows.append(indexFromItem(item));
    const QPointer<const ZelIconListWidget> list(this);
    return new ZelLazyMimeData(mimeTypes(), [list, rows]() -> QMimeData * {
        QList<QListWidgetItem *> left;
        for (const QPersistentModelIndex &row : rows) {
            if (list && row.isValid())
                left.append(list->itemFromIndex(row));
        }
        return left.isEmpty() ? nullptr : list->QListWidget::mimeData(left);
    });
}

void ZelIconListWidget::startDrag(Qt::DropActions)
{
    QList<QListWidgetItem *> items = selectedItems();
    if (items.isEmpty() && currentItem())
        items.append(currentItem());
    if (items.isEmpty())
        return;
    const QPointer<ZelIconListWidget> self(this);
    auto *drag = new QDrag(this);
    drag->setMimeData(mimeData(items));
    drag->setPixmap(dragPicture(items));
    drag->setHotSpot(QPoint(0, 0));
    {
        // No message box may open in the loop of a drag.
        const ZelScopedMessageBoxMode quiet(ZelMessageBox::Mode(1));
        drag->exec(Qt::CopyAction);
    }
    if (self)
        dragFinished_ = true;
}

// Tool tips

bool ZelIconListWidget::viewportEvent(QEvent *event)
{
    if (!customTooltips_ || event->type() != QEvent::ToolTip)
        return ZelListWidgetWithZoom::viewportEvent(event);
    updateToolTip();
    return true;
}

void ZelIconListWidget::updateToolTip()
{
    QListWidgetItem *item = itemAt(mapFromGlobal(QCursor::pos()));
    if (!item) {
        removeCustomToolTip();
        return;
    }
    const QPersistentModelIndex index = indexFromItem(item);
    if (index == tooltipItem_)
        return;
    adapter_->hideToolTip();
    tooltipItem_ = index;
    adapter_->showToolTip(item);
}

void ZelIconListWidget::removeCustomToolTip()
{
    tooltipItem_ = QPersistentModelIndex();
    adapter_->hideToolTip();
}

void ZelIconListWidget::hideEvent(QHideEvent *event)
{
    ZelListWidgetWithZoom::hideEvent(event);
    removeCustomToolTip();
}

void ZelIconListWidget::leaveEvent(QEvent *event)
{
    ZelListWidgetWithZoom::leaveEvent(event);
    removeCustomToolTip();
}
