#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

/// Writes the fields of a workspace, in the form in which WorkSpaceReader reads them: that of a
/// data stream of workSpaceStreamVersion, without the cost of a stream.
class WorkSpaceWriter
{
public:
    WorkSpaceWriter();

    void write(bool value);
    void write(qint16 value);
    void write(qint32 value);
    void write(double value);
    void write(const QSize &value);
    void write(const QRect &value);
    void write(const QString &value);
    void write(const QByteArray &value);
    template <typename Item>
    void write(const QList<Item> &list)
    {
        write(qint32(list.size()));
        for (const Item &item : list)
            write(item);
    }

    /// All that was written.
    QByteArray take();

private:
    /// Room for so many bytes, at the end of what was written.
    char *add(qsizetype count);
    template <typename Number>
    void writeNumber(Number number);

    QByteArray bytes_;
    qsizetype size_ = 0;
};
