#include "Screenshots.h"

#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "LogPanel.h"
#include "PageCatalog.h"
#include "desk/DeskRibbon.h"
#include "desk/DeskWindow.h"
#include "viewport/Viewport.h"

#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelMessageBox>

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QPixmap>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int pictureWidth = 1280;
constexpr int leastHeight = 800;
constexpr int mostHeight = 6000;
constexpr QSize deskSize(1600, 1000);
/// Little compression: what is best takes longer than to paint the pictures.
constexpr int pngQuality = 80;

void settle()
{
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

int heightOfPage(const GalleryPage *page)
{
    return page->hasHeightForWidth() ? page->heightForWidth(page->width())
                                     : page->sizeHint().height();
}

} // namespace

QImage grabPage(GalleryWindow *window, int index)
{
    window->showPage(index);
    window->resize(pictureWidth, leastHeight);
    settle();
    const GalleryPage *page = window->page(index);
    const int rest = window->height() - page->parentWidget()->height();
    window->resize(pictureWidth, std::clamp(heightOfPage(page) + rest, leastHeight, mostHeight));
    settle();
    // Without a window manager the focus comes and goes by chance.
    if (QWidget *focus = window->focusWidget())
        focus->clearFocus();
    settle();
    return window->grab().toImage();
}

int writeScreenshots(GalleryApplication *application, GalleryWindow *window, const QString &folder,
                     const QStringList &themes)
{
    // Pages may show what others bring along, such as their shortcuts.
    window->createAllPages();
    if (!QDir().mkpath(folder)) {
        qCritical() << "Can't make the folder" << folder;
        return 1;
    }
    QApplication::setCursorFlashTime(0);
    window->setLogVisible(false);
    window->show();
    for (const QString &theme : themes) {
        application->setTheme(theme);
        for (int i = 0; i < pageCatalog().size(); ++i) {
            const QString name = pageCatalog()[i].id + u'-' + theme.toLower();
            const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
            if (!grabPage(window, i).save(file, "PNG", pngQuality)) {
                qCritical() << "Can't write the picture" << file;
                return 1;
            }
            std::printf("%s\n", qPrintable(file));
        }
    }
    return 0;
}

void chooseWorkSpace(DeskWindow *desk, const QString &id)
{
    // Nobody is there to confirm that a workspace is to be as it was.
    const ZelMessageBox::Mode mode = ZelMessageBox::getMode();
    ZelMessageBox::setMode(ZelMessageBox::NoGui);
    desk->resize(deskSize);
    QMenu *menu = desk->ribbon()->workSpaces()->menu();
    Q_EMIT menu->aboutToShow();
    for (QAction *action : menu->actions()) {
        if (action->data().toString() == id) {
            action->trigger();
            break;
        }
    }
    ZelMessageBox::setMode(mode);
    settle();
}

QImage grabDesk(DeskWindow *desk)
{
    settle();
    desk->viewport()->takePicture();
    settle();
    desk->log()->clear();
    if (QWidget *focus = desk->focusWidget())
        focus->clearFocus();
    settle();
    return desk->grab().toImage();
}

int writeDeskScreenshots(GalleryApplication *application, DeskWindow *desk, const QString &folder,
                         const QStringList &themes)
{
    desk->show();
    for (const QString &theme : themes) {
        application->setTheme(theme);
        for (const DefaultWorkSpaceInfo &workSpace : WorkSpaceHandler::getDefaultWorkSpaces()) {
            const QString name = workSpace.id + u'-' + theme.toLower() + QStringLiteral(".png");
            const QString file = QDir(folder).filePath(name);
            chooseWorkSpace(desk, workSpace.id);
            if (!grabDesk(desk).save(file, "PNG", pngQuality)) {
                qCritical() << "Can't write the picture" << file;
                return 1;
            }
            std::printf("%s\n", qPrintable(file));
        }
    }
    return 0;
}
