#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>
#include <QList>
#include <QRect>
#include <QSize>
#include <QStringList>

/// The version of all streams of workspaces, so that they read the same under every Qt.
constexpr QDataStream::Version workSpaceStreamVersion = QDataStream::Qt_5_6;

/// Reads the fields of a stream that may be damaged.
///
/// No field takes more memory than the bytes that are there allow. The first field that can't be
/// read ends the reading: it and all fields behind it keep what they were.
class WorkSpaceReader
{
public:
    /// The bytes have to outlive the reader.
    explicit WorkSpaceReader(const QByteArray &bytes);
    WorkSpaceReader(const WorkSpaceReader &) = delete;
    WorkSpaceReader &operator=(const WorkSpaceReader &) = delete;

    bool isOk() const { return stream_.status() == QDataStream::Ok; }
    bool atEnd() const { return stream_.atEnd(); }

    void read(bool &value);
    void read(qint16 &value);
    void read(qint32 &value);
    void read(double &value);
    void read(QSize &value);
    /// A rectangle whose coordinates no desktop can have is read as an empty one.
    void read(QRect &value);
    void read(QString &value);
    void read(QByteArray &value);
    template <typename Item>
    void read(QList<Item> &list);

private:
    template <typename Value>
    void readPlain(Value &value);
    template <typename Text>
    void readText(Text &text);
    /// The count at the head of a list, 0 if there can't be that many items.
    quint32 readCount(qint64 smallestItem);
    void fail() { stream_.setStatus(QDataStream::ReadCorruptData); }

    QBuffer buffer_;
    QDataStream stream_;
};

template <typename Item>
void WorkSpaceReader::read(QList<Item> &list)
{
    // Texts and byte arrays start with a count of four bytes; all others have their own size.
    constexpr bool hasCount = std::is_same_v<Item, QString> || std::is_same_v<Item, QByteArray>;
    const quint32 count = readCount(hasCount ? 4 : qint64(sizeof(Item)));
    QList<Item> found;
    found.reserve(count);
    for (quint32 i = 0; i < count && isOk(); ++i) {
        Item item{};
        read(item);
        found.append(item);
    }
    if (isOk())
        list = found;
}
