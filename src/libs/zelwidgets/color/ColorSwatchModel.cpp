#include "color/ColorSwatchModel.h"

#include "ZelStoredValue.h"
#include "color/ZelColorConversion.h"
#include "color/ZelColorIcons.h"
#include "color/ZelColorMime.h"
#include "color/ZelSwatchStream.h"

#include <ZelCore/ZelMimeTypes>
#include <ZelCore/ZelSettings>

#include <QDebug>
#include <QMimeData>
#include <QPixmap>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace {

constexpr QSize iconSize(100, 100);

struct Patch
{
    const char *name;
    QRgb rgb;
};

constexpr std::array<Patch, 24> chart{{
    {"Dark skin", 0x735244}, {"Light skin", 0xc29682},    {"Blue sky", 0x627a9d},
    {"Foliage", 0x576c43},   {"Blue flower", 0x8580b1},   {"Bluish green", 0x67bdaa},
    {"Orange", 0xd67e2c},    {"Purplish blue", 0x505ba6}, {"Moderate red", 0xc15a63},
    {"Purple", 0x5e3c6c},    {"Yellow green", 0x9dbc40},  {"Orange Yellow", 0xe0a32e},
    {"Blue", 0x383d96},      {"Green", 0x469449},         {"Red", 0xaf363c},
    {"Yellow", 0xe7c71f},    {"Magenta", 0xbb5695},       {"Cyan", 0x0885a1},
    {"White", 0xf3f3f2},     {"Neutral 8", 0xc8c8c8},     {"Neutral 6.5", 0xa0a0a0},
    {"Neutral 5", 0x7a7a79}, {"Neutral 3.5", 0x555555},   {"Black", 0x343434},
}};

ZelSettings store()
{
    return ZelSettings(QStringLiteral("colordialog"));
}

QString colorsKey()
{
    return QStringLiteral("swatches");
}

QString unreadKey()
{
    return QStringLiteral("swatches_unread");
}

QString legacyKey()
{
    return QStringLiteral("legacy_color_handled");
}

bool isAnythingStored(const ZelSettings &settings)
{
    const QVariant stored = settings.value(colorsKey());
    return stored.isValid() && !(stored.metaType() == QMetaType::fromType<QByteArray>() &&
                                 stored.toByteArray().isEmpty());
}

/// Others couldn't be stored.
bool isFinite(const ZelColor &color)
{
    const auto [x, y, z] = color.toXYZ();
    return std::isfinite(x) && std::isfinite(y) && std::isfinite(z);
}

QPixmap square(const QColor &color)
{
    QPixmap pixmap(iconSize);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

ColorSwatchModel::ColorSwatchModel(QObject *parent)
    : QAbstractListModel(parent)
    , icons_(std::make_unique<ZelColorIcons>())
{
    if (!load())
        addChart();
}

ColorSwatchModel::~ColorSwatchModel() = default;

bool ColorSwatchModel::load()
{
    ZelSettings settings = store();
    if (!isAnythingStored(settings))
        return false;
    const auto bytes = storedValue(settings, colorsKey(), QByteArray());
    std::optional<ZelSwatchStream::Content> content = ZelSwatchStream::read(bytes);
    isUnread_ = !content || !content->isWhole;
    if (isUnread_)
        qWarning() << "Stored swatches can't be read in full," << bytes.size() << "bytes";
    if (!content)
        return false;
    colors_ = std::move(content->colors);
    // Older lists hold white for an empty place.
    const bool isLegacy = !storedValue(settings, legacyKey(), false);
    settings.setValue(legacyKey(), true);
    if (isLegacy && std::erase(colors_, ZelColor()) > 0) {
        isEdited_ = true;
        save();
    }
    return true;
}

void ColorSwatchModel::addChart()
{
    colors_.reserve(chart.size());
    for (const Patch &patch : chart)
        colors_.push_back(fromQColor(QColor(patch.rgb), QString::fromLatin1(patch.name)));
}

void ColorSwatchModel::save()
{
    ZelSettings settings = store();
    // The chart of a first run doesn't undo what another list stored meanwhile.
    if (!isEdited_ && isAnythingStored(settings))
        return;
    if (isUnread_)
        settings.setValue(unreadKey(), settings.value(colorsKey()));
    settings.setValue(colorsKey(), ZelSwatchStream::write(colors_));
    isUnread_ = false;
    isEdited_ = false;
}

ZelColor ColorSwatchModel::color(int row) const
{
    return row >= 0 && std::size_t(row) < colors_.size() ? colors_[std::size_t(row)] : ZelColor();
}

QString ColorSwatchModel::text(int row) const
{
    const QString name = QString::fromStdString(color(row).name());
    const QString number = toDisplayQColor(color(row)).name();
    return name.isEmpty() ? number : name + QStringLiteral(", ") + number;
}

void ColorSwatchModel::addColor(const ZelColor &color)
{
    addColors({color});
}

void ColorSwatchModel::addColors(std::vector<ZelColor> colors)
{
    if (std::erase_if(colors, std::not_fn(isFinite)) > 0)
        qWarning() << "Swatches that aren't finite colors are left out";
    if (colors.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + int(colors.size()) - 1);
    colors_.insert(colors_.end(), colors.begin(), colors.end());
    isEdited_ = true;
    endInsertRows();
}

void ColorSwatchModel::removeColors(std::vector<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    for (auto row = rows.cbegin(); row != rows.cend();) {
        const int last = *row;
        int first = last;
        while (++row != rows.cend() && *row == first - 1)
            first = *row;
        removeRows(first, last - first + 1);
    }
}

int ColorSwatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(colors_.size());
}

QVariant ColorSwatchModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::DecorationRole)
        return {};
    return icons_->icon(toDisplayQColor(color(index.row())), square);
}

bool ColorSwatchModel::setData(const QModelIndex &index, const QVariant &, int)
{
    Q_EMIT dataChanged(index, index);
    return true;
}

bool ColorSwatchModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || count > rowCount() - row)
        return false;
    beginRemoveRows({}, row, row + count - 1);
    colors_.erase(colors_.begin() + row, colors_.begin() + row + count);
    isEdited_ = true;
    endRemoveRows();
    return true;
}

Qt::ItemFlags ColorSwatchModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsDropEnabled | Qt::ItemIsEnabled |
           Qt::ItemNeverHasChildren;
}

QStringList ColorSwatchModel::mimeTypes() const
{
    return {ZelMimeTypes::COLOR, QStringLiteral("application/x-color")};
}

Qt::DropActions ColorSwatchModel::supportedDropActions() const
{
    return Qt::CopyAction;
}

bool ColorSwatchModel::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int,
                                       const QModelIndex &) const
{
    return ZelColorMime::hasColor(data);
}

bool ColorSwatchModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int, int,
                                    const QModelIndex &)
{
    const std::optional<ZelColor> dropped = ZelColorMime::color(data);
    if (!dropped || action == Qt::IgnoreAction)
        return false;
    addColor(*dropped);
    return true;
}
