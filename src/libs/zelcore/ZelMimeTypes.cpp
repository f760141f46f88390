#include "ZelMimeTypes.h"

#include <QMimeData>
#include <QStringDecoder>

namespace {

constexpr qsizetype longestPath = 64 * 1024;

QString decodedPath(const QMimeData *data, const QString &type)
{
    if (!data || !data->hasFormat(type))
        return {};
    const QByteArray bytes = data->data(type);
    if (bytes.size() > longestPath || bytes.contains('\0'))
        return {};
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString path = decoder(bytes);
    return decoder.hasError() ? QString() : path;
}

} // namespace

const QString ZelMimeTypes::COLOR = QStringLiteral("application/x-zelmora-color");
const QString ZelMimeTypes::MULTI_COLOR = QStringLiteral("application/x-zelmora-colors");
const QString ZelMimeTypes::TEXTURE = QStringLiteral("application/x-zelmora-texture");
const QString ZelMimeTypes::ENVIRONMENT = QStringLiteral("application/x-zelmora-environment");
const QString ZelMimeTypes::BACKPLATE = QStringLiteral("application/x-zelmora-backplate");

QString ZelMimeTypes::decodeTexture(const QMimeData *data)
{
    return decodedPath(data, TEXTURE);
}

QString ZelMimeTypes::decodeEnvironment(const QMimeData *data)
{
    return decodedPath(data, ENVIRONMENT);
}

QString ZelMimeTypes::decodeBackplate(const QMimeData *data)
{
    return decodedPath(data, BACKPLATE);
}
