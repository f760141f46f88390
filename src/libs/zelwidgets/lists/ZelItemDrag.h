#pragma once

#include <QDropEvent>
#include <QList>
#include <QModelIndexList>
#include <QPersistentModelIndex>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QSize>

#include <functional>
#include <optional>

class QAbstractItemModel;
class QAbstractItemView;
class QEvent;

/// What the item views share: what is dragged, its picture, where it is dropped, and who asks for
/// tool tips.
namespace ZelItemDrag {

/// Those of the indices that may be dragged.
QModelIndexList draggable(QModelIndexList indices);

/// The selection if it holds more indices than there are rows at the root, else what lies under the
/// drop. They outlive changes of the model.
QList<QPersistentModelIndex> targets(const QAbstractItemView *view, const QModelIndexList &selected,
                                     const QDropEvent *event);
/// Whether any of the targets took the drop. Targets and the model may go while it is handed out.
bool dropOn(QAbstractItemModel *model, const QDropEvent *event,
            const QList<QPersistentModelIndex> &targets);

/// Drops on the targets, if there are any, between the signals by which the view tells so. False if
/// the view went meanwhile.
template <typename View, typename Drop>
bool dropBetweenSignals(View *view, QDropEvent *event, const QList<QPersistentModelIndex> &targets,
                        const Drop &drop)
{
    const QPointer<View> alive(view);
    if (targets.isEmpty())
        return true;
    Q_EMIT view->beginDropSelection();
    const bool isTaken = alive && drop(targets);
    if (alive)
        Q_EMIT alive->endDropSelection();
    if (isTaken)
        event->acceptProposedAction();
    return !alive.isNull();
}

/// How many of the items are drawn, and where, in the logical pixels of the picture; the last place
/// is that of the last item.
QList<QPoint> places(qsizetype items);
inline constexpr QSize pictureSize(100, 100);
inline constexpr int overhang = 28;

/// A stack of pictures; a single one stands for itself. Asks for no more than are drawn.
QPixmap picture(qsizetype items, qreal pixelRatio, const std::function<QPixmap(qsizetype)> &ofItem);

/// The same for pictures in a role of a model, which may be icons or pixmaps.
QPixmap pictureOf(const QModelIndexList &indices, int role, qreal pixelRatio);

/// Drags what the model says of the indices, with their pictures; nothing if it says nothing.
void start(QAbstractItemView *view, const QModelIndexList &indices, int pictureRole);

/// What an event says of tool tips: that the one of this index is wanted, none of an invalid index;
/// most say nothing.
std::optional<QModelIndex> toolTipIndex(const QAbstractItemView *view, const QEvent *event);

/// Tells by the signals of the view that a tool tip is wanted or no longer wanted.
template <typename View>
void hearToolTips(View *view, const QEvent *event)
{
    const std::optional<QModelIndex> index = toolTipIndex(view, event);
    if (!index)
        return;
    if (index->isValid())
        Q_EMIT view->toolTipRequested(*index);
    else
        Q_EMIT view->toolTipHideRequest();
}

} // namespace ZelItemDrag
