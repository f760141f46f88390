#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>

class QMimeData;

/// The types of data that the application drags and drops.
class ZELCORE_EXPORT ZelMimeTypes
{
public:
    ZelMimeTypes() = delete;

    /// A colour, and a list of colours. Qt's own "application/x-color" is a third form.
    static const QString COLOR;
    static const QString MULTI_COLOR;
    /// The path of a picture file in UTF-8: for a surface, for the surroundings of the scene and
    /// for what stands behind it.
    static const QString TEXTURE;
    static const QString ENVIRONMENT;
    static const QString BACKPLATE;

    /// The path that the data carries for this kind of picture. Empty if there is no data of that
    /// type, if it isn't UTF-8, holds a zero byte or is longer than any path (64 KiB).
    static QString decodeTexture(const QMimeData *data);
    static QString decodeEnvironment(const QMimeData *data);
    static QString decodeBackplate(const QMimeData *data);
};
