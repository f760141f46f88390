#pragma once

#include <QObject>

class DeskWindow;
class GalleryApplication;
class QAction;
class QMenu;

/// The menu bar of the desk.
class DeskMenus : public QObject
{
    Q_OBJECT

public:
    DeskMenus(DeskWindow *window, GalleryApplication *application);

private:
    void addFile();
    void addView();
    void addIconSizes(QMenu *menu);
    void addPages();
    void addTheme();
    void addWindow();
    void stepPage(int step);

    DeskWindow *window_;
    GalleryApplication *application_;
};
