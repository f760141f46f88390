#include "ZelButtonAction.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QToolBar>
#include <QToolButton>

namespace {

/// The button in a menu: the menu moves the highlight, the button shows it.
class MenuRowButton : public QToolButton
{
public:
    MenuRowButton(const QAction *action, QMenu *menu)
        : QToolButton(menu)
        , action_(action)
        , menu_(menu)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        setFocusPolicy(Qt::NoFocus);
        setMouseTracking(true);
    }

protected:
    void initStyleOption(QStyleOptionToolButton *option) const override
    {
        QToolButton::initStyleOption(option);
        option->state.setFlag(QStyle::State_MouseOver, menu_->activeAction() == action_);
    }

private:
    const QAction *action_;
    const QMenu *menu_;
};

void showAction(const QAction *action, QToolButton *button)
{
    const QSignalBlocker blocker(button);
    button->setIcon(action->icon());
    button->setText(action->iconText());
    button->setToolTip(action->toolTip());
    button->setAccessibleName(action->iconText().isEmpty() ? action->toolTip()
                                                           : action->iconText());
    button->setCheckable(action->isCheckable());
    button->setChecked(action->isChecked());
}

void followToolBar(const QToolBar *bar, QToolButton *button)
{
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize(bar->iconSize());
    button->setToolButtonStyle(bar->toolButtonStyle());
    QObject::connect(bar, &QToolBar::iconSizeChanged, button, &QToolButton::setIconSize);
    QObject::connect(bar, &QToolBar::toolButtonStyleChanged, button,
                     &QToolButton::setToolButtonStyle);
}

/// The menus that are open at one time are one chain.
void closeOpenMenus()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *menu = qobject_cast<QMenu *>(window);
        if (menu && menu->isVisible() && menu->windowType() == Qt::Popup)
            menu->close();
    }
}

} // namespace

ZelButtonAction::ZelButtonAction(const QPixmap &picture, const QString &text,
                                 const QString &toolTip, QObject *parent)
    : QWidgetAction(parent)
{
    setIcon(QIcon(picture));
    setText(text);
    setToolTip(toolTip);
}

QWidget *ZelButtonAction::createWidget(QWidget *parent)
{
    QToolButton *button = nullptr;
    if (auto *menu = qobject_cast<QMenu *>(parent)) {
        button = new MenuRowButton(this, menu);
        connect(menu, &QMenu::hovered, button, qOverload<>(&QWidget::update));
    } else {
        button = new QToolButton(parent);
        if (const auto *bar = qobject_cast<QToolBar *>(parent))
            followToolBar(bar, button);
    }
    button->setObjectName(QStringLiteral("FlatButton"));
    button->setAutoRaise(true);
    showAction(this, button);
    connect(this, &QAction::changed, button, [this, button] { showAction(this, button); });
    connect(button, &QToolButton::clicked, this, &ZelButtonAction::onClicked);
    return button;
}

void ZelButtonAction::onClicked()
{
    const bool leavesMenuOpen = property("specialNonHideActionPropId").toBool();
    if (!leavesMenuOpen)
        closeOpenMenus();
    trigger();
}
