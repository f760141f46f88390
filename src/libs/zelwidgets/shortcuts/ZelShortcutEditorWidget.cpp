#include "ZelShortcutEditorWidget.h"

#include "ZelMessageBox.h"
#include "ZelShortcutFilterBar.h"
#include "ZelShortcutGuiHelper.h"
#include "ZelShortcutHandler.h"
#include "ZelShortcutRecordPanel.h"
#include "ZelShortcutRows.h"
#include "ZelShortcutTreeItem.h"
#include "ZelViewModeChoice.h"
#include "theme/ZelPushButton.h"

#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

using Item = ZelShortcutTreeItem;

/// No file of shortcuts is as large.
constexpr qint64 mostBytes = qint64(64) << 20;

QPushButton *addButton(QHBoxLayout *row, const QString &text, const char *name)
{
    auto *button = new ZelPushButton(text);
    button->setObjectName(QLatin1String(name));
    row->addWidget(button);
    return button;
}

} // namespace

class ZelShortcutEditorWidgetPrivate : public QObject
{
public:
    explicit ZelShortcutEditorWidgetPrivate(ZelShortcutEditorWidget *editor);
    ~ZelShortcutEditorWidgetPrivate() override { modes->restore(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

    QTreeWidget *createTree();
    void createButtons(QVBoxLayout *layout);
    void connectParts();

    int currentRow() const { return rows.indexOf(tree->currentItem()); }
    /// After the rows were made anew.
    void readTree(bool isApplied);
    void rebuild(const QString &currentId);
    void setShortcut(int row, const QString &text);
    void setAll(const std::function<QString(const Item &)> &text);
    void accept(bool takesAway);
    void judge();
    void filterRows();
    void goToFirstRow();
    void updatePanel();
    void updateButtons();
    void endRecording();
    void importByUser();
    void exportByUser();

    ZelShortcutEditorWidget *q;
    ZelShortcutFilterBar *filter;
    QTreeWidget *tree;
    ZelShortcutRecordPanel *panel;
    ZelViewModeChoice *modes;
    QPushButton *applyButton = nullptr;
    ZelShortcutRows rows;
    bool wasHidden = false;
};

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
}

QTreeWidget *ZelShortcutEditorWidgetPrivate::createTree()
{
    constexpr int nameChars = 34;
    constexpr int keyChars = 22;
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
    const int charWidth = made->fontMetrics().averageCharWidth();
    made->setColumnWidth(Item::NameColumn, nameChars * charWidth);
    for (const int column : {int(Item::KeyColumn), int(Item::DefaultColumn)})
        made->setColumnWidth(column, keyChars * charWidth);
    made->setMinimumHeight(8 * made->fontMetrics().lineSpacing());
    return made;
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
    if (watched == q) {
        wasHidden = wasHidden || event->type() == QEvent::Hide;
        // What was registered or has come to life meanwhile is to be seen.
        if (event->type() == QEvent::Show && std::exchange(wasHidden, false))
            q->hasChanges() ? rows.updateScopes() : q->reload();
        return false;
    }
    const int row = event->type() == QEvent::KeyPress ? currentRow() : -1;
    if (row < 0)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->modifiers() == Qt::NoModifier && key->key() == Qt::Key_Delete) {
        setShortcut(row, {});
        return true;
    }
    if (key->modifiers() == Qt::NoModifier && key->key() == Qt::Key_F2) {
        q->record();
        return true;
    }
    return false;
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
}
