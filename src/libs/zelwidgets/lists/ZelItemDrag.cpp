#include "lists/ZelItemDrag.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QDrag>
#include <QDropEvent>
#include <QIcon>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int half = ZelItemDrag::overhang / 2;
constexpr qsizetype mostBehind = 24;

} // namespace

QModelIndexList ZelItemDrag::draggable(QModelIndexList indices)
{
    indices.removeIf(
        [](const QModelIndex &index) { return !index.flags().testFlag(Qt::ItemIsDragEnabled); });
    return indices;
}

QList<QPersistentModelIndex> ZelItemDrag::targets(const QAbstractItemView *view,
                                                  const QModelIndexList &selected,
                                                  const QDropEvent *event)
{
    QList<QPersistentModelIndex> targets;
    if (!view->model())
        return targets;
    if (selected.size() > view->model()->rowCount(view->rootIndex())) {
        for (const QModelIndex &index : selected)
            targets.append(index);
        return targets;
    }
    const QModelIndex index = view->indexAt(event->position().toPoint());
    if (index.isValid())
        targets.append(index);
    return targets;
}

bool ZelItemDrag::dropOn(QAbstractItemModel *model, const QDropEvent *event,
                         const QList<QPersistentModelIndex> &targets)
{
    const QPointer<QAbstractItemModel> alive(model);
    bool isTaken = false;
    for (const QPersistentModelIndex &target : targets) {
        if (!alive)
            break;
        if (target.isValid())
            isTaken |= model->dropMimeData(event->mimeData(), event->dropAction(), -1, -1, target);
    }
    return isTaken;
}

QList<QPoint> ZelItemDrag::places(qsizetype items)
{
    if (items < 2)
        return {QPoint(0, 0)};
    const qsizetype behind = std::min(items - 1, mostBehind);
    const int step = overhang / int(behind);
    QList<QPoint> places;
    for (int at = 0; at < behind; ++at)
        places.append(QPoint(step * at, half));
    places.append(QPoint(overhang, half));
    return places;
}

QPixmap ZelItemDrag::picture(qsizetype items, qreal pixelRatio,
                             const std::function<QPixmap(qsizetype)> &ofItem)
{
    if (items < 1)
        return {};
    const QList<QPoint> places = ZelItemDrag::places(items);
    if (places.size() == 1)
        return ofItem(0);
    const QSize logical = pictureSize + QSize(overhang, overhang);
    QPixmap canvas((QSizeF(logical) * pixelRatio).toSize());
    canvas.setDevicePixelRatio(pixelRatio);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    for (qsizetype at = 0; at < places.size(); ++at)
        painter.drawPixmap(places[at], ofItem(at + 1 < places.size() ? at : items - 1));
    return canvas;
}

QPixmap ZelItemDrag::pictureOf(const QModelIndexList &indices, int role, qreal pixelRatio)
{
    return picture(indices.size(), pixelRatio, [&](qsizetype at) {
        const QVariant data = indices[at].data(role);
        const QIcon icon = data.metaType() == QMetaType::fromType<QPixmap>()
                               ? QIcon(qvariant_cast<QPixmap>(data))
                               : qvariant_cast<QIcon>(data);
        return icon.pixmap(pictureSize, pixelRatio);
    });
}

void ZelItemDrag::start(QAbstractItemView *view, const QModelIndexList &indices, int pictureRole)
{
    const QAbstractItemModel *model = view->model();
    QMimeData *data = model && !indices.isEmpty() ? model->mimeData(indices) : nullptr;
    if (!data)
        return;
    auto *drag = new QDrag(view);
    drag->setMimeData(data);
    drag->setPixmap(pictureOf(indices, pictureRole, view->devicePixelRatioF()));
    drag->exec(model->supportedDragActions(), view->defaultDropAction());
}

std::optional<QModelIndex> ZelItemDrag::toolTipIndex(const QAbstractItemView *view,
                                                     const QEvent *event)
{
    if (event->type() == QEvent::Leave || event->type() == QEvent::Hide)
        return QModelIndex();
    if (event->type() == QEvent::ToolTip)
        return view->indexAt(view->viewport()->mapFromGlobal(QCursor::pos()));
    return std::nullopt;
}
