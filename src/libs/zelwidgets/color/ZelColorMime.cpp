#include "color/ZelColorMime.h"

#include "color/ZelColorConversion.h"

#include <ZelCore/ZelMimeTypes>

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

#include <array>
#include <cstring>

namespace {

constexpr std::size_t rawChannels = 4;
constexpr qsizetype longestColorText = 64;

QString foreignType()
{
    return QStringLiteral("application/x-color");
}

QByteArray written(const zelsg::Color &color)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << color;
    return bytes;
}

std::optional<zelsg::Color> readScene(const QMimeData *data, const QString &type)
{
    if (!data || !data->hasFormat(type))
        return std::nullopt;
    const QByteArray bytes = data->data(type);
    QDataStream stream(bytes);
    zelsg::Color color;
    stream >> color;
    if (stream.status() != QDataStream::Ok)
        return std::nullopt;
    return color;
}

/// Four numbers of 16 bits: red, green, blue and alpha.
QColor fromRaw(const QByteArray &bytes)
{
    std::array<quint16, rawChannels> numbers;
    std::memcpy(numbers.data(), bytes.constData(), sizeof numbers);
    return QColor::fromRgba64(numbers[0], numbers[1], numbers[2]);
}

std::optional<ZelColor> readForeign(const QMimeData *data)
{
    if (!data || !data->hasFormat(foreignType()))
        return std::nullopt;
    const QByteArray bytes = data->data(foreignType());
    QColor color;
    if (bytes.size() == qsizetype(rawChannels * sizeof(quint16)))
        color = fromRaw(bytes);
    else if (bytes.size() <= longestColorText)
        color = data->colorData().value<QColor>();
    if (!color.isValid())
        return std::nullopt;
    return fromQColor(color);
}

} // namespace

void ZelColorMime::encode(const zelsg::Color &color, QMimeData *data)
{
    if (color.isMultiColor())
        data->setData(ZelMimeTypes::MULTI_COLOR, written(color));
    data->setData(ZelMimeTypes::COLOR, written(color.getActive()));
    data->setColorData(toQColor(color.getActive()));
}

bool ZelColorMime::hasColor(const QMimeData *data)
{
    return data && (data->hasFormat(ZelMimeTypes::COLOR) || data->hasFormat(foreignType()));
}

bool ZelColorMime::hasMultiColor(const QMimeData *data)
{
    return data && data->hasFormat(ZelMimeTypes::MULTI_COLOR);
}

std::optional<ZelColor> ZelColorMime::color(const QMimeData *data)
{
    if (const std::optional<zelsg::Color> own = readScene(data, ZelMimeTypes::COLOR))
        return own->getActive();
    return readForeign(data);
}

std::optional<zelsg::Color> ZelColorMime::multiColor(const QMimeData *data)
{
    return readScene(data, ZelMimeTypes::MULTI_COLOR);
}
