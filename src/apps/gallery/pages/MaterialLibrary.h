#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QList>
#include <QString>

class QMimeData;

/// The procedural materials that the pages with lists show: each number stands for one, which has
/// always the same name, look and picture.
namespace MaterialLibrary {

inline constexpr int size = 10000;

struct Material
{
    QString name;
    QString kind;
    QColor color;
    double roughness;
    double scale;
    uint seed;
};

QStringList kinds();
Material material(int number);

/// A ball of the material on a transparent ground, of so many pixels a side.
QImage picture(int number, int pixels);
/// Painted when it is first shown in a size, then kept among the latest ones.
QIcon icon(int number);
/// How many pictures were painted so far.
int paintedPictures();

/// What is dragged and copied: the numbers, and the names as text.
QMimeData *toMimeData(const QList<int> &numbers);
/// Only numbers of the library, however long or broken the data are.
QList<int> fromMimeData(const QMimeData *data);
QString mimeType();

} // namespace MaterialLibrary
