#pragma once

#include "GalleryPage.h"

class LiveIconView;
class QGridLayout;
class QIcon;
class QLabel;
class QPlainTextEdit;

/// How themed icons are made: families, redirects, pinned icons, and a document to play with.
class IconsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit IconsPage(QWidget *parent = nullptr);

    void lookChanged() override;

private:
    void addFamilies();
    void addPinned();
    void addPlainSvg();
    void addLiveDocument();
    QGridLayout *addIconTable(QVBoxLayout *section);
    void addIconRow(QGridLayout *table, const QString &title, const QIcon &icon);

    LiveIconView *view_ = nullptr;
};
