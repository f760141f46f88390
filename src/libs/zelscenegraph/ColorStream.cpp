// The stream form: a mark, a version, the list's state, and the sub-colours. Floats are written as
// their bits, so that the stream's own precision doesn't matter.

#include "ColorContent.h"

#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <bit>
#include <cmath>
#include <limits>

namespace {

constexpr quint32 mark = 0x5A734763;
constexpr quint16 version = 1;

void writeFloat(QDataStream &stream, float number)
{
    stream << std::bit_cast<quint32>(number);
}

float readFloat(QDataStream &stream)
{
    quint32 bits = 0;
    stream >> bits;
    return std::bit_cast<float>(bits);
}

void writeName(QDataStream &stream, const std::string &name)
{
    stream << QByteArray::fromStdString(name);
}

/// What isn't UTF-8 is replaced, so that the name can be shown.
std::string readName(QDataStream &stream)
{
    QByteArray bytes;
    stream >> bytes;
    return QString::fromUtf8(bytes).toStdString();
}

void writeColor(QDataStream &stream, const ZelColor &color)
{
    stream << qint32(color.space());
    for (const float component : color.components())
        writeFloat(stream, component);
    writeName(stream, color.name());
}

bool readColor(QDataStream &stream, ZelColor &color)
{
    qint32 space = 0;
    stream >> space;
    std::array<float, 4> components;
    bool finite = true;
    for (float &component : components) {
        component = readFloat(stream);
        finite = finite && std::isfinite(component);
    }
    std::string name = readName(stream);
    if (!finite || space < 0 || space > qint32(ZelColor::Space::Lab))
        return false;
    color = ZelColor(ZelColor::Space(space), components[0], components[1], components[2],
                     components[3]);
    color.setName(std::move(name));
    return true;
}

/// What stands in front of the sub-colours.
struct Header
{
    quint32 mark = ::mark;
    quint16 version = ::version;
    quint8 multi = 0;
    qint32 active = 0;
    quint32 count = 1;

    bool isValid() const
    {
        return mark == ::mark && version == ::version && multi <= 1 && count >= 1 &&
               count <= quint32(std::numeric_limits<qint32>::max()) && (multi || count == 1) &&
               active >= 0 && quint32(active) < count;
    }
};

} // namespace

QDataStream &zelsg::operator<<(QDataStream &stream, const Color &color)
{
    const Color::Content &content = color.content();
    stream << mark << version << quint8(content.multi) << qint32(content.active)
           << quint32(content.parts.size());
    writeName(stream, content.name);
    for (const Color::Content::Part &part : content.parts) {
        writeColor(stream, part.color);
        writeFloat(stream, part.weight);
    }
    return stream;
}

QDataStream &zelsg::operator>>(QDataStream &stream, Color &color)
{
    Header header;
    stream >> header.mark >> header.version >> header.multi >> header.active >> header.count;
    const auto read = std::make_shared<Color::Content>();
    read->name = readName(stream);
    bool valid = header.isValid();
    // The count is only a claim: nothing is made before its data are there.
    read->parts.clear();
    for (quint32 i = 0; i < header.count && valid && stream.status() == QDataStream::Ok; ++i) {
        Color::Content::Part part;
        valid = readColor(stream, part.color);
        part.weight = readFloat(stream);
        valid = valid && std::isfinite(part.weight) && part.weight >= 0.0f;
        read->parts.push_back(std::move(part));
    }
    if (stream.status() != QDataStream::Ok)
        return stream;
    if (!valid) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return stream;
    }
    read->multi = header.multi;
    read->active = header.active;
    if (!read->multi)
        read->name.clear();
    color.content_ = read;
    return stream;
}
