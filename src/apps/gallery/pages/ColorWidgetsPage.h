#pragma once

#include "GalleryPage.h"

class QGridLayout;
class ZelColor;
class ZelColorWidget;

/// Small colour fields in all their forms, the old-and-new pair, and colours from the screen.
class ColorWidgetsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColorWidgetsPage(QWidget *parent = nullptr);

private:
    void addFields();
    void addViewer();
    void addDropper();
    /// A caption with its field behind it, whose signals are logged.
    void addRow(QGridLayout *grid, const QString &text, ZelColorWidget *field);
    void pick(ZelColorWidget *field);
    void logColor(const QString &signal, const ZelColor &color);
};
