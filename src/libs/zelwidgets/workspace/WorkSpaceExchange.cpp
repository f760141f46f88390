#include "workspace/WorkSpaceExchange.h"

#include "workspace/WorkSpaceReader.h"

#include <QDataStream>
#include <QIODevice>

namespace {

constexpr qint32 formatVersion = 1;

} // namespace

QByteArray WorkSpaceExchange::write(const QList<DefaultWorkSpaceInfo> &workSpaces)
{
    QStringList ids;
    QStringList names;
    QList<QByteArray> blobs;
    for (const DefaultWorkSpaceInfo &workSpace : workSpaces) {
        ids.append(workSpace.id);
        names.append(workSpace.name);
        blobs.append(workSpace.data);
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(workSpaceStreamVersion);
    stream << formatVersion << ids << names << blobs;
    return bytes.toBase64();
}

std::optional<QList<DefaultWorkSpaceInfo>> WorkSpaceExchange::read(const QByteArray &text)
{
    const QByteArray bytes = QByteArray::fromBase64(text);
    WorkSpaceReader reader(bytes);
    qint32 version = 0;
    QStringList ids;
    QStringList names;
    QList<QByteArray> blobs;
    reader.read(version);
    reader.read(ids);
    reader.read(names);
    reader.read(blobs);
    const bool hasEqualLengths = names.size() == ids.size() && blobs.size() == ids.size();
    if (!reader.isOk() || !hasEqualLengths || ids.size() > maximumCount)
        return std::nullopt;
    QList<DefaultWorkSpaceInfo> workSpaces;
    for (qsizetype i = 0; i < ids.size(); ++i)
        workSpaces.append({ids[i], names[i], blobs[i]});
    return workSpaces;
}
