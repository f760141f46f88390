#pragma once

#include <QPersistentModelIndex>
#include <QRect>
#include <QString>

class ZelTreeItemDelegate;
class ZelTreeView;

/// The icons of a tree's current row, as something else than the mouse gets at them.
class ZelTreeRowIcons
{
public:
    explicit ZelTreeRowIcons(ZelTreeView *tree);

    int count() const;
    QString text(int icon) const;
    bool isShown(int icon) const;
    bool isActive(int icon) const;
    bool isFramed(int icon) const;
    /// In the viewport.
    QRect area(int icon) const;
    void click(int icon);

private:
    ZelTreeView *tree_;
    ZelTreeItemDelegate *delegate_;
    QModelIndex row_;
};
