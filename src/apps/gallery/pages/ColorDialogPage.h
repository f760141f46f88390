#pragma once

#include "GalleryPage.h"

#include <ZelSceneGraph/Color>

#include <QPointer>

class QGridLayout;
class QListWidget;
class ZelColorDialog;
class ZelColorWidget;

/// The colour dialog in all its forms, opened by owners that show and log what they hear; and one
/// that is a part of the page.
class ColorDialogPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColorDialogPage(QWidget *parent = nullptr);

private:
    /// A colour with the dialog that edits it.
    struct Owner
    {
        QString name;
        void (*prepare)(ZelColorDialog *);
        bool isModal = false;
        ZelColorWidget *field = nullptr;
        QPointer<ZelColorDialog> dialog = {};
    };

    void addOwners();
    void addOwner(QGridLayout *grid, const zelsg::Color &color, Owner owner);
    void addInPlace();
    void open(int index);
    void watchDialog(ZelColorDialog *dialog, const QString &name);
    void store(const zelsg::Color &color);

    QList<Owner> owners_;
    QListWidget *library_;
};
