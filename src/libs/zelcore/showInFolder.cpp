#include "showInFolder.h"

#include "ZelFileBrowser.h"

#include <QFileInfo>

void orv::showInFolder(const QString &path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isNativePath())
        return;
    const QFileInfo shown = file.exists() ? file : QFileInfo(file.absolutePath());
    if (shown.exists())
        ZelFileBrowser::instance().show(shown.absoluteFilePath());
}
