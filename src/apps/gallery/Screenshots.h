#pragma once

#include <QString>
#include <QStringList>

class DeskWindow;
class GalleryApplication;
class GalleryWindow;
class QImage;

/// Shows the page in a window so high that the whole page is seen, and gives the window's picture.
QImage grabPage(GalleryWindow *window, int index);
/// Writes a picture of every page in each of the themes into the folder, named page-theme.png, and
/// gives the process's exit code: 0, or 1 with a message if a picture can't be written.
int writeScreenshots(GalleryApplication *application, GalleryWindow *window, const QString &folder,
                     const QStringList &themes);

/// Chooses the workspace as the user does, in a window of the size of the pictures.
void chooseWorkSpace(DeskWindow *desk, const QString &id);
/// The window's picture with an empty log.
QImage grabDesk(DeskWindow *desk);
/// Writes pictures of the factory workspaces likewise; their files are <id>-<theme>.png.
int writeDeskScreenshots(GalleryApplication *application, DeskWindow *desk, const QString &folder,
                         const QStringList &themes);
