#include "ConflictsPage.h"

#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelShortcutHandler>

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QKeySequence frameKey(Qt::CTRL | Qt::ALT | Qt::Key_F);
const QKeySequence storeKey(Qt::CTRL | Qt::ALT | Qt::Key_S);
const QString frameId = QStringLiteral("cam.pFrame");
const QString storeId = QStringLiteral("cam.qStore");
const QString deleteId = QStringLiteral("gen.cDelete");

/// A panel that takes the focus and tells so.
class View : public QFrame
{
public:
    View(const QString &name, QWidget *parent)
        : QFrame(parent)
        , name_(name)
        , label_(new QLabel(name, this))
    {
        setAccessibleName(name);
        setFocusPolicy(Qt::StrongFocus);
        setFrameStyle(StyledPanel | Plain);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(label_);
        layout->addStretch(1);
    }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QFrame::focusInEvent(event);
        label_->setText(ConflictsPage::tr("%1, with the focus").arg(name_));
    }
    void focusOutEvent(QFocusEvent *event) override
    {
        QFrame::focusOutEvent(event);
        label_->setText(name_);
    }

private:
    const QString name_;
    QLabel *label_;
};

/// Delete takes the chosen entry away.
class EntryList : public QListWidget
{
public:
    using QListWidget::QListWidget;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Delete)
            delete takeItem(currentRow());
        else
            QListWidget::keyPressEvent(event);
    }
};

} // namespace

ConflictsPage::ConflictsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addViews();
    addTable();
    addToolWindow();
    switchActions(false);
}

void ConflictsPage::addViews()
{
    QVBoxLayout *section = addSection(
        tr("Two views"),
        tr("Both frame on %1, by actions of one id, and store on %2, by actions of two. The one "
           "with the focus is meant. With the focus on the button neither is nearer: the first "
           "one frames, and nothing is stored. Delete belongs to the views, too, but a list "
           "takes it for its own entries.")
            .arg(frameKey.toString(QKeySequence::NativeText),
                 storeKey.toString(QKeySequence::NativeText)));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    QWidget *left = createView(tr("Left view"));
    QWidget *right = createView(tr("Right view"));
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    section->addLayout(row);
    auto *list = new EntryList(left);
    list->setAccessibleName(tr("Entries of the left view"));
    list->addItems({tr("First camera"), tr("Second camera"), tr("Third camera")});
    list->setFixedHeight(list->sizeHintForRow(0) * 4);
    list->installEventFilter(this);
    left->layout()->addWidget(list);
    toolButton_ = new QPushButton(tr("T&ool window"), this);
    toolButton_->setCheckable(true);
    toolButton_->installEventFilter(this);
    connect(toolButton_, &QPushButton::toggled, this, [this](bool on) {
        toolWindow_->setVisible(on);
        if (on)
            toolWindow_->activateWindow();
    });
    section->addWidget(toolButton_, 0, Qt::AlignLeft);
}

QWidget *ConflictsPage::createView(const QString &name)
{
    auto *view = new View(name, this);
    view->installEventFilter(this);
    const bool isFirst = actions_.isEmpty();
    addAction(view, frameId, tr("Frame (%1)").arg(name), frameKey);
    addAction(view, storeId + (isFirst ? QStringLiteral("Left") : QStringLiteral("Right")),
              tr("Store (%1)").arg(name), storeKey);
    addAction(view, deleteId, tr("Delete (%1)").arg(name), Qt::Key_Delete);
    return view;
}

void ConflictsPage::addToolWindow()
{
    toolWindow_ = new QWidget(this, Qt::Tool);
    toolWindow_->setWindowTitle(tr("Tool window"));
    auto *layout = new QVBoxLayout(toolWindow_);
    const QString name = tr("Tool window");
    auto *view = new View(name, toolWindow_);
    view->layout()->addWidget(
        new QLabel(tr("Stores by itself; the key to frame\ngoes to the page."), view));
    view->installEventFilter(this);
    layout->addWidget(view);
    addAction(view, storeId + QStringLiteral("Tool"), tr("Store (%1)").arg(name), storeKey);
    toolWindow_->installEventFilter(this);
}

void ConflictsPage::addAction(QWidget *view, const QString &id, const QString &text,
                              const QKeySequence &key)
{
    auto *action = new ZelAction(id, text, key, view);
    view->addAction(action->qAction());
    connect(action, qOverload<>(&ZelAction::triggered), this, [this, text] { log(text); });
    actions_.append(action);
}

void ConflictsPage::addTable()
{
    QVBoxLayout *section =
        addSection(tr("Who is meant"), tr("The lowest score is the nearest to the focus. An action "
                                          "that the key doesn't reach from here has none."));
    pressed_ = new QLabel(tr("Press one of the keys in a view."), this);
    section->addWidget(pressed_);
    table_ = new QTreeWidget(this);
    table_->setAccessibleName(tr("Who is meant"));
    table_->setHeaderLabels({tr("Action"), tr("Id"), tr("Score"), tr("State")});
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->setMinimumHeight(table_->fontMetrics().height() * 8);
    section->addWidget(table_, 1);
}

bool ConflictsPage::eventFilter(QObject *watched, QEvent *event)
{
    // The event comes by the parents of the one with the focus, too.
    if (event->type() == QEvent::ShortcutOverride && watched == QApplication::focusWidget()) {
        const auto *press = static_cast<QKeyEvent *>(event);
        showStandings(QKeySequence(press->keyCombination()));
    } else if (watched == toolWindow_ && event->type() == QEvent::Close) {
        toolButton_->setChecked(false);
    }
    return GalleryPage::eventFilter(watched, event);
}

/// The key is still to be dealt with; what is told is what is going to happen.
void ConflictsPage::showStandings(const QKeySequence &key)
{
    const QList<ZelConflictStanding> standings =
        ZelShortcutHandler::instance()->conflictStandings(key);
    if (standings.isEmpty())
        return;
    table_->clear();
    bool isClear = false;
    for (const ZelConflictStanding &standing : standings) {
        const QString score = standing.score ? QString::number(*standing.score) : tr("none");
        const QString state = standing.isMeant ? tr("meant") : QString();
        auto *row = new QTreeWidgetItem(
            table_, {standing.text, standing.id, score,
                     standing.isEnabled ? state : tr("%1 disabled").arg(state).trimmed()});
        QFont font = row->font(0);
        font.setBold(standing.isMeant);
        for (int column = 0; column < table_->columnCount(); ++column)
            row->setFont(column, font);
        isClear = isClear || standing.isMeant;
    }
    const QString name = key.toString(QKeySequence::NativeText);
    pressed_->setText(isClear ? name : tr("%1: nobody is meant").arg(name));
    log(tr("pressed: %1").arg(pressed_->text()));
}

void ConflictsPage::showEvent(QShowEvent *event)
{
    GalleryPage::showEvent(event);
    switchActions(true);
}

void ConflictsPage::hideEvent(QHideEvent *event)
{
    GalleryPage::hideEvent(event);
    switchActions(false);
    toolButton_->setChecked(false);
}

/// Off while the page is hidden: the keys reach it from the whole window.
void ConflictsPage::switchActions(bool on)
{
    for (ZelAction *action : std::as_const(actions_))
        action->setEnabled(on);
}
