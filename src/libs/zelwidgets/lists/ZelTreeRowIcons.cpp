#include "lists/ZelTreeRowIcons.h"

#include "lists/ZelTreeItemDelegate.h"
#include "lists/ZelTreeView.h"

ZelTreeRowIcons::ZelTreeRowIcons(ZelTreeView *tree)
    : tree_(tree)
    , delegate_(tree ? qobject_cast<ZelTreeItemDelegate *>(tree->itemDelegate()) : nullptr)
    , row_(tree ? tree->currentIndex().siblingAtColumn(0) : QModelIndex())
{}

int ZelTreeRowIcons::count() const
{
    const bool hasIcons = delegate_ && row_.isValid() && delegate_->shouldDisplayIconsFor(row_);
    return hasIcons ? int(delegate_->icons_.size()) : 0;
}

QString ZelTreeRowIcons::text(int icon) const
{
    const QString text = delegate_->icons_[std::size_t(icon)].text;
    const QString name = text.isEmpty() ? ZelTreeView::tr("Icon %1").arg(icon + 1) : text;
    return ZelTreeView::tr("%1, %2").arg(name, row_.data().toString());
}

bool ZelTreeRowIcons::isShown(int icon) const
{
    return delegate_->isShown(std::size_t(icon), row_);
}

bool ZelTreeRowIcons::isActive(int icon) const
{
    return delegate_->isIconActive(std::size_t(icon), row_);
}

bool ZelTreeRowIcons::isFramed(int icon) const
{
    return delegate_->isFramed(std::size_t(icon), row_);
}

QRect ZelTreeRowIcons::area(int icon) const
{
    return delegate_->iconRect(std::size_t(icon), tree_->visualRect(row_));
}

void ZelTreeRowIcons::click(int icon)
{
    delegate_->iconClicked(std::size_t(icon), row_);
}
