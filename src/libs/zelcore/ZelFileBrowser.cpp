#include "ZelFileBrowser.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

#ifndef Q_OS_WIN
#include "ZelDesktopInhibitor.h"
#include "ZelFileManagerCall.h"
#endif

namespace {

void openFolder(const QString &path)
{
    // Platforms without a window system can open nothing, and would say so in the log.
    const QString platform = QGuiApplication::platformName();
    if (platform.isEmpty() || platform == QLatin1String("offscreen") ||
        platform == QLatin1String("minimal"))
        return;
    const QFileInfo file(path);
    QDesktopServices::openUrl(QUrl::fromLocalFile(file.isDir() ? path : file.absolutePath()));
}

class SystemFileBrowser : public ZelFileBrowser
{
public:
    void show(const QString &path) override
    {
#ifndef Q_OS_WIN
        if (ZelDesktopInhibitor::hasSessionBus()) {
            ZelFileManagerCall::showItem(QDBusConnection::sessionBus(), path, openFolder,
                                         QCoreApplication::instance());
            return;
        }
#endif
        openFolder(path);
    }
};

std::unique_ptr<ZelFileBrowser> &current()
{
    static std::unique_ptr<ZelFileBrowser> browser;
    return browser;
}

} // namespace

ZelFileBrowser::~ZelFileBrowser() = default;

ZelFileBrowser &ZelFileBrowser::instance()
{
    if (!current())
        current() = std::make_unique<SystemFileBrowser>();
    return *current();
}

void ZelFileBrowser::setInstance(std::unique_ptr<ZelFileBrowser> browser)
{
    current() = std::move(browser);
}
