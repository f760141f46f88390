// Part of each executable that uses the icon engines as a dynamic plugin.

#include <QCoreApplication>
#include <QDir>

namespace {

void addPluginFolders()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const QString &path : {QStringLiteral(ZEL_PLUGIN_DIR),
                                folder.absoluteFilePath(QStringLiteral("../lib/qt6/plugins"))}) {
        if (QDir(path + QLatin1String("/iconengines")).exists())
            QCoreApplication::addLibraryPath(QDir::cleanPath(path));
    }
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(addPluginFolders)
