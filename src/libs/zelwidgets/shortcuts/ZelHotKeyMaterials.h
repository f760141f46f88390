#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QString>
#include <QStringList>

/// The hot keys that copy a material; their ids are made from the materials' names.
class ZELWIDGETS_EXPORT ZelHotKeyMaterials
{
public:
    ZelHotKeyMaterials() = delete;

    static QString materialShortcutId(QString name);
    /// The name that an id was made from.
    static QString materialName(QString id);
    /// All ids of the registry, sorted.
    static QStringList materialHotKeyIds();
    /// Deletes the live object of the id, of any kind. The id of a material is forgotten, in the
    /// settings too.
    static void removeMatHotKey(QString id);
    /// The live shortcut, its entry and its stored key take the new name. If that has a hot key
    /// already, the old one goes.
    static void renameMatHotKey(const QString &oldName, const QString &newName);

    static bool isMaterialId(const QString &id);
};
