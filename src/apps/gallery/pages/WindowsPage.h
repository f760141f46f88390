#pragma once

#include "GalleryPage.h"

class PreventSleep;
class QPushButton;
class QSpinBox;

/// The services that windows and widgets share: placement, modal dialogs, tool tips, spin boxes,
/// hover, sizes in common, key filters, cursors, keep-awake.
class WindowsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit WindowsPage(QWidget *parent = nullptr);

private:
    void addPlacement();
    void addModality();
    void addCorrections();
    void addSizes();
    void addKeys();
    void addSleep();
    QPushButton *addButton(class QBoxLayout *row, const QString &text,
                           void (WindowsPage::*action)());
    QWidget *createWindow(const QString &title);

    void openCentred();
    void openHalfOutside();
    void openAlwaysOnTop();
    void openModal();

    PreventSleep *sleep_;
};
