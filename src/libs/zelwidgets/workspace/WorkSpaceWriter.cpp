#include "workspace/WorkSpaceWriter.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// What most arrangements need.
constexpr qsizetype usualSize = 8192;
constexpr qint32 nullSize = -1;

} // namespace

WorkSpaceWriter::WorkSpaceWriter()
    : bytes_(usualSize, Qt::Uninitialized)
{}

char *WorkSpaceWriter::add(qsizetype count)
{
    if (size_ + count > bytes_.size())
        bytes_.resize(std::max(2 * bytes_.size(), size_ + count));
    char *place = bytes_.data() + size_;
    size_ += count;
    return place;
}

template <typename Number>
void WorkSpaceWriter::writeNumber(Number number)
{
    qToBigEndian(number, add(sizeof number));
}

void WorkSpaceWriter::write(bool value)
{
    *add(1) = value ? 1 : 0;
}

void WorkSpaceWriter::write(qint16 value)
{
    writeNumber(value);
}

void WorkSpaceWriter::write(qint32 value)
{
    writeNumber(value);
}

void WorkSpaceWriter::write(double value)
{
    writeNumber(value);
}

void WorkSpaceWriter::write(const QSize &value)
{
    write(qint32(value.width()));
    write(qint32(value.height()));
}

void WorkSpaceWriter::write(const QRect &value)
{
    write(qint32(value.left()));
    write(qint32(value.top()));
    write(qint32(value.right()));
    write(qint32(value.bottom()));
}

void WorkSpaceWriter::write(const QString &value)
{
    if (value.isNull())
        return write(nullSize);
    const qsizetype size = value.size() * qsizetype(sizeof(char16_t));
    write(qint32(size));
    qToBigEndian<quint16>(value.utf16(), value.size(), add(size));
}

void WorkSpaceWriter::write(const QByteArray &value)
{
    if (value.isNull())
        return write(nullSize);
    write(qint32(value.size()));
    std::memcpy(add(value.size()), value.constData(), size_t(value.size()));
}

QByteArray WorkSpaceWriter::take()
{
    bytes_.truncate(std::exchange(size_, 0));
    return std::exchange(bytes_, QByteArray());
}
