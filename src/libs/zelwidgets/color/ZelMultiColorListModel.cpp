#include "color/ZelMultiColorListModel.h"

#include "color/ZelColorConversion.h"
#include "color/ZelColorIcons.h"
#include "color/ZelColorMime.h"

#include <QMimeData>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QPixmap>
#include <QScopedValueRollback>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr int ring = 20;
constexpr int margin = 10;
constexpr int largestIcon = 1000;

/// Knows the row that is dragged, so that it moves when it is dropped on its own list.
class SubColorData : public QMimeData
{
public:
    explicit SubColorData(const QModelIndex &index)
        : row(index)
    {}

    QPersistentModelIndex row;
};

QPixmap circle(const QColor &color, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkGray, ring));
    painter.setBrush(color);
    painter.drawEllipse(margin, margin, side - 2 * margin, side - 2 * margin);
    return pixmap;
}

/// Where an element is after one of the list was moved.
int movedIndex(int index, int from, int to)
{
    if (index == from)
        return to;
    if (from < index && index <= to)
        return index - 1;
    if (to <= index && index < from)
        return index + 1;
    return index;
}

} // namespace

/// All sub-colours with their weights.
struct ZelMultiColorListModel::Parts
{
    /// The element goes to another place, those between move up.
    template <typename List>
    static void move(List &list, int from, int to)
    {
        const auto first = list.begin();
        if (from < to)
            std::rotate(first + from, first + from + 1, first + to + 1);
        else
            std::rotate(first + to, first + from, first + from + 1);
    }
    void move(int from, int to)
    {
        move(colors, from, to);
        move(weights, from, to);
    }

    std::vector<ZelColor> colors;
    std::vector<float> weights;
};

ZelMultiColorListModel::ZelMultiColorListModel(QObject *parent)
    : QAbstractListModel(parent)
    , icons_(std::make_unique<ZelColorIcons>())
{}

ZelMultiColorListModel::~ZelMultiColorListModel() = default;

void ZelMultiColorListModel::setColor(const zelsg::Color &color)
{
    beginResetModel();
    color_ = color;
    rows_ = color_.nColors();
    endResetModel();
}

void ZelMultiColorListModel::reload()
{
    if (rows_ != color_.nColors())
        setColor(zelsg::Color(color_));
    else
        Q_EMIT dataChanged(index(0, IconColumn), index(rows_ - 1, NameColumn));
}

void ZelMultiColorListModel::setIconSize(int iconSize)
{
    iconSize_ = std::clamp(iconSize, ring + 1, largestIcon);
    icons_->clear();
    Q_EMIT dataChanged(index(0, IconColumn), index(rows_ - 1, IconColumn), {Qt::DecorationRole});
}

ZelMultiColorListModel::Parts ZelMultiColorListModel::parts() const
{
    Parts parts;
    for (int i = 0; i < color_.nColors(); ++i) {
        parts.colors.push_back(color_.getColor(i));
        parts.weights.push_back(color_.getWeight(i));
    }
    return parts;
}

void ZelMultiColorListModel::setParts(const Parts &parts, int active)
{
    color_.setColors(parts.colors);
    for (int i = 0; i < color_.nColors(); ++i)
        color_.setWeight(parts.weights[std::size_t(i)], i);
    color_.setActiveIndex(active);
}

bool ZelMultiColorListModel::prepare(int row)
{
    if (rows_ != color_.nColors())
        reload();
    return row >= 0 && row < rows_;
}

void ZelMultiColorListModel::appendColor(const ZelColor &color)
{
    prepare(0);
    insert(rows_, color, true);
}

void ZelMultiColorListModel::insertColor(int row, const ZelColor &color)
{
    prepare(0);
    insert(row, color, false);
}

void ZelMultiColorListModel::insert(int row, const ZelColor &color, bool activate)
{
    if (row < 0 || row > rows_)
        return;
    const QScopedValueRollback<bool> editing(isEditing_, true);
    const int active = color_.activeIndex();
    beginInsertRows({}, row, row);
    color_.appendColor(color);
    if (row < rows_) {
        Parts parts = this->parts();
        parts.move(rows_, row);
        setParts(parts, active < row ? active : active + 1);
    }
    if (activate)
        color_.setActiveIndex(row);
    ++rows_;
    endInsertRows();
    Q_EMIT edited();
}

void ZelMultiColorListModel::replaceColor(int row, const ZelColor &color)
{
    if (!prepare(row))
        return;
    const QScopedValueRollback<bool> editing(isEditing_, true);
    color_.setColor(color, row, zelsg::NameOp::Take);
    Q_EMIT dataChanged(index(row, IconColumn), index(row, NameColumn));
    Q_EMIT edited();
}

void ZelMultiColorListModel::moveColor(int from, int to)
{
    if (!prepare(from) || !prepare(to) || from == to)
        return;
    const QScopedValueRollback<bool> editing(isEditing_, true);
    Parts parts = this->parts();
    parts.move(from, to);
    beginMoveRows({}, from, from, {}, from < to ? to + 1 : to);
    setParts(parts, movedIndex(color_.activeIndex(), from, to));
    endMoveRows();
    Q_EMIT edited();
}

void ZelMultiColorListModel::deleteColor(int row)
{
    if (!prepare(row) || rows_ < 2)
        return;
    const QScopedValueRollback<bool> editing(isEditing_, true);
    beginRemoveRows({}, row, row);
    color_.deleteColor(row);
    --rows_;
    endRemoveRows();
    Q_EMIT edited();
}

void ZelMultiColorListModel::setActive(int row)
{
    if (prepare(row))
        color_.setActiveIndex(row);
}

int ZelMultiColorListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int ZelMultiColorListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ZelMultiColorListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (index.column() == IconColumn && role == Qt::DecorationRole)
        return icons_->icon(toDisplayQColor(color_.getColor(index.row())),
                            [this](const QColor &color) { return circle(color, iconSize_); });
    if (index.column() == NameColumn && (role == Qt::DisplayRole || role == Qt::EditRole))
        return QString::fromStdString(color_.getName(index.row()));
    return {};
}

bool ZelMultiColorListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || index.column() != NameColumn ||
        role != Qt::EditRole || !prepare(index.row()))
        return false;
    const std::string name = value.toString().simplified().toStdString();
    if (name == color_.getName(index.row()))
        return true;
    const QScopedValueRollback<bool> editing(isEditing_, true);
    color_.setName(name, index.row());
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    Q_EMIT edited();
    return true;
}

Qt::ItemFlags ZelMultiColorListModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const Qt::ItemFlags flags =
        QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    return index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

QStringList ZelMultiColorListModel::mimeTypes() const
{
    return {QStringLiteral("application/x-color")};
}

QMimeData *ZelMultiColorListModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto data = std::make_unique<SubColorData>(indexes.first());
    ZelColorMime::encode(color_.getColor(indexes.first().row()), data.get());
    return data.release();
}

Qt::DropActions ZelMultiColorListModel::supportedDropActions() const
{
    return Qt::CopyAction;
}

bool ZelMultiColorListModel::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int,
                                             const QModelIndex &) const
{
    return ZelColorMime::hasColor(data);
}

bool ZelMultiColorListModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                          int, const QModelIndex &parent)
{
    if (action == Qt::IgnoreAction || !prepare(0))
        return false;
    const int place = parent.isValid() ? parent.row() : row < 0 || row > rows_ ? rows_ : row;
    const auto *own = dynamic_cast<const SubColorData *>(data);
    if (own && own->row.model() == this) {
        const int from = own->row.row();
        moveColor(from, parent.isValid() || place <= from ? std::min(place, rows_ - 1) : place - 1);
        return true;
    }
    const std::optional<ZelColor> dropped = ZelColorMime::color(data);
    if (!dropped)
        return false;
    if (parent.isValid())
        replaceColor(place, *dropped);
    else
        insertColor(place, *dropped);
    return true;
}
