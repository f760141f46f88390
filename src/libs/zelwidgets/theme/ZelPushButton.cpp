#include "ZelPushButton.h"

namespace {

void setDefaultLook(QPushButton *button)
{
    button->setProperty("rank", QStringLiteral("Secondary"));
    button->setProperty("dimension", QStringLiteral("Medium"));
}

} // namespace

ZelPushButton::ZelPushButton(QWidget *parent)
    : QPushButton(parent)
{
    setDefaultLook(this);
}

ZelPushButton::ZelPushButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setDefaultLook(this);
}

ZelPushButton::ZelPushButton(const QIcon &icon, const QString &text, QWidget *parent)
    : QPushButton(icon, text, parent)
{
    setDefaultLook(this);
}
