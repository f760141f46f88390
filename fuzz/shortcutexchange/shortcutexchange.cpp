// Whatever is offered as a document of shortcuts: an import that waits for its editor leaves the
// registry as it was, and an import at once gives a registry whose export
// gives the same ids elsewhere.

#include "quiet.h"

#include <ZelWidgets/ViewCtrl>
#include <ZelWidgets/ZelShortcutHandler>

#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <cstdint>

namespace {

/// The application that widgets need, with a store of its own.
void prepare()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(count, arguments);
    static const QTemporaryDir folder;
    ZelSettings::setStorePath(folder.filePath(QStringLiteral("settings.json")));
}

ViewCtrl::Settings &view()
{
    return *ViewCtrl::Settings::instance();
}

QStringList idsOf(const QString &document)
{
    QStringList ids;
    const QJsonArray array = QJsonDocument::fromJson(document.toUtf8()).array();
    for (const QJsonValue &value : array)
        ids += value[QLatin1String("Id")].toString();
    return ids;
}

/// The registry of an application that just came up.
ZelShortcutHandler &freshRegistry()
{
    ZelShortcutHandler::destroy();
    ZelShortcutHandler::prepareInstance();
    ZelShortcutHandler::instance()->restoreSettings();
    view().setViewMode(ViewCtrl::ViewMode::Mode0);
    return *ZelShortcutHandler::instance();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    prepare();
    catchMessages();
    const QString text = textOf(data, size);
    ZelShortcutHandler &registry = freshRegistry();
    const QString before = registry.exportShortcuts(nullptr);

    QTreeWidget editor;
    registry.importShortcuts(text, &editor);
    view().setViewMode(ViewCtrl::ViewMode::Mode0);
    require(registry.exportShortcuts(nullptr) == before);

    registry.importShortcuts(text, nullptr);
    const QString after = registry.exportShortcuts(nullptr);
    require(freshRegistry().importShortcuts(after, nullptr));
    require(idsOf(ZelShortcutHandler::instance()->exportShortcuts(nullptr)) == idsOf(after));
    return 0;
}
