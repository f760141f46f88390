#include "ZelShortcutGuiHelper.h"

#include "ZelHotKeyMaterials.h"
#include "ZelShortcutHandler_p.h"
#include "ZelShortcutTreeItem.h"

#include <QHash>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {

using Items = QHash<QString, ZelShortcutTreeItem *>;

constexpr char dropProperty[] = "zelDropWhenApplied";

QString firstPart(const QString &id, QChar separator)
{
    return id.left(id.indexOf(separator));
}

/// Null for an unknown parent.
ZelShortcutTreeItem *addCategory(QTreeWidget *tree, const Items &items, const QString &prefix,
                                 const QString &text)
{
    const qsizetype mark = prefix.lastIndexOf(u'#');
    if (mark < 0)
        return new ZelShortcutTreeItem(tree, prefix, text);
    ZelShortcutTreeItem *parent = items.value(prefix.left(mark));
    return parent ? new ZelShortcutTreeItem(parent, prefix, text) : nullptr;
}

Items addCategories(QTreeWidget *tree)
{
    Items items;
    for (const auto &[prefix, text] : ZelShortcutHandlerPrivate::global().categories) {
        if (ZelShortcutTreeItem *item = addCategory(tree, items, prefix, text))
            items.insert(prefix, item);
    }
    return items;
}

ZelShortcutTreeItem *categoryOf(const Items &items, const QString &id)
{
    const qsizetype dot = id.lastIndexOf(u'.');
    if (dot < 0)
        return nullptr;
    ZelShortcutTreeItem *category = items.value(id.left(dot));
    return category ? category : items.value(firstPart(id, u'.'));
}

template <typename Visit>
void visitShortcuts(QTreeWidget *tree, Visit &&visit)
{
    for (QTreeWidgetItemIterator it(tree); *it; ++it) {
        auto *item = dynamic_cast<ZelShortcutTreeItem *>(*it);
        if (item && item->isShortcutItem())
            visit(*item);
    }
}

} // namespace

void ZelShortcutGuiHelper::buildTree(QTreeWidget *tree)
{
    using Item = ZelShortcutTreeItem;
    tree->clear();
    dropWhenApplied(tree, {});
    const Items items = addCategories(tree);
    const ShortcutEntries &entries = ZelShortcutHandler::instance()->d_->entries;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        Item *category = categoryOf(items, entry.key());
        if (!category)
            continue;
        auto *item = new Item(category, entry.key(), entry->text);
        item->setShortcut(entry->currentKey.text());
        item->setDefaultShortCut(entry->defaultKey.text());
        item->setData(Item::NameColumn, Item::CategoryRole, entry->category);
    }
}

void ZelShortcutGuiHelper::readTree(QTreeWidget *tree, ShortcutEntries &entries)
{
    visitShortcuts(tree, [&entries](const ZelShortcutTreeItem &item) {
        const auto entry = entries.find(item.id());
        if (entry != entries.end()) {
            entry->currentKey = item.shortcutInternalText();
            return;
        }
        ShortcutEntry added;
        added.text = item.text(ZelShortcutTreeItem::NameColumn);
        added.currentKey = item.shortcutInternalText();
        entries.insert(item.id(), added);
    });
}

void ZelShortcutGuiHelper::applyChanges(QTreeWidget *tree)
{
    ZelShortcutHandler *handler = ZelShortcutHandler::instance();
    if (tree) {
        QStringList dropped = tree->property(dropProperty).toStringList();
        visitShortcuts(
            tree, [&dropped](const ZelShortcutTreeItem &item) { dropped.removeAll(item.id()); });
        for (const QString &id : std::as_const(dropped))
            ZelHotKeyMaterials::removeMatHotKey(id);
        dropWhenApplied(tree, {});
        readTree(tree, handler->d_->entries);
    }
    handler->applyCurrentSettingsToShortcuts();
    if (tree)
        handler->storeSettings();
}

void ZelShortcutGuiHelper::dropWhenApplied(QTreeWidget *tree, const QStringList &ids)
{
    tree->setProperty(dropProperty, ids.isEmpty() ? QVariant() : QVariant(ids));
}
