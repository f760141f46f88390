#pragma once

#include "GalleryPage.h"

class ZelShortcutEditorWidget;

/// The editor on the shortcuts of the gallery and of the library.
class ShortcutsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ShortcutsPage(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    ZelShortcutEditorWidget *editor_;
};
