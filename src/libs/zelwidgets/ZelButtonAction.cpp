#include "ZelButtonAction.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionMenuItem>
#include <QToolBar>
#include <QToolButton>

namespace {

/// The button in a menu: the menu moves the highlight, and paints it as one of its own entries.
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

    QSize sizeHint() const override
    {
        const QStyleOptionMenuItem entry = entryOption();
        const QFontMetrics metrics(entry.font);
        const int height = qMax(metrics.height(), entryIconSize());
        const QSize contents(metrics.size(Qt::TextShowMnemonic, text()).width(), height);
        return menu_->style()->sizeFromContents(QStyle::CT_MenuItem, &entry, contents, menu_);
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QStyleOptionMenuItem entry = entryOption();
        menu_->style()->drawControl(QStyle::CE_MenuItem, &entry, &painter, menu_);
    }

private:
    int entryIconSize() const
    {
        return menu_->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, menu_);
    }

    QStyleOptionMenuItem entryOption() const
    {
        QStyleOptionMenuItem option;
        option.initFrom(menu_);
        option.rect = rect();
        option.menuRect = menu_->rect();
        option.state = QStyle::State_None;
        option.state.setFlag(QStyle::State_Enabled, isEnabled());
        option.state.setFlag(QStyle::State_Selected, menu_->activeAction() == action_);
        option.state.setFlag(QStyle::State_Sunken, isDown());
        option.font = menu_->font();
        option.fontMetrics = QFontMetrics(option.font);
        option.icon = icon();
        option.text = text();
        option.maxIconWidth = icon().isNull() ? 0 : entryIconSize() + 4;
        if (isCheckable()) {
            option.checkType = QStyleOptionMenuItem::NonExclusive;
            option.checked = isChecked();
            option.menuHasCheckableItems = true;
        }
        return option;
    }

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
