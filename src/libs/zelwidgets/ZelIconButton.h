#pragma once

#include <ZelWidgets/ZelToolButton>

/// A flat tool button with its text under the icon, that carries a value of the caller's.
class ZELWIDGETS_EXPORT ZelIconButton : public ZelToolButton
{
    Q_OBJECT

public:
    ZelIconButton();

    QVariant userData() const { return userData_; }
    void setUserData(const QVariant &data);

private:
    QVariant userData_;
};
