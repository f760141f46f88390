#include "color/ZelSwatchStream.h"

#include <QDataStream>
#include <QIODevice>
#include <QString>

#include <cmath>

namespace {

constexpr qint32 header = 50;
constexpr qint32 namelessVersion = 1;
constexpr qint32 version = 2;

struct Record
{
    bool isKnown = true;
    bool isFinite = true;
    ZelColor color;
};

Record readRecord(QDataStream &stream)
{
    Record record;
    qint32 found = 0;
    stream >> found;
    record.isKnown = found == namelessVersion || found == version;
    if (!record.isKnown)
        return record;
    float x = 0;
    float y = 0;
    float z = 0;
    stream >> x >> y >> z;
    record.isFinite = std::isfinite(x) && std::isfinite(y) && std::isfinite(z);
    record.color = ZelColor(ZelColor::Space::XYZ, x, y, z);
    if (found == version) {
        QString name;
        stream >> name;
        record.color.setName(name.toStdString());
    }
    return record;
}

} // namespace

QByteArray ZelSwatchStream::write(const std::vector<ZelColor> &colors)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << header;
    for (const ZelColor &color : colors) {
        const auto [x, y, z] = color.toXYZ();
        stream << version << x << y << z << QString::fromStdString(color.name());
    }
    return data;
}

std::optional<ZelSwatchStream::Content> ZelSwatchStream::read(const QByteArray &data)
{
    QDataStream stream(data);
    qint32 found = 0;
    stream >> found;
    if (stream.status() != QDataStream::Ok)
        return std::nullopt;
    Content content;
    while (!stream.atEnd()) {
        const Record record = readRecord(stream);
        const bool isThere = stream.status() == QDataStream::Ok && record.isFinite;
        content.isWhole = content.isWhole && isThere && record.isKnown;
        if (isThere)
            content.colors.push_back(record.color);
    }
    return content;
}
