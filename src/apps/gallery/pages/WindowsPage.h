#pragma once

#include "GalleryPage.h"

#include <QDialog>
#include <QPointer>

class PreventSleep;
class QGridLayout;
class QPushButton;

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
    void addServices();
    /// A titled section of controls with what they show beside them.
    QGridLayout *addTrials(const QString &title);
    void addTrial(QGridLayout *grid, const QList<QWidget *> &controls, const QString &text);
    QPushButton *createButton(const QString &text, void (WindowsPage::*action)());
    QDialog *createWindow(const QString &title, const QString &explanation);

    void openCentred();
    void openLost();
    void openAlwaysOnTop();
    void openModal();

    PreventSleep *sleep_;
    QPointer<QDialog> onTop_;
};
