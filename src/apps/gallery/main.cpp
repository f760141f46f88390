#include "GalleryApplication.h"
#include "GalleryOptions.h"
#include "GalleryWindow.h"
#include "PageCatalog.h"
#include "Screenshots.h"

#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// Without a display only what shows no window goes on, on the offscreen platform. Qt itself would
/// abort.
bool preparePlatform(int argc, char **argv)
{
#ifdef Q_OS_LINUX
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "-platform")
            return true;
        for (const char *windowless :
             {"--screenshots", "--list-pages", "--help", "-h", "--version", "-v"}) {
            if (argument.startsWith(windowless)) {
                qputenv("QT_QPA_PLATFORM", "offscreen");
                return true;
            }
        }
    }
    std::fprintf(stderr, "gallery: there is no display (DISPLAY and WAYLAND_DISPLAY are not set); "
                         "--screenshots FOLDER works without one\n");
    return false;
#else
    Q_UNUSED(argc)
    Q_UNUSED(argv)
    return true;
#endif
}

} // namespace

int main(int argc, char **argv)
{
    if (!preparePlatform(argc, argv))
        return 1;
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
