#include "ZelShortcutEditorWidgetPrivate.h"

#include "ZelShortcutEditorWidget.h"
#include "ZelShortcutFilterBar.h"
#include "ZelShortcutGuiHelper.h"
#include "ZelShortcutRecordPanel.h"
#include "ZelShortcutTreeItem.h"
#include "ZelViewModeChoice.h"
#include "theme/ZelPushButton.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

using Item = ZelShortcutTreeItem;

QPushButton *addButton(QHBoxLayout *row, const QString &text, const char *name)
{
    auto *button = new ZelPushButton(text);
    button->setObjectName(QLatin1String(name));
    row->addWidget(button);
    return button;
}

} // namespace

ZelShortcutEditorWidgetPrivate::ZelShortcutEditorWidgetPrivate(ZelShortcutEditorWidget *editor)
    : q(editor)
    , filter(new ZelShortcutFilterBar(editor))
    , tree(createTree())
    , panel(new ZelShortcutRecordPanel(editor))
    , modes(new ZelViewModeChoice(editor))
{
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filter);
    layout->addWidget(tree, 1);
    layout->addWidget(panel);
    layout->addWidget(modes);
    createButtons(layout);
    connectParts();
    q->installEventFilter(this);
    tree->installEventFilter(this);
    fitColumns();
}

ZelShortcutEditorWidgetPrivate::~ZelShortcutEditorWidgetPrivate()
{
    modes->restore();
}

QTreeWidget *ZelShortcutEditorWidgetPrivate::createTree()
{
    auto *made = new QTreeWidget(q);
    made->setObjectName(QStringLiteral("ShortcutTree"));
    made->setAccessibleName(ZelShortcutEditorWidget::tr("Shortcuts"));
    made->setAccessibleDescription(ZelShortcutEditorWidget::tr(
        "Return records a new shortcut, Delete clears the shortcut of the row."));
    made->setHeaderLabels(
        {ZelShortcutEditorWidget::tr("Name"), ZelShortcutEditorWidget::tr("Shortcut"), QString(),
         ZelShortcutEditorWidget::tr("Default"), ZelShortcutEditorWidget::tr("State")});
    made->setColumnHidden(2, true);
    made->setUniformRowHeights(true);
    made->setAlternatingRowColors(true);
    made->setAllColumnsShowFocus(true);
    made->setMinimumHeight(8 * made->fontMetrics().lineSpacing());
    return made;
}

/// Room for common texts in the font of the sheet.
void ZelShortcutEditorWidgetPrivate::fitColumns()
{
    constexpr int nameChars = 38;
    constexpr int keyChars = 27;
    const int charWidth = tree->fontMetrics().averageCharWidth();
    tree->setColumnWidth(Item::NameColumn, nameChars * charWidth);
    for (const int column : {int(Item::KeyColumn), int(Item::DefaultColumn)})
        tree->setColumnWidth(column, keyChars * charWidth);
}

void ZelShortcutEditorWidgetPrivate::createButtons(QVBoxLayout *layout)
{
    using Editor = ZelShortcutEditorWidget;
    auto *row = new QHBoxLayout;
    layout->addLayout(row);
    connect(addButton(row, Editor::tr("&Import..."), "ShortcutImport"), &QPushButton::clicked, this,
            &ZelShortcutEditorWidgetPrivate::importByUser);
    connect(addButton(row, Editor::tr("&Export..."), "ShortcutExport"), &QPushButton::clicked, this,
            &ZelShortcutEditorWidgetPrivate::exportByUser);
    connect(addButton(row, Editor::tr("Reset &All"), "ShortcutResetAll"), &QPushButton::clicked, q,
            &Editor::resetAll);
    connect(addButton(row, Editor::tr("Clear A&ll"), "ShortcutClearAll"), &QPushButton::clicked, q,
            &Editor::clearAll);
    row->addStretch(1);
    connect(addButton(row, Editor::tr("Ca&ncel"), "ShortcutCancel"), &QPushButton::clicked, q,
            &Editor::cancel);
    applyButton = addButton(row, Editor::tr("Appl&y"), "ShortcutApply");
    applyButton->setProperty("rank", QStringLiteral("Primary"));
    connect(applyButton, &QPushButton::clicked, q, &Editor::apply);
}

void ZelShortcutEditorWidgetPrivate::connectParts()
{
    using Private = ZelShortcutEditorWidgetPrivate;
    using Panel = ZelShortcutRecordPanel;
    connect(filter, &ZelShortcutFilterBar::changed, this, &Private::filterRows);
    connect(filter, &ZelShortcutFilterBar::left, this, &Private::goToFirstRow);
    connect(tree, &QTreeWidget::currentItemChanged, this, &Private::updatePanel);
    connect(tree, &QTreeWidget::itemActivated, q, &ZelShortcutEditorWidget::record);
    connect(panel, &Panel::recordRequested, q, &ZelShortcutEditorWidget::record);
    connect(panel, &Panel::resetRequested, this, [this] {
        setShortcut(currentRow(), rows.item(currentRow())->defaultShortcutInternalText());
        tree->setFocus(Qt::OtherFocusReason);
    });
    connect(panel, &Panel::clearRequested, this, [this] {
        setShortcut(currentRow(), {});
        tree->setFocus(Qt::OtherFocusReason);
    });
    connect(panel, &Panel::recorded, this, &Private::judge);
    connect(panel, &Panel::accepted, this, &Private::accept);
    connect(panel, &Panel::cancelled, this, &Private::endRecording);
    connect(modes, &ZelViewModeChoice::chosen, this, [this] { readTree(false); });
}

bool ZelShortcutEditorWidgetPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == tree && event->type() == QEvent::FontChange)
        fitColumns();
    if (watched == q) {
        wasHidden = wasHidden || event->type() == QEvent::Hide;
        // What was registered or has come to life meanwhile is to be seen.
        if (event->type() == QEvent::Show && std::exchange(wasHidden, false))
            q->hasChanges() ? rows.updateScopes() : q->reload();
        return false;
    }
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (currentRow() < 0 || (event->type() != QEvent::KeyPress && !isOverride))
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isOwn = key->key() == Qt::Key_Delete || key->key() == Qt::Key_F2;
    if (key->modifiers() != Qt::NoModifier || !isOwn)
        return false;
    if (isOverride)
        event->accept();
    else if (key->key() == Qt::Key_Delete)
        setShortcut(currentRow(), {});
    else
        q->record();
    return true;
}

void ZelShortcutEditorWidgetPrivate::rebuild(const QString &currentId)
{
    // Items die on the way.
    rows.clear();
    {
        const QSignalBlocker blocker(tree);
        ZelShortcutGuiHelper::buildTree(tree);
    }
    readTree(true);
    const int row = rows.indexOfId(currentId);
    if (row >= 0)
        tree->setCurrentItem(rows.item(row));
}

void ZelShortcutEditorWidgetPrivate::readTree(bool isApplied)
{
    rows.read(tree, isApplied);
    modes->refresh();
    tree->expandAll();
    filterRows();
    updatePanel();
}

void ZelShortcutEditorWidgetPrivate::setShortcut(int row, const QString &text)
{
    if (row < 0)
        return;
    rows.setShortcut(row, text);
    filterRows();
    updatePanel();
}

void ZelShortcutEditorWidgetPrivate::setAll(const std::function<QString(const Item &)> &text)
{
    for (int row = 0; row < rows.count(); ++row)
        rows.item(row)->setShortcut(text(*rows.item(row)));
    readTree(false);
}

void ZelShortcutEditorWidgetPrivate::judge()
{
    if (currentRow() >= 0) {
        panel->setVerdict(
            rows.verdict(currentRow(), ZelShortcutBinding::of(panel->recordedText())));
    }
}

void ZelShortcutEditorWidgetPrivate::accept(bool takesAway)
{
    const int row = currentRow();
    const QString text = panel->recordedText();
    if (row < 0 || text.isEmpty())
        return;
    if (takesAway) {
        const QStringList losers = rows.verdict(row, ZelShortcutBinding::of(text)).losers();
        for (const QString &loser : losers)
            rows.setShortcut(rows.indexOfId(loser), {});
    }
    setShortcut(row, text);
    tree->setFocus(Qt::OtherFocusReason);
}

void ZelShortcutEditorWidgetPrivate::endRecording()
{
    updatePanel();
    tree->setFocus(Qt::OtherFocusReason);
}

void ZelShortcutEditorWidgetPrivate::filterRows()
{
    filter->setCount(rows.applyFilter(filter->filter()), rows.count());
}

void ZelShortcutEditorWidgetPrivate::goToFirstRow()
{
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.fits(filter->filter(), row)) {
            tree->setFocus(Qt::OtherFocusReason);
            tree->setCurrentItem(rows.item(row));
            return;
        }
    }
}

void ZelShortcutEditorWidgetPrivate::updatePanel()
{
    const int row = currentRow();
    if (row < 0) {
        panel->setShortcut({}, {}, true);
    } else {
        const Item *item = rows.item(row);
        panel->setShortcut(item->text(Item::NameColumn), item->shortcutPublicText(),
                           item->shortcutInternalText() == item->defaultShortcutInternalText());
    }
    updateButtons();
}

void ZelShortcutEditorWidgetPrivate::updateButtons()
{
    applyButton->setEnabled(q->hasChanges());
    Q_EMIT q->edited();
}

void ZelShortcutEditorWidgetPrivate::importByUser()
{
    const QString path = QFileDialog::getOpenFileName(
        q, ZelShortcutEditorWidget::tr("Import Shortcuts"), QString(),
        ZelShortcutEditorWidget::tr("Shortcuts (*.json);;All files (*)"));
    if (!path.isEmpty())
        q->importFile(path);
}

void ZelShortcutEditorWidgetPrivate::exportByUser()
{
    const QString path = QFileDialog::getSaveFileName(
        q, ZelShortcutEditorWidget::tr("Export Shortcuts"), QStringLiteral("shortcuts.json"),
        ZelShortcutEditorWidget::tr("Shortcuts (*.json);;All files (*)"));
    if (!path.isEmpty())
        q->exportFile(path);
}
