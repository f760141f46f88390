#pragma once

#include <QAbstractItemModel>

#include <memory>

/// The objects of a scene: layers, groups and objects, which are locked or hidden and carry a
/// material. Groups take dragged objects, objects and groups take materials.
class SceneModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role { LockedRole = Qt::UserRole + 1, HiddenRole, MaterialRole, HasMaterialRole };

    /// Of about so many objects.
    explicit SceneModel(int objects, QObject *parent = nullptr);
    ~SceneModel() override;

    static QString mimeType();
    int objectCount() const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    Qt::DropActions supportedDropActions() const override;

private:
    struct Node;

    Node *nodeOf(const QModelIndex &index) const;
    QModelIndex indexOf(const Node *node) const;
    Node *add(Node *parent, const QString &name, bool isGroup);
    bool takes(const Node *group, const Node *object) const;
    bool moveInto(Node *group, Node *object);
    bool moveObjects(const QByteArray &ids, Node *group);

    std::unique_ptr<Node> root_;
    QList<Node *> nodes_;
};
