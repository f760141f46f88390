#include "ZelHotKeyMaterials.h"

#include "ZelShortcut.h"
#include "ZelShortcutHandler_p.h"

#include <ZelCore/ZelSettings>

namespace {

constexpr QLatin1String prefix("matXcopy");

/// Moves the stored key of an id to another id.
void moveStoredKey(const QString &from, const QString &to)
{
    ZelSettings store(ZelShortcutKeys::group());
    const QString oldKey = ZelShortcutKeys::encoded(from);
    if (!store.hasKey(oldKey))
        return;
    store.setValue(ZelShortcutKeys::encoded(to), store.value(oldKey));
    store.removeKey(oldKey);
}

} // namespace

bool ZelHotKeyMaterials::isMaterialId(const QString &id)
{
    return id.startsWith(prefix);
}

QString ZelHotKeyMaterials::materialShortcutId(QString name)
{
    return prefix + u'.' + QLatin1String(name.toUtf8().toHex());
}

QString ZelHotKeyMaterials::materialName(QString id)
{
    return QString::fromUtf8(QByteArray::fromHex(id.mid(prefix.size() + 1).toLatin1()));
}

QStringList ZelHotKeyMaterials::materialHotKeyIds()
{
    QStringList ids;
    const ShortcutEntries &entries = ZelShortcutHandler::instance()->d_->entries;
    for (auto entry = entries.lowerBound(prefix);
         entry != entries.constEnd() && isMaterialId(entry.key()); ++entry)
        ids.append(entry.key());
    return ids;
}

void ZelHotKeyMaterials::removeMatHotKey(QString id)
{
    ZelShortcutHandler *handler = ZelShortcutHandler::instance();
    delete handler->findShortcut(id);
    if (!isMaterialId(id))
        return;
    handler->d_->entries.remove(id);
    ZelSettings(ZelShortcutKeys::group()).removeKey(ZelShortcutKeys::encoded(id));
}

void ZelHotKeyMaterials::renameMatHotKey(const QString &oldName, const QString &newName)
{
    const QString oldId = materialShortcutId(oldName);
    const QString newId = materialShortcutId(newName);
    ZelShortcutHandler *handler = ZelShortcutHandler::instance();
    auto *shortcut = qobject_cast<ZelShortcut *>(handler->findShortcut(oldId));
    if (!shortcut || oldId == newId)
        return;
    shortcut->setText(newName);
    shortcut->hardChangeId(newId);
    ShortcutEntries &entries = handler->d_->entries;
    if (entries.contains(newId)) {
        removeMatHotKey(oldId);
        return;
    }
    ShortcutEntry entry = entries.take(oldId);
    entry.text = newName;
    entries.insert(newId, entry);
    moveStoredKey(oldId, newId);
}
