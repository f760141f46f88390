#include "SceneModel.h"

#include "MaterialLibrary.h"

#include <ZelWidgets/ZelStyleIcon>

#include <QMimeData>

#include <algorithm>
#include <vector>

namespace {

constexpr int layers = 5;
constexpr int groupSize = 20;
constexpr qsizetype mostBytes = 1 << 20;

} // namespace

struct SceneModel::Node
{
    QString name;
    Node *parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;
    int id = 0;
    bool isGroup = false;
    bool isLocked = false;
    bool isHidden = false;
    /// Of the library, or -1.
    int material = -1;

    int row() const
    {
        const auto &siblings = parent->children;
        const auto found = std::find_if(siblings.begin(), siblings.end(),
                                        [this](const auto &node) { return node.get() == this; });
        return int(found - siblings.begin());
    }
};

SceneModel::SceneModel(int objects, QObject *parent)
    : QAbstractItemModel(parent)
    , root_(std::make_unique<Node>())
{
    const QStringList layerNames{tr("Building"), tr("Furniture"), tr("Plants"), tr("Lights"),
                                 tr("Cameras")};
    const QStringList objectNames{tr("Wall"), tr("Chair"), tr("Tree"), tr("Lamp"), tr("View")};
    const int groups = std::max(1, objects / (layers * groupSize));
    for (int layer = 0; layer < layers; ++layer) {
        Node *ofLayer = add(root_.get(), layerNames[layer], true);
        for (int group = 0; group < groups; ++group) {
            Node *ofGroup = add(ofLayer, tr("Group %1").arg(group + 1), true);
            for (int at = 0; at < groupSize - 1; ++at) {
                Node *object = add(
                    ofGroup,
                    QStringLiteral("%1 %2").arg(objectNames[layer]).arg(group * groupSize + at + 1),
                    false);
                object->isLocked = at % 7 == 3;
                object->isHidden = at % 5 == 4;
                object->material = at % 3 == 0 ? object->id % MaterialLibrary::size : -1;
            }
        }
    }
}

SceneModel::~SceneModel() = default;

SceneModel::Node *SceneModel::add(Node *parent, const QString &name, bool isGroup)
{
    auto node = std::make_unique<Node>();
    node->name = name;
    node->parent = parent;
    node->isGroup = isGroup;
    node->id = int(nodes_.size());
    nodes_ << node.get();
    parent->children.push_back(std::move(node));
    return nodes_.last();
}

QString SceneModel::mimeType()
{
    return QStringLiteral("application/x-gallery-objects");
}

int SceneModel::objectCount() const
{
    return int(nodes_.size());
}

SceneModel::Node *SceneModel::nodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : root_.get();
}

QModelIndex SceneModel::indexOf(const Node *node) const
{
    return node == root_.get() ? QModelIndex() : createIndex(node->row(), 0, node);
}

QModelIndex SceneModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeOf(parent)->children[std::size_t(row)].get());
}

QModelIndex SceneModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(nodeOf(index)->parent) : QModelIndex();
}

int SceneModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(nodeOf(parent)->children.size());
}

int SceneModel::columnCount(const QModelIndex &) const
{
    return 1;
}

Qt::ItemFlags SceneModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const Node *node = nodeOf(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    if (!node->isGroup)
        flags |= Qt::ItemNeverHasChildren;
    if (!node->isLocked && node->parent != root_.get())
        flags |= Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
    return flags;
}

QVariant SceneModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Node *node = nodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return node->name;
    case Qt::DecorationRole: {
        static const ZelStyleIcon folder(QStringLiteral(":/ui/icons/folder.svg"));
        static const ZelStyleIcon object(QStringLiteral(":/ui/icons/widgets.svg"));
        if (node->material >= 0)
            return MaterialLibrary::icon(node->material);
        return QVariant::fromValue<QIcon>(node->isGroup ? folder : object);
    }
    case LockedRole:
        return node->isLocked;
    case HiddenRole:
        return node->isHidden;
    case MaterialRole:
        return node->material;
    case HasMaterialRole:
        return node->material >= 0;
    case Qt::AccessibleDescriptionRole:
        return QStringList{node->isLocked ? tr("locked") : tr("not locked"),
                           node->isHidden ? tr("hidden") : tr("visible"),
                           node->material < 0 ? tr("no material")
                                              : MaterialLibrary::material(node->material).name}
            .join(QStringLiteral(", "));
    default:
        return {};
    }
}

bool SceneModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid())
        return false;
    Node *node = nodeOf(index);
    const bool isMaterial = role == MaterialRole && value.toInt() < MaterialLibrary::size;
    if (role == Qt::EditRole && !value.toString().trimmed().isEmpty())
        node->name = value.toString().trimmed();
    else if (role == LockedRole)
        node->isLocked = value.toBool();
    else if (role == HiddenRole)
        node->isHidden = value.toBool();
    else if (isMaterial && !node->isLocked)
        node->material = std::max(value.toInt(), -1);
    else
        return false;
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant SceneModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("Scene");
    return {};
}

// Drag and drop

QStringList SceneModel::mimeTypes() const
{
    return {mimeType(), MaterialLibrary::mimeType()};
}

Qt::DropActions SceneModel::supportedDropActions() const
{
    return Qt::CopyAction;
}

QMimeData *SceneModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    QStringList ids;
    QStringList names;
    for (const QModelIndex &index : indexes) {
        ids << QString::number(nodeOf(index)->id);
        names << nodeOf(index)->name;
    }
    auto *data = new QMimeData;
    data->setData(mimeType(), ids.join(u',').toLatin1());
    data->setText(names.join(u'\n'));
    return data;
}

bool SceneModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int, int,
                              const QModelIndex &parent)
{
    if (action != Qt::CopyAction || !parent.isValid())
        return false;
    if (data->hasFormat(mimeType()))
        return moveObjects(data->data(mimeType()), nodeOf(parent));
    const QList<int> materials = MaterialLibrary::fromMimeData(data);
    return !materials.isEmpty() && setData(parent, materials.first(), MaterialRole);
}

bool SceneModel::takes(const Node *group, const Node *object) const
{
    if (!group->isGroup || group->isLocked || object->isLocked || object->parent == root_.get() ||
        object->parent == group)
        return false;
    const Node *above = group;
    while (above && above != object)
        above = above->parent;
    return !above;
}

bool SceneModel::moveInto(Node *group, Node *object)
{
    if (!takes(group, object))
        return false;
    Node *from = object->parent;
    const int row = object->row();
    beginMoveRows(indexOf(from), row, row, indexOf(group), int(group->children.size()));
    auto taken = std::move(from->children[std::size_t(row)]);
    from->children.erase(from->children.begin() + row);
    taken->parent = group;
    group->children.push_back(std::move(taken));
    endMoveRows();
    return true;
}

bool SceneModel::moveObjects(const QByteArray &ids, Node *group)
{
    if (ids.size() > mostBytes)
        return false;
    bool isMoved = false;
    for (const QByteArray &text : ids.split(',')) {
        bool isNumber = false;
        const int id = text.toInt(&isNumber);
        if (isNumber && id >= 0 && id < nodes_.size())
            isMoved |= moveInto(group, nodes_[id]);
    }
    return isMoved;
}
