#include "ZelShortcutEditorWidget.h"

#include "ZelMessageBox.h"
#include "ZelShortcutEditorWidgetPrivate.h"
#include "ZelShortcutGuiHelper.h"
#include "ZelShortcutHandler.h"
#include "ZelShortcutRecordPanel.h"
#include "ZelShortcutTreeItem.h"
#include "ZelViewModeChoice.h"

#include <QFile>
#include <QLayout>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

using Item = ZelShortcutTreeItem;

/// No file of shortcuts is as large.
constexpr qint64 mostBytes = qint64(64) << 20;

} // namespace

ZelShortcutEditorWidget::ZelShortcutEditorWidget(QWidget *parent)
    : QWidget(parent)
    , d_(std::make_unique<ZelShortcutEditorWidgetPrivate>(this))
{
    d_->rebuild({});
}

ZelShortcutEditorWidget::~ZelShortcutEditorWidget() = default;

QTreeWidget *ZelShortcutEditorWidget::tree() const
{
    return d_->tree;
}

bool ZelShortcutEditorWidget::hasChanges() const
{
    return d_->rows.hasUnapplied() || d_->modes->isChanged();
}

void ZelShortcutEditorWidget::setViewModeNames(const QStringList &names)
{
    d_->modes->setNames(names);
}

QString ZelShortcutEditorWidget::exportText() const
{
    return ZelShortcutHandler::instance()->exportShortcuts(d_->tree);
}

bool ZelShortcutEditorWidget::importText(const QString &json)
{
    d_->panel->setShortcut({}, {}, true);
    d_->rows.clear();
    bool looksRight = false;
    {
        const QSignalBlocker blocker(d_->tree);
        looksRight = ZelShortcutHandler::instance()->importShortcuts(json, d_->tree);
    }
    d_->modes->touch();
    d_->readTree(false);
    return looksRight;
}

bool ZelShortcutEditorWidget::exportFile(const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(exportText().toUtf8()) >= 0 && file.commit())
        return true;
    ZelMessageBox::warning(this, tr("Export Shortcuts"),
                           tr("Could not write \"%1\": %2").arg(path, file.errorString()));
    return false;
}

bool ZelShortcutEditorWidget::importFile(const QString &path)
{
    QFile file(path);
    QString problem;
    if (!file.open(QIODevice::ReadOnly))
        problem = tr("Could not read \"%1\": %2").arg(path, file.errorString());
    else if (!importText(QString::fromUtf8(file.read(mostBytes))))
        problem = tr("\"%1\" doesn't look like a file of shortcuts.").arg(path);
    if (problem.isEmpty())
        return true;
    ZelMessageBox::warning(this, tr("Import Shortcuts"), problem);
    return false;
}

void ZelShortcutEditorWidget::apply()
{
    ZelShortcutGuiHelper::applyChanges(d_->tree);
    d_->modes->store();
    d_->readTree(true);
    Q_EMIT applied();
}

void ZelShortcutEditorWidget::cancel()
{
    reload();
    Q_EMIT cancelled();
}

void ZelShortcutEditorWidget::reload()
{
    d_->modes->restore();
    const int row = d_->currentRow();
    d_->rebuild(row < 0 ? QString() : d_->rows.item(row)->id());
}

void ZelShortcutEditorWidget::resetAll()
{
    d_->setAll([](const Item &item) { return item.defaultShortcutInternalText(); });
}

void ZelShortcutEditorWidget::clearAll()
{
    d_->setAll([](const Item &) { return QString(); });
}

void ZelShortcutEditorWidget::record()
{
    const int row = d_->currentRow();
    if (row < 0)
        return;
    const Item *item = d_->rows.item(row);
    int category = 0;
    if (item->isMouseShortcut(&category)) {
        d_->panel->recordGesture(
            static_cast<ZelMouseAction::Category>(category),
            ZelMouseShortcut::buildFromExportedString(item->shortcutInternalText()));
    } else {
        d_->panel->recordKeys();
    }
    // The panel has taken room from the rows.
    layout()->activate();
    tree()->scrollToItem(tree()->currentItem());
}
