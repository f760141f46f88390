#include "ActionsPage.h"

#include <ZelWidgets/HotKeysDisableEnable>
#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelActionState>
#include <ZelWidgets/ZelMenu>
#include <ZelWidgets/ZelShortcut>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolBar>
#include <ZelWidgets/ZelToolButton>

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

namespace {

constexpr int changeCount = 100;

} // namespace

ActionsPage::ActionsPage(QWidget *parent)
    : GalleryPage(parent)
    , grid_(new ZelActionState(true, this))
    , render_(new ZelActionState(false, this))
{
    grid_->setObjectName(QStringLiteral("Grid"));
    render_->setObjectName(QStringLiteral("Render"));
    addShared();
    addHotKeys();
    addThread();
    addStretch();
    for (ZelActionState *state : {grid_, render_}) {
        watch(state, &ZelActionState::checkStateChanged, QStringLiteral("checkStateChanged"));
        watch(state, &ZelActionState::enabledStateChanged, QStringLiteral("enabledStateChanged"));
        watch(state, &ZelActionState::triggered, QStringLiteral("triggered"));
    }
}

ActionsPage::~ActionsPage()
{
    if (thread_)
        thread_->wait();
}

QAction *ActionsPage::createAction(ZelActionState *state, const QString &text, const char *icon)
{
    QAction *action = state->createAction();
    action->setText(text);
    action->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/%1.svg").arg(QLatin1String(icon))));
    return action;
}

void ActionsPage::addShared()
{
    QVBoxLayout *section = addSection(
        tr("Shared states"), tr("Each entry of the menu, each button and each tool has an action "
                                "of its own. All of them follow one state."));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    auto *menuButton = new ZelToolButton(ZelToolButton::Border, this);
    menuButton->setText(tr("Menu"));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    menuButton->setFocusPolicy(Qt::StrongFocus);
    auto *menu = new ZelMenu(menuButton);
    menu->addAction(createAction(grid_, tr("&Grid"), "check"));
    menu->addAction(createAction(render_, tr("&Render"), "save"));
    menuButton->setMenu(menu);
    row->addWidget(menuButton);
    for (QAction *action :
         {createAction(grid_, tr("Grid"), "check"), createAction(render_, tr("Render"), "save")}) {
        auto *button = new ZelToolButton(ZelToolButton::Border, this);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setDefaultAction(action);
        row->addWidget(button);
    }
    auto *bar = new ZelToolBar(ZelToolBar::StyledBorder, this);
    bar->setAccessibleName(tr("Shared tools"));
    bar->addAction(createAction(grid_, tr("Grid"), "check"));
    bar->addAction(createAction(render_, tr("Render"), "save"));
    row->addWidget(bar);
    row->addStretch(1);
    section->addLayout(row);
    auto *enabled = new QCheckBox(tr("&Both enabled"), this);
    enabled->setChecked(true);
    connect(enabled, &QCheckBox::toggled, grid_, &ZelActionState::setEnabled);
    connect(enabled, &QCheckBox::toggled, render_, &ZelActionState::setEnabled);
    section->addWidget(enabled);
}

void ActionsPage::addHotKeys()
{
    const QKeySequence actionKey(Qt::CTRL | Qt::ALT | Qt::Key_A);
    const QKeySequence shortcutKey(Qt::CTRL | Qt::ALT | Qt::Key_H);
    const QKeySequence keptKey(Qt::CTRL | Qt::ALT | Qt::Key_K);
    QVBoxLayout *section = addSection(
        tr("Hot keys"),
        tr("%1 is an action, %2 a shortcut; %3 is an action that stays on. While hot keys are off "
           "no other key of the window does anything.")
            .arg(actionKey.toString(QKeySequence::NativeText),
                 shortcutKey.toString(QKeySequence::NativeText),
                 keptKey.toString(QKeySequence::NativeText)));
    auto *action =
        new ZelAction(QStringLiteral("if.xGalleryAction"), tr("Gallery action"), actionKey, this);
    addAction(action->qAction());
    auto *kept =
        new ZelAction(QStringLiteral("if.xGalleryKept"), tr("Action that stays on"), keptKey, this);
    addAction(kept->qAction());
    auto *shortcut = new ZelShortcut(QStringLiteral("if.xGalleryShortcut"), tr("Gallery shortcut"),
                                     shortcutKey, this);
    for (ZelAction *each : {action, kept}) {
        connect(each, qOverload<>(&ZelAction::triggered), this,
                [this, each] { log(each->qAction()->text()); });
    }
    connect(shortcut, &QShortcut::activated, this, [this, shortcut] { log(shortcut->text()); });
    hotKeys_ = new QCheckBox(tr("&Hot keys off"), this);
    connect(hotKeys_, &QCheckBox::toggled, this, [this](bool off) { switchHotKeys(!off); });
    section->addWidget(hotKeys_);
}

void ActionsPage::switchHotKeys(bool on)
{
    disabled_.reset();
    if (!on) {
        disabled_ = std::make_unique<HotKeysDisableEnable>();
        disabled_->disableHotKeys({QStringLiteral("if.xGalleryKept")}, {});
    }
    log(on ? tr("Hot keys are on") : tr("Hot keys are off"));
}

void ActionsPage::addThread()
{
    QVBoxLayout *section = addSection(
        tr("From a thread"), tr("A thread turns the grid on and off %n times, and ends with it on.",
                                nullptr, changeCount));
    auto *button = new QPushButton(tr("&Change the grid"), this);
    connect(button, &QPushButton::clicked, this, &ActionsPage::startThread);
    section->addWidget(button, 0, Qt::AlignLeft);
}

void ActionsPage::startThread()
{
    if (thread_)
        thread_->wait();
    thread_.reset(QThread::create([grid = grid_] {
        for (int change = changeCount - 1; change >= 0; --change)
            grid->setCheckedAsync(change % 2 == 0);
    }));
    thread_->start();
}

void ActionsPage::hideEvent(QHideEvent *event)
{
    GalleryPage::hideEvent(event);
    hotKeys_->setChecked(false);
}
