#pragma once

#include <ZelSceneGraph/Color>
#include <ZelWidgets/zelwidgets_export.h>

#include <QAbstractListModel>

#include <memory>

/// The sub-colours of a colour that it shares with its owner: an icon in column 0, the name in
/// column 1. What is edited here is edited in that colour.
class ZELWIDGETS_EXPORT ZelMultiColorListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Column : int { IconColumn, NameColumn, ColumnCount };

    explicit ZelMultiColorListModel(QObject *parent = nullptr);
    ~ZelMultiColorListModel() override;

    /// Shows this colour from now on, by the handle: what is done through the one shows in the
    /// other. An owner that assigns another colour to its variable calls this again.
    void setColor(const zelsg::Color &color);
    const zelsg::Color &color() const { return color_; }
    /// To be called after the colour was changed through another handle.
    void reload();

    /// Side of the icons' pixmap, 200 at first; 21 to 1000.
    int iconSize() const { return iconSize_; }
    void setIconSize(int iconSize);

    /// Edits of the list. Each keeps names, weights and the active sub-colour with their colours,
    /// emits edited(), and does nothing for rows that aren't there.
    /// An appended colour becomes the active one.
    void appendColor(const ZelColor &color);
    void insertColor(int row, const ZelColor &color);
    void replaceColor(int row, const ZelColor &color);
    void moveColor(int from, int to);
    /// The last sub-colour stays.
    void deleteColor(int row);
    /// Makes the sub-colour the active one; silent, as is one that is not there.
    void setActive(int row);
    /// Whether an edit is under way, and rows come and go for that reason.
    bool isEditing() const { return isEditing_; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Sets a name, without blanks around it.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    /// The colour of the first row.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDropActions() const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    /// On a sub-colour: replaces it; between two: comes in there. A sub-colour of this list moves.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

Q_SIGNALS:
    /// The colour was changed through this model.
    void edited();

private:
    struct Parts;
    Parts parts() const;
    void setParts(const Parts &parts, int active);
    /// Catches up with changes through other handles; whether there is such a row.
    bool prepare(int row);
    void insert(int row, const ZelColor &color, bool activate);

    zelsg::Color color_;
    int rows_ = 1;
    int iconSize_ = 200;
    bool isEditing_ = false;
    std::unique_ptr<class ZelColorIcons> icons_;
};
