#include "GalleryApplication.h"
#include "GalleryOptions.h"
#include "GalleryWindow.h"
#include "PageCatalog.h"
#include "Screenshots.h"

#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char **argv)
{
    if (const auto scale = GalleryOptions::scaleFromArguments(argc, argv))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(*scale));
    QApplication qtApplication(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gallery"));
    QApplication::setApplicationVersion(QStringLiteral(ZEL_VERSION));

    const GalleryOptions options = GalleryOptions::fromArguments(QApplication::arguments());
    if (options.listPages) {
        for (const PageEntry &page : pageCatalog())
            std::printf("%-14s %s\n", qPrintable(page.id), qPrintable(page.purpose));
        return 0;
    }
    if (!options.settingsFile.isEmpty())
        ZelSettings::setStorePath(options.settingsFile);
    // Pictures are taken of the look as delivered, and leave the user's settings alone.
    const QTemporaryDir noSettings;
    if (options.settingsFile.isEmpty() && !options.screenshotFolder.isEmpty())
        ZelSettings::setStorePath(noSettings.filePath(QStringLiteral("settings.json")));

    GalleryApplication application(options.theme);
    GalleryWindow window(&application);
    if (!options.page.isEmpty())
        window.showPage(pageIndex(options.page));
    if (!options.screenshotFolder.isEmpty()) {
        QStringList themes(options.theme);
        if (options.theme.isEmpty())
            themes = QStringList{QStringLiteral("Dark"), QStringLiteral("Light")};
        return writeScreenshots(&application, &window, options.screenshotFolder, themes);
    }
    window.show();
    const int result = QApplication::exec();
    ZelSettings::save();
    return result;
}
