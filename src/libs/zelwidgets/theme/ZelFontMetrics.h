#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QFontMetrics>

class QPaintDevice;
class QWidget;

/// Font metrics in the units that widget sizes are given in, and the application's font size.
class ZELWIDGETS_EXPORT ZelFontMetrics : public QFontMetrics
{
public:
    /// What getHeight() measures.
    enum HeightType : int {
        FontHeight = 0,  ///< height() of the font
        EditorHeight = 1 ///< editorHeight(), a line edit with its frame
    };

    /// Metrics of the widget's font on the widget; of the application font without a widget.
    explicit ZelFontMetrics(const QWidget *widget);
    /// Metrics of a font on a device; without a device, as QFontMetrics(font).
    ZelFontMetrics(const QFont &font, const QPaintDevice *device);

    /// Height by type; -1 for an unknown type.
    int getHeight(HeightType type) const;
    /// The usual height of a one-line editor in this font.
    int editorHeight() const;
    /// Width of an "M".
    int widthM() const;

    /// The font size that the user chose, in points; -1 if none was chosen. Read once from the
    /// settings (group "ui", key "FontSize") and then remembered for the process.
    static int getZelmoraFontSizeSetting();
    /// Remembers and stores the choice. ZelStyleSheets::updateColorTheme(true) makes it visible.
    static void setZelmoraFontSizeSetting(int points);
    /// Point size of the application font: at least 8, and 9 if the font has none.
    static int getApplicationFontSize();
    /// The size less 2 if the primary screen has a device pixel ratio of 2 or more.
    static int adjustFontSize(int points);
    /// The size that the style sheet in force gives to a plain widget.
    static int actualZelmoraFontSize();
};
