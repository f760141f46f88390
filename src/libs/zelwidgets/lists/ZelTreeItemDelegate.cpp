#include "ZelTreeItemDelegate.h"

#include "ScrollbarHelper.h"
#include "theme/ZelStyleIcon.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>

ZelTreeItemDelegate::ZelTreeItemDelegate(QAbstractItemView *view)
    : QStyledItemDelegate(view)
    , view_(view)
{
    if (view)
        view->installEventFilter(this);
}

ZelTreeItemDelegate::~ZelTreeItemDelegate() = default;

void ZelTreeItemDelegate::addIcon(IconAndRole icon)
{
    icons_.push_back(std::move(icon));
}

void ZelTreeItemDelegate::addLockIcon(int role)
{
    addIcon({ZelStyleIcon(QStringLiteral(":ui/icons/unlock")), role, true, true,
             ZelStyleIcon(QStringLiteral(":ui/icons/lock")), tr("Locked")});
}

QString ZelTreeItemDelegate::nameAppendix(QModelIndex const &) const
{
    return {};
}

bool ZelTreeItemDelegate::shouldDisplayIconsFor(QModelIndex const &) const
{
    return true;
}

// Geometry: each icon has a place of its own, whatever else is shown.

int ZelTreeItemDelegate::firstIconHorizontalOffset(QRect const &row) const
{
    const auto *view = qobject_cast<QAbstractItemView *>(parent());
    const int overlap = view ? ScrollbarHelper::overlapScrollbarBugPixels(view, Qt::Vertical) : 0;
    return row.right() - 1 - overlap - iconSize_.width();
}

int ZelTreeItemDelegate::iconSpacing() const
{
    return iconSize_.width() + iconGap_;
}

int ZelTreeItemDelegate::iconVerticalOffset(QRect const &row) const
{
    return row.center().y() - iconSize_.height() / 2 + 1;
}

QRect ZelTreeItemDelegate::iconRect(std::size_t icon, QRect const &row) const
{
    const QPoint place(firstIconHorizontalOffset(row) - iconSpacing() * int(icon),
                       iconVerticalOffset(row));
    return mirrored(QRect(place, iconSize_), row);
}

/// Rows that are read from the right have their icons at the left.
QRect ZelTreeItemDelegate::mirrored(const QRect &icon, const QRect &row) const
{
    return view_ ? QStyle::visualRect(view_->layoutDirection(), row, icon) : icon;
}

bool ZelTreeItemDelegate::isIconActive(std::size_t icon, QModelIndex const &index) const
{
    return index.isValid() && index.data(icons_[icon].role).toBool();
}

// Painting

bool ZelTreeItemDelegate::isPaintedDisabled(const QModelIndex &index) const
{
    if (view_ && index == view_->currentIndex())
        return false;
    for (std::size_t icon = 0; icon < icons_.size(); ++icon) {
        if (icons_[icon].alwaysVisible && icons_[icon].hasActiveIcon && isIconActive(icon, index))
            return true;
    }
    return false;
}

void ZelTreeItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const bool hasIcons = shouldDisplayIconsFor(index);
    if (hasIcons && isPaintedDisabled(index))
        item.state &= ~QStyle::State_Enabled;
    item.text += nameAppendix(index);
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    if (hasIcons)
        paintIcons(painter, option.rect, index);
}

/// What is shown closes up to the right.
void ZelTreeItemDelegate::paintIcons(QPainter *painter, const QRect &row,
                                     const QModelIndex &index) const
{
    const QPoint cursor = view_ ? view_->viewport()->mapFromGlobal(QCursor::pos()) : QPoint(-1, -1);
    int x = firstIconHorizontalOffset(row);
    const int y = iconVerticalOffset(row);
    for (std::size_t at = 0; at < icons_.size(); ++at) {
        const IconAndRole &entry = icons_[at];
        if (!isShown(at, index))
            continue;
        const bool isReplaced =
            entry.alwaysVisible && isIconActive(at, index) && !entry.activeIcon.isNull();
        const bool isHot = isFramed(at, index) || iconRect(at, row).contains(cursor);
        const QRect place = mirrored(QRect(QPoint(x, y), iconSize_), row);
        if (isFramed(at, index)) {
            painter->save();
            painter->setPen(view_->palette().color(QPalette::Link));
            painter->drawRect(place.adjusted(-1, -1, 0, 0));
            painter->restore();
        }
        const int next = paintIcon(painter, isReplaced ? entry.activeIcon : entry.icon, place.x(),
                                   y, isHot ? QIcon::Active : QIcon::Normal);
        x += next - place.x();
    }
}

int ZelTreeItemDelegate::paintIcon(QPainter *painter, const QIcon &icon, int x, int y,
                                   QIcon::Mode mode) const
{
    const QWindow *window = view_ ? view_->window()->windowHandle() : nullptr;
    const qreal ratio = window ? window->devicePixelRatio() : 1.0;
    painter->drawPixmap(x, y, icon.pixmap(iconSize_, ratio, mode, QIcon::Off));
    return x - iconGap_ - iconSize_.width();
}

// Clicks and keys

bool ZelTreeItemDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                      const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() == QEvent::MouseButtonRelease && view_ && shouldDisplayIconsFor(index)) {
        const QPoint global = static_cast<QMouseEvent *>(event)->globalPosition().toPoint();
        const QPoint point = view_->viewport()->mapFromGlobal(global);
        const QRect row = view_->visualRect(index);
        for (std::size_t icon = 0; icon < icons_.size(); ++icon) {
            if (iconRect(icon, row).contains(point)) {
                iconClicked(icon, index);
                return true;
            }
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

bool ZelTreeItemDelegate::isShown(std::size_t icon, const QModelIndex &index) const
{
    return icons_[icon].alwaysVisible || isIconActive(icon, index);
}

bool ZelTreeItemDelegate::isFramed(std::size_t icon, const QModelIndex &index) const
{
    return view_ && framed_ == int(icon) && view_->hasFocus() && index.column() == 0 &&
           index.siblingAtColumn(0) == view_->currentIndex().siblingAtColumn(0);
}

/// The next icon of the row, round and round, from one that may be none; -1 if none is shown.
int ZelTreeItemDelegate::shownFrom(int icon, int step, const QModelIndex &index) const
{
    const int count = int(icons_.size());
    int at = icon < 0 && step < 0 ? 0 : icon;
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (isShown(std::size_t(at), index))
            return at;
    }
    return -1;
}

void ZelTreeItemDelegate::frame(int icon)
{
    framed_ = icon;
    view_->viewport()->update(view_->visualRect(view_->currentIndex()));
    // The view names the icon as its child with the focus.
    QAccessibleEvent focus(view_, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

bool ZelTreeItemDelegate::keyPressed(QKeyEvent *event)
{
    const QModelIndex current = view_->currentIndex();
    const int count = int(icons_.size());
    if (!current.isValid() || count == 0 || !shouldDisplayIconsFor(current))
        return false;
    const bool isStep = event->modifiers() == Qt::AltModifier &&
                        (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right);
    if (isStep) {
        // The first icon is the outermost one.
        const Qt::Key inwards = view_->isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
        const int step = event->key() == inwards ? 1 : -1;
        frame(shownFrom(framed_, step, current));
        return true;
    }
    if (event->key() == Qt::Key_Space && framed_ >= 0 && framed_ < count &&
        event->modifiers() == Qt::NoModifier && isShown(std::size_t(framed_), current)) {
        iconClicked(std::size_t(framed_), current);
        return true;
    }
    if (framed_ >= 0)
        frame(-1);
    return false;
}

bool ZelTreeItemDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (!view_ || watched != view_)
        return QStyledItemDelegate::eventFilter(watched, event);
    const bool isModifierAlone =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt;
    return event->type() == QEvent::KeyPress && !isModifierAlone &&
           keyPressed(static_cast<QKeyEvent *>(event));
}
