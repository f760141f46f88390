#include "ZelShortcutRows.h"

#include "ViewCtrl.h"
#include "ZelMouseActionSettings.h"
#include "ZelShortcutHandler.h"
#include "ZelShortcutTreeItem.h"

#include <QCoreApplication>
#include <QTreeWidget>

#include <algorithm>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("ZelShortcutEditorWidget", source);
}

QString categoryOf(const QTreeWidgetItem *item)
{
    QStringList names;
    for (item = item->parent(); item; item = item->parent())
        names.prepend(item->text(ZelShortcutTreeItem::NameColumn));
    return names.join(u' ');
}

/// Shows the items that fit and what they stand under; true if there is any.
template <typename Fits>
bool showFitting(QTreeWidgetItem *item, const Fits &fits)
{
    bool shown = fits(item);
    for (int i = 0; i < item->childCount(); ++i)
        shown = showFitting(item->child(i), fits) || shown;
    if (item->isHidden() == shown)
        item->setHidden(!shown);
    return shown;
}

} // namespace

void ZelShortcutRows::clear()
{
    rows_.clear();
    byItem_.clear();
    byId_.clear();
    byBucket_.clear();
}

void ZelShortcutRows::read(QTreeWidget *tree, bool isApplied)
{
    clear();
    if (isApplied)
        applied_.clear();
    scopes_ = ZelShortcutScopes(*ZelShortcutHandler::instance());
    for (QTreeWidgetItemIterator it(tree); *it; ++it) {
        auto *item = dynamic_cast<ZelShortcutTreeItem *>(*it);
        if (!item || !item->isShortcutItem())
            continue;
        const int row = count();
        rows_.append({item, item->id(), categoryOf(item), {}, {}});
        byItem_.insert(item, row);
        byId_.insert(item->id(), row);
        if (isApplied)
            applied_.insert(item->id(), item->shortcutInternalText());
    }
    for (int row = 0; row < count(); ++row)
        refresh(row);
    for (int row = 0; row < count(); ++row)
        refreshConflict(row);
}

void ZelShortcutRows::updateScopes()
{
    scopes_ = ZelShortcutScopes(*ZelShortcutHandler::instance());
    for (int row = 0; row < count(); ++row)
        refreshConflict(row);
}

int ZelShortcutRows::indexOf(const QTreeWidgetItem *item) const
{
    return byItem_.value(item, -1);
}

int ZelShortcutRows::indexOfId(const QString &id) const
{
    return byId_.value(id, -1);
}

bool ZelShortcutRows::hasUnapplied() const
{
    return rows_.size() != applied_.size() ||
           std::any_of(rows_.begin(), rows_.end(), [](const Row &row) { return !row.isApplied; });
}

/// What a row is bound to once it is applied. A text that is the one of the live gesture stands for
/// it, with the held key that texts don't have.
ZelShortcutBinding ZelShortcutRows::bindingOf(const Row &row)
{
    const QString text = row.item->shortcutInternalText();
    if (row.item->isMouseShortcut()) {
        const auto *action = ZelMouseActionSettings::instance()->findById(row.id);
        if (action && (row.isOfPreset || action->internalShortcutTxt() == text))
            return {{}, action->getShortcut()};
    }
    return ZelShortcutBinding::of(text);
}

/// All of a row but its conflicts.
void ZelShortcutRows::refresh(int index)
{
    using Item = ZelShortcutTreeItem;
    Row &row = rows_[index];
    byBucket_.remove(row.binding.bucket(), index);
    row.isOfPreset = ViewCtrl::Settings::instance()->decidesOn(row.id);
    row.binding = bindingOf(row);
    if (!row.binding.isEmpty())
        byBucket_.insert(row.binding.bucket(), index);
    const QString text = row.item->shortcutInternalText();
    const auto applied = applied_.constFind(row.id);
    row.isApplied = applied != applied_.constEnd() && *applied == text;
    row.shown.key = row.binding.key;
    row.shown.changed = !row.isApplied || text != row.item->defaultShortcutInternalText();
    row.shown.words = (row.category + u' ' + row.item->text(Item::NameColumn) + u' ' +
                       row.item->text(Item::KeyColumn) + u' ' + row.id)
                          .toLower();
}

void ZelShortcutRows::refreshConflict(int index)
{
    Row &row = rows_[index];
    const QList<int> others = clashing(index, row.binding);
    row.shown.conflict = std::any_of(others.begin(), others.end(),
                                     [&](int other) { return shareScope(row, rows_[other]); });
    showState(row);
}

void ZelShortcutRows::showState(const Row &row) const
{
    QStringList states;
    if (row.shown.conflict)
        states += text("Conflict");
    if (!row.isApplied)
        states += text("Not applied");
    else if (row.shown.changed)
        states += text("Changed");
    if (row.isOfPreset) {
        const QString gesture = row.binding.gesture.publicShortcutText();
        states += text("Preset: %1").arg(gesture.isEmpty() ? text("no gesture") : gesture);
    }
    const QString state = states.join(QStringLiteral(", "));
    if (row.item->text(stateColumn) != state)
        row.item->setText(stateColumn, state);
    QFont font = row.item->font(ZelShortcutTreeItem::KeyColumn);
    if (font.bold() == row.shown.changed)
        return;
    font.setBold(row.shown.changed);
    row.item->setFont(ZelShortcutTreeItem::KeyColumn, font);
}

bool ZelShortcutRows::shareScope(const Row &a, const Row &b) const
{
    if (a.binding.key.isEmpty() && b.item->isMouseShortcut())
        return ZelShortcutHandler::instance()->hasScopeConflictMouse(a.id, b.id);
    return scopes_.share(a.id, b.id);
}

QList<int> ZelShortcutRows::clashing(int index, const ZelShortcutBinding &binding) const
{
    QList<int> rows;
    if (binding.isEmpty())
        return rows;
    const auto [begin, end] = byBucket_.equal_range(binding.bucket());
    for (auto other = begin; other != end; ++other) {
        if (*other != index && rows_[*other].binding.clashesWith(binding))
            rows.append(*other);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ZelShortcutRows::setShortcut(int index, const QString &internalText)
{
    QList<int> touched = clashing(index, rows_[index].binding);
    rows_[index].item->setShortcut(internalText);
    refresh(index);
    touched += clashing(index, rows_[index].binding);
    touched += index;
    for (const int row : std::as_const(touched))
        refreshConflict(row);
}

ZelShortcutVerdict ZelShortcutRows::verdict(int index, const ZelShortcutBinding &binding) const
{
    const auto *handler = ZelShortcutHandler::instance();
    const Row &row = rows_[index];
    QList<ZelShortcutVerdict::Use> uses;
    for (const int other : clashing(index, binding)) {
        const QString id = rows_[other].id;
        const bool shares = binding.key.isEmpty() ? handler->hasScopeConflictMouse(row.id, id)
                                                  : handler->hasScopeConflictKey(row.id, id);
        uses.append({id, rows_[other].item->text(ZelShortcutTreeItem::NameColumn), shares});
    }
    return ZelShortcutVerdict(uses);
}

bool ZelShortcutRows::fits(const ZelShortcutFilter &filter, int row) const
{
    return filter.fits(rows_[row].shown);
}

int ZelShortcutRows::applyFilter(const ZelShortcutFilter &filter) const
{
    if (rows_.isEmpty())
        return 0;
    int shown = 0;
    const bool showsAll = filter.isEmpty();
    QTreeWidget *tree = rows_.first().item->treeWidget();
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        showFitting(tree->topLevelItem(i), [&](const QTreeWidgetItem *item) {
            const int row = indexOf(item);
            const bool isFitting = row >= 0 && fits(filter, row);
            shown += isFitting;
            return isFitting || showsAll;
        });
    }
    return shown;
}
