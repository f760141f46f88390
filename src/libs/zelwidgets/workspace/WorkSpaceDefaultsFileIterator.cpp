#include "workspace/WorkSpaceDefaultsFileIterator.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

WorkSpaceDefaultsResourceIterator::WorkSpaceDefaultsResourceIterator()
    : files_(QStringLiteral(":/res/workspaces_bundled_defaults"), QDir::Files)
{}

bool WorkSpaceDefaultsResourceIterator::hasNext()
{
    return files_.hasNext();
}

WorkSpaceDefaultsFileIterator::FileItem WorkSpaceDefaultsResourceIterator::next()
{
    const QString path = files_.next();
    return {files_.fileName(), [path] {
                return contentsOf(path);
            }};
}
