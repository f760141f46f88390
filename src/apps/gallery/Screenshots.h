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

/// Chooses the workspace as the user does, and gives the window's picture with an empty log.
QImage grabWorkSpace(DeskWindow *desk, const QString &id);
/// The same for the factory workspaces of the desk; their files are <id>-<theme>.png.
int writeDeskScreenshots(GalleryApplication *application, DeskWindow *desk, const QString &folder,
                         const QStringList &themes);
