#include "GalleryApplication.h"
#include "GalleryOptions.h"
#include "GalleryWindow.h"
#include "PageCatalog.h"
#include "Screenshots.h"
#include "desk/DeskStart.h"
#include "desk/DeskWindow.h"
#include "desk/WorkspaceBundles.h"
#include "viewport/Viewport.h"

#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTemporaryDir>
#include <QTimer>

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

/// Tells when a widget is painted for the first time.
class StartWatch : public QObject
{
public:
    StartWatch(const QElapsedTimer &clock, QObject *parent)
        : QObject(parent)
        , clock_(clock)
    {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            std::printf("first paint after %lld ms\n", static_cast<long long>(clock_.elapsed()));
        }
        return false;
    }

private:
    QElapsedTimer clock_;
};

int takePictures(GalleryApplication *application, const GalleryOptions &options)
{
    QStringList themes(options.theme);
    if (options.theme.isEmpty())
        themes = QStringList{QStringLiteral("Dark"), QStringLiteral("Light")};
    int result = 0;
    {
        GalleryWindow window(application);
        result = writeScreenshots(application, &window, options.screenshotFolder, themes);
    }
    if (result != 0)
        return result;
    DeskWindow desk(application);
    return writeDeskScreenshots(application, &desk, options.screenshotFolder, themes);
}

int writeBundles(GalleryApplication *application, const QString &folder)
{
    DeskWindow desk(application);
    desk.show();
    return WorkspaceBundles::write(&desk, folder) ? 0 : 1;
}

int runPage(GalleryApplication *application, int page)
{
    GalleryWindow window(application);
    window.showPage(page);
    window.show();
    return QApplication::exec();
}

int runDesk(GalleryApplication *application, const QElapsedTimer *clock)
{
    DeskWindow desk(application);
    if (clock)
        desk.viewport()->installEventFilter(new StartWatch(*clock, &desk));
    desk.show();
    DeskStart::restore(&desk);
    if (clock) {
        QTimer::singleShot(0, &desk, [clock] {
            std::printf("ready after %lld ms\n", static_cast<long long>(clock->elapsed()));
            QCoreApplication::quit();
        });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QElapsedTimer clock;
    clock.start();
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
    const bool isTool = !options.screenshotFolder.isEmpty() || !options.bundleFolder.isEmpty();
    if (options.settingsFile.isEmpty() && isTool)
        ZelSettings::setStorePath(noSettings.filePath(QStringLiteral("settings.json")));

    GalleryApplication application(options.theme);
    if (!options.screenshotFolder.isEmpty())
        return takePictures(&application, options);
    if (!options.bundleFolder.isEmpty())
        return writeBundles(&application, options.bundleFolder);
    const int result = options.page.isEmpty()
                           ? runDesk(&application, options.timeStart ? &clock : nullptr)
                           : runPage(&application, pageIndex(options.page));
    ZelSettings::save();
    return result;
}
