#include "workspace/WorkSpaceReader.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr quint32 nullText = 0xffffffffU;
/// More panels than any interface has; keeps the memory for lists of empty texts small.
constexpr quint32 maximumCount = 65'536;
/// Qt's windows end well before this, and sums of two of them are far from overflowing.
constexpr int farthest = 1 << 24;

bool isOnDesktop(const QRect &rect)
{
    const auto isNear = [](int coordinate) {
        return coordinate >= -farthest && coordinate <= farthest;
    };
    return isNear(rect.left()) && isNear(rect.top()) && isNear(rect.right()) &&
           isNear(rect.bottom());
}

} // namespace

WorkSpaceReader::WorkSpaceReader(const QByteArray &bytes)
{
    buffer_.setData(bytes);
    buffer_.open(QIODevice::ReadOnly);
    stream_.setDevice(&buffer_);
    stream_.setVersion(workSpaceStreamVersion);
}

template <typename Value>
void WorkSpaceReader::readPlain(Value &value)
{
    if (!isOk())
        return;
    Value found{};
    stream_ >> found;
    if (isOk())
        value = found;
}

void WorkSpaceReader::read(bool &value)
{
    readPlain(value);
}

void WorkSpaceReader::read(qint16 &value)
{
    readPlain(value);
}

void WorkSpaceReader::read(qint32 &value)
{
    readPlain(value);
}

void WorkSpaceReader::read(double &value)
{
    readPlain(value);
}

void WorkSpaceReader::read(QSize &value)
{
    readPlain(value);
}

void WorkSpaceReader::read(QRect &value)
{
    QRect found;
    readPlain(found);
    if (isOk())
        value = isOnDesktop(found) ? found : QRect();
}

void WorkSpaceReader::read(QString &value)
{
    readText(value);
}

void WorkSpaceReader::read(QByteArray &value)
{
    readText(value);
}

template <typename Text>
void WorkSpaceReader::readText(Text &text)
{
    if (!isOk())
        return;
    const QByteArray head = buffer_.peek(qint64(sizeof(quint32)));
    if (head.size() == qsizetype(sizeof(quint32))) {
        const auto size = qFromBigEndian<quint32>(head.constData());
        if (size != nullText && size > buffer_.bytesAvailable() - head.size())
            return fail();
    }
    readPlain(text);
}

quint32 WorkSpaceReader::readCount(qint64 smallestItem)
{
    if (!isOk())
        return 0;
    quint32 count = 0;
    stream_ >> count;
    if (count > maximumCount || count > buffer_.bytesAvailable() / smallestItem)
        fail();
    return isOk() ? count : 0;
}
