// Whatever a stream holds is read as a colour or refused, and what is read is written so that it
// comes back the same.

#include "quiet.h"

#include <ZelSceneGraph/Color>

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include <cstdint>

namespace {

QByteArray written(const zelsg::Color &color)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << color;
    return bytes;
}

bool readFrom(const QByteArray &bytes, zelsg::Color &color)
{
    QDataStream stream(bytes);
    stream >> color;
    return stream.status() == QDataStream::Ok;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    zelsg::Color first;
    if (!readFrom(bytes, first)) {
        require(first == zelsg::Color());
        return 0;
    }
    require(first.nColors() >= 1 && first.activeIndex() < first.nColors());
    const QByteArray once = written(first);
    zelsg::Color second;
    require(readFrom(once, second) && written(second) == once);
    return 0;
}
