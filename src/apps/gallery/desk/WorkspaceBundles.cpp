#include "WorkspaceBundles.h"

#include "DeskArrangement.h"
#include "DeskWindow.h"

#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int majorVersion = 1;

void settle()
{
    for (int round = 0; round < 4; ++round)
        QCoreApplication::processEvents();
}

QJsonObject bundle(DeskWindow *window, int minor)
{
    QJsonObject all;
    for (const QString &id : DeskArrangement::ids(minor)) {
        DeskArrangement::apply(window, id, minor);
        settle();
        const QByteArray data =
            WorkSpaceHandler::getWorkSpaceData(window->library(), window->project());
        all.insert(id, QJsonObject{{QStringLiteral("name"), DeskArrangement::nameOf(id)},
                                   {QStringLiteral("data"), QString::fromLatin1(data.toBase64())}});
    }
    return all;
}

} // namespace

bool WorkspaceBundles::write(DeskWindow *window, const QString &folder)
{
    for (int minor = 0; minor <= DeskArrangement::latestMinorVersion; ++minor) {
        const QByteArray text = QJsonDocument(bundle(window, minor)).toJson();
        const QString name = QStringLiteral("zelmora%1.%2.json").arg(majorVersion).arg(minor);
        QFile file(QDir(folder).filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qCritical() << "Can't write the bundle" << file.fileName();
            return false;
        }
    }
    return true;
}
