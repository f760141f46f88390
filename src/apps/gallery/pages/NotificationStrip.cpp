#include "NotificationStrip.h"

#include <ZelWidgets/ZelNotificationAction>
#include <ZelWidgets/ZelNotificationList>
#include <ZelWidgets/ZelToolButton>

#include <QHBoxLayout>

namespace {

constexpr QSize iconSize(24, 24);

} // namespace

NotificationStrip::NotificationStrip(ZelNotificationList *list, QWidget *parent)
    : QWidget(parent)
    , list_(list)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addStretch(1);
    setMinimumHeight(addButton()->sizeHint().height());
    connect(list, &ZelNotificationList::changed, this, &NotificationStrip::refresh);
    refresh();
}

ZelToolButton *NotificationStrip::addButton()
{
    auto *button = new ZelToolButton(ZelToolButton::Border, this);
    button->setIconSize(iconSize);
    button->setFocusPolicy(Qt::StrongFocus);
    button->hide();
    const int index = int(buttons_.size());
    static_cast<QHBoxLayout *>(layout())->insertWidget(index, button);
    connect(button, &QAbstractButton::clicked, this, [this, index] {
        list_->trigger(index);
        refresh();
    });
    buttons_.append(button);
    return button;
}

void NotificationStrip::refresh()
{
    // Buttons that are not needed any more are hidden, for one of them may just be pressed.
    while (buttons_.size() < list_->size())
        addButton();
    for (int i = 0; i < buttons_.size(); ++i)
        show(i);
}

void NotificationStrip::show(int index)
{
    const ZelNotificationAction *action = list_->at(index);
    ZelToolButton *button = buttons_[index];
    button->setVisible(action && action->isVisible());
    if (!action)
        return;
    button->setIcon(action->icon());
    button->setToolTip(action->toolTip());
    button->setCheckable(action->hasFlag(ZelNotificationAction::Toggle));
    button->setChecked(action->toggleState());
}
