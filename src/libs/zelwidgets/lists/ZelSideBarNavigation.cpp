#include "ZelSideBarNavigation.h"

#include <QHeaderView>
#include <QResizeEvent>

namespace {

constexpr double spare = 1.1;

QSize withSpare(int width, int height)
{
    return {int(width * spare), int(height * spare)};
}

void makeSideBar(QWidget *widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Fixed);
    widget->setSizePolicy(policy);
    widget->setFocusPolicy(Qt::NoFocus);
}

} // namespace

ZelSideBarNavigation::ZelSideBarNavigation(QWidget *parent)
    : QListWidget(parent)
{
    makeSideBar(this);
}

QListWidget *ZelSideBarNavigation::create(QWidget *parent)
{
    return new ZelSideBarNavigation(parent);
}

bool ZelSideBarNavigation::isNewSideBarStyle(QListWidget const *list)
{
    return qobject_cast<const ZelSideBarNavigation *>(list) != nullptr;
}

QSize ZelSideBarNavigation::sizeHint() const
{
    return withSpare(sizeHintForColumn(0), QListWidget::sizeHint().height());
}

ZelSideBarNavigationTree::ZelSideBarNavigationTree(QWidget *parent)
    : QTreeWidget(parent)
{
    makeSideBar(this);
    setRootIsDecorated(false);
    setHeaderHidden(true);
    header()->setStretchLastSection(false);
}

QTreeWidget *ZelSideBarNavigationTree::create(QWidget *parent)
{
    return new ZelSideBarNavigationTree(parent);
}

bool ZelSideBarNavigationTree::isNewSideBarStyle(QTreeWidget const *tree)
{
    return qobject_cast<const ZelSideBarNavigationTree *>(tree) != nullptr;
}

QSize ZelSideBarNavigationTree::sizeHint() const
{
    return withSpare(sizeHintForColumn(0), QTreeWidget::sizeHint().height());
}

// A hidden header doesn't follow the width by itself, and a narrow bar would scroll sideways.
void ZelSideBarNavigationTree::resizeEvent(QResizeEvent *event)
{
    header()->resizeSection(0, event->size().width());
    QTreeWidget::resizeEvent(event);
}
