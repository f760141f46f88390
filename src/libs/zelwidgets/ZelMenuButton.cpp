#include "ZelMenuButton.h"

#include "ZelAccessible.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

ZelMenuButton::ZelMenuButton(QWidget *parent)
    : QPushButton(parent)
    , menu_(new QMenu(this))
{
    ZelAccessible::installFactory();
    setProperty("ZelMenuButton", true);
    menu_->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    menu_->setAttribute(Qt::WA_TranslucentBackground);
    setMenu(menu_);
    connect(menu_, &QMenu::triggered, this, &ZelMenuButton::trigger);
}

int ZelMenuButton::count() const
{
    return int(menu_->actions().size());
}

QAction *ZelMenuButton::getActionByData(const QVariant &data) const
{
    return getActionByIndex(getIndexByData(data));
}

QAction *ZelMenuButton::getActionByIndex(int index) const
{
    return menu_->actions().value(index, nullptr);
}

QAction *ZelMenuButton::getCurrentAction() const
{
    return current_;
}

QVariant ZelMenuButton::getCurrentData() const
{
    return current_ ? current_->data() : QVariant();
}

int ZelMenuButton::getCurrentIndex() const
{
    return current_ ? int(menu_->actions().indexOf(current_)) : -1;
}

QString ZelMenuButton::getCurrentText() const
{
    return current_ ? current_->text() : QString();
}

QVariant ZelMenuButton::getDataByIndex(int index) const
{
    const QAction *action = getActionByIndex(index);
    return action ? action->data() : QVariant();
}

int ZelMenuButton::getIndexByData(const QVariant &data) const
{
    const QList<QAction *> actions = menu_->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&data](const QAction *action) {
        return !action->isSeparator() && action->data() == data;
    });
    return found == actions.end() ? -1 : int(found - actions.begin());
}

int ZelMenuButton::getIndexByText(const QString &text) const
{
    const QList<QAction *> actions = menu_->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&text](const QAction *action) {
        return !action->isSeparator() && action->text() == text;
    });
    return found == actions.end() ? -1 : int(found - actions.begin());
}

QString ZelMenuButton::getTextByIndex(int index) const
{
    const QAction *action = getActionByIndex(index);
    return action ? action->text() : QString();
}

void ZelMenuButton::addAction(QAction *action)
{
    if (!action)
        return;
    menu_->addAction(action);
    if (!current_)
        current_ = action;
}

QAction *ZelMenuButton::addAction(const QString &text)
{
    return addAction(text, QVariant());
}

QAction *ZelMenuButton::addAction(const QString &text, const QVariant &data)
{
    auto *action = new QAction(text, parent() ? parent() : this);
    addActionWithData(action, data);
    return action;
}

void ZelMenuButton::addActionWithData(QAction *action, const QVariant &data)
{
    if (!action)
        return;
    action->setData(data);
    addAction(action);
}

QAction *ZelMenuButton::addSeparator()
{
    return menu_->addSeparator();
}

void ZelMenuButton::clear()
{
    current_ = nullptr;
    const QList<QAction *> actions = menu_->actions();
    for (QAction *action : actions)
        menu_->removeAction(action);
    updateText();
}

void ZelMenuButton::hideActionByIndex(int index)
{
    if (QAction *action = getActionByIndex(index))
        action->setVisible(false);
}

void ZelMenuButton::removeActionByData(const QVariant &data)
{
    take(getActionByData(data));
}

void ZelMenuButton::removeActionByIndex(int index)
{
    take(getActionByIndex(index));
}

void ZelMenuButton::take(QAction *action)
{
    if (!action)
        return;
    menu_->removeAction(action);
    if (current_ != action)
        return;
    current_ = nullptr;
    updateText();
}

bool ZelMenuButton::setCurrentIndex(int index)
{
    QAction *action = getActionByIndex(index);
    if (!action)
        return false;
    menu_->setActiveAction(action);
    current_ = action;
    updateText();
    return true;
}

void ZelMenuButton::setCurrentText(const QString &text)
{
    setCurrentIndex(getIndexByText(text));
}

void ZelMenuButton::setHeader(const QString &header)
{
    header_ = header;
    updateText();
}

void ZelMenuButton::showHeader()
{
    showSelection_ = false;
    updateText();
}

void ZelMenuButton::showSelection()
{
    showSelection_ = true;
    updateText();
}

void ZelMenuButton::trigger(QAction *action)
{
    if (!action)
        return;
    current_ = action;
    updateText();
    // What is told is what was chosen, even if a receiver changes or deletes it.
    const QPointer<ZelMenuButton> self(this);
    const QPointer<QAction> chosen(action);
    const QString text = action->text();
    Q_EMIT activated(getCurrentIndex());
    if (self && chosen)
        Q_EMIT triggered(action);
    if (self)
        Q_EMIT textActivated(text);
}

void ZelMenuButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier)
        showMenu();
    else
        QPushButton::keyPressEvent(event);
}

void ZelMenuButton::updateText()
{
    setText(showSelection_ ? getCurrentText() : header_);
}
