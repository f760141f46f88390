#include "TreePage.h"

#include "MaterialList.h"
#include "SceneModel.h"

#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelTreeItemDelegate>
#include <ZelWidgets/ZelTreeView>

#include <QCheckBox>
#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>

namespace {

constexpr int objects = 5000;
constexpr int materialsShown = 24;
constexpr int materialIcon = 88;
constexpr int treeHeight = 480;

ZelStyleIcon icon(const char *name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/%1.svg").arg(QLatin1String(name)));
}

/// Lock, visibility and, where there is one, the material, from the right.
class SceneDelegate : public ZelTreeItemDelegate
{
public:
    explicit SceneDelegate(QAbstractItemView *view)
        : ZelTreeItemDelegate(view)
    {
        addLockIcon(SceneModel::LockedRole);
        addIcon({icon("visible"), SceneModel::HiddenRole, true, true, icon("hidden"),
                 TreePage::tr("Hidden")});
        addIcon({icon("palette"), SceneModel::HasMaterialRole, false, false, QIcon(),
                 TreePage::tr("Material")});
    }

    QString nameAppendix(QModelIndex const &index) const override
    {
        const int children = index.model()->rowCount(index);
        return children > 0 ? QStringLiteral(" (%1)").arg(children) : QString();
    }
    bool shouldDisplayIconsFor(QModelIndex const &index) const override
    {
        return index.parent().isValid();
    }
    bool iconClicked(std::size_t iconIndex, QModelIndex const &index) override
    {
        constexpr std::array roles{SceneModel::LockedRole, SceneModel::HiddenRole};
        auto *model = const_cast<QAbstractItemModel *>(index.model());
        if (iconIndex < roles.size())
            return model->setData(index, !index.data(roles[iconIndex]).toBool(), roles[iconIndex]);
        return index.data(SceneModel::HasMaterialRole).toBool() &&
               model->setData(index, -1, SceneModel::MaterialRole);
    }
};

} // namespace

TreePage::TreePage(QWidget *parent)
    : GalleryPage(parent)
    , scene_(new SceneModel(objects, this))
    , tree_(new ZelTreeView(this))
{
    QVBoxLayout *section = addSection(
        tr("Scene of %L1 objects").arg(scene_->objectCount()),
        tr("Click the icons of a row to lock, to hide and to take the material away; by keyboard "
           "Alt+Left and Alt+Right choose an icon, Space clicks it. Drag objects into groups, and "
           "materials onto objects: with more than %1 rows selected all of them get it.")
            .arg(scene_->rowCount()));
    auto *toSelection = new QCheckBox(tr("&Drops go to the selection"), this);
    connect(toSelection, &QCheckBox::toggled, tree_, &ZelTreeView::setExtendDropToSelection);
    toSelection->setChecked(true);
    section->addWidget(toSelection);
    setUpTree();
    answerRequests();
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(tree_, 3);
    row->addWidget(materials(), 2);
    section->addLayout(row);
}

void TreePage::setUpTree()
{
    tree_->setAccessibleName(tr("Scene"));
    tree_->setModel(scene_);
    tree_->setItemDelegate(new SceneDelegate(tree_));
    tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree_->setEditTriggers(QAbstractItemView::EditKeyPressed);
    tree_->setRepaintOnMouseMove(true);
    tree_->setSizeConstraintText(QStringLiteral("Furniture, a group and an object in it"));
    tree_->setMinimumHeight(treeHeight);
    tree_->expand(scene_->index(0, 0));
    tree_->expand(scene_->index(0, 0, scene_->index(0, 0)));
    watch(tree_, &ZelTreeView::beginDropSelection, QStringLiteral("beginDropSelection"));
    watch(tree_, &ZelTreeView::endDropSelection, QStringLiteral("endDropSelection"));
    watch(tree_, &ZelTreeView::dragEnter, QStringLiteral("dragEnter"));
    watch(tree_, &ZelTreeView::dragLeave, QStringLiteral("dragLeave"));
}

void TreePage::answerRequests()
{
    connect(tree_, &ZelTreeView::copyRequest, this, [this] {
        const QModelIndexList selected = tree_->selectionModel()->selectedIndexes();
        const std::unique_ptr<QMimeData> data(scene_->mimeData(selected));
        if (!data)
            return;
        QGuiApplication::clipboard()->setText(data->text());
        log(tr("%1 objects copied").arg(selected.size()));
    });
    connect(tree_, &ZelTreeView::toolTipRequested, tree_, [this](const QModelIndex &index) {
        QToolTip::showText(QCursor::pos(),
                           index.data().toString() + u'\n' +
                               index.data(Qt::AccessibleDescriptionRole).toString(),
                           tree_);
    });
    connect(tree_, &ZelTreeView::toolTipHideRequest, tree_, &QToolTip::hideText);
    connect(scene_, &SceneModel::rowsMoved, this,
            [this](const QModelIndex &, int, int, const QModelIndex &group) {
                log(tr("An object moved into %1").arg(group.data().toString()));
            });
}

QWidget *TreePage::materials()
{
    auto *list = new MaterialList(tr("Materials"), this);
    QList<int> numbers(materialsShown);
    std::iota(numbers.begin(), numbers.end(), 0);
    list->setIconSize(QSize(materialIcon, materialIcon));
    list->addMaterials(numbers);
    connect(list, &MaterialList::said, this, &TreePage::log);
    return list;
}
