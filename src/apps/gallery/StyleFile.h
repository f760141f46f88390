#pragma once

#include <QColor>
#include <QList>
#include <QMap>
#include <QString>

/// The gallery's own reading of its style file, for the pages that show it.
namespace StyleFile {

using Palette = QMap<QString, QString>;

/// The palette of each theme, by theme name.
QMap<QString, Palette> palettes();
/// The name of the theme in force, and its palette.
QString themeInForce();
Palette paletteInForce();

/// A text colour and what it is read on, by palette keys, and the contrast that it has to have.
struct ContrastPair
{
    QString foreground;
    QString background;
    double required = 4.5;
};
QList<ContrastPair> contrastPairs();

/// A palette value as a colour; invalid if it is none.
QColor color(const QString &value);
/// Contrast ratio from 1 to 21 by the relative luminances of the two colours.
double contrast(const QColor &first, const QColor &second);

} // namespace StyleFile
