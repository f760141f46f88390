#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QAbstractListModel>

#include <memory>
#include <vector>

/// The user's colours, kept in the settings from one run to the next (group "colordialog", key
/// "swatches"). Rows show their colour as it looks on the display; they have no texts.
class ZELWIDGETS_EXPORT ColorSwatchModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Holds the stored colours, or those of a colour-checker chart if none can be read.
    explicit ColorSwatchModel(QObject *parent = nullptr);
    ~ColorSwatchModel() override;

    const std::vector<ZelColor> &colors() const { return colors_; }
    /// White if there is no such row.
    ZelColor color(int row) const;
    /// Name and number of the colour, for people.
    QString text(int row) const;
    /// Appends the colour with its name.
    void addColor(const ZelColor &color);
    /// Colours that aren't finite are left out, with a warning.
    void addColors(std::vector<ZelColor> colors);
    /// Removes these rows; rows that aren't there and doubles don't matter.
    void removeColors(std::vector<int> rows);

    /// Stores the colours, unless nobody edited them and some are stored. Stored data that couldn't
    /// be read in full are kept under the key "swatches_unread", with a warning.
    void save();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Only announces a change.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override;
    /// Adds a dropped colour with its name.
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    bool load();
    void addChart();

    std::vector<ZelColor> colors_;
    bool isEdited_ = false;
    bool isUnread_ = false;
    std::unique_ptr<class ZelColorIcons> icons_;
};
