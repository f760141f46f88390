#include "GalleryShortcuts.h"

#include <ZelWidgets/ZelShortcutHandler>

#include <QCoreApplication>
#include <QKeySequence>

namespace {

struct Row
{
    const char *id;
    const char *text;
    QKeySequence key;
};

} // namespace

void GalleryShortcuts::registerIds()
{
    const Row rows[] = {
        {"gen.aUndo", QT_TRANSLATE_NOOP("GalleryShortcuts", "Undo"), QKeySequence::Undo},
        {"gen.bRedo", QT_TRANSLATE_NOOP("GalleryShortcuts", "Redo"), QKeySequence::Redo},
        {"gen.aCopy", QT_TRANSLATE_NOOP("GalleryShortcuts", "Copy"), QKeySequence::Copy},
        {"gen.aCut", QT_TRANSLATE_NOOP("GalleryShortcuts", "Cut"), QKeySequence::Cut},
        {"gen.aPaste", QT_TRANSLATE_NOOP("GalleryShortcuts", "Paste"), QKeySequence::Paste},
        {"gen.cDelete", QT_TRANSLATE_NOOP("GalleryShortcuts", "Delete"), QKeySequence::Delete},
    };
    for (const Row &row : rows) {
        ZelShortcutHandler::instance()->registerKeyShortcut(
            QLatin1String(row.id), QCoreApplication::translate("GalleryShortcuts", row.text),
            row.key);
    }
}
