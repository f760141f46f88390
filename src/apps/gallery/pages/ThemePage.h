#pragma once

#include "GalleryPage.h"

class QTableWidget;

/// The palette with its values in every theme, the contrast of each pair of text and background,
/// and every icon of the application in all modes and states.
class ThemePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ThemePage(QWidget *parent = nullptr);

private:
    void addPalette();
    void addContrast();
    void addIcons();
    QTableWidget *addTable(QVBoxLayout *section, const QStringList &columns,
                           const QString &accessibleName);
};
