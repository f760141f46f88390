#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

/// What assistive technology sees of the buttons of the library that have no text or paint
/// themselves: named by the accessible name, the text or the tool tip, whichever is there first.
class ZelAccessibleButton : public QAccessibleWidget
{
public:
    ZelAccessibleButton(QAbstractButton *button, QAccessible::Role role);

    /// Makes buttons show themselves by this class; costs nothing but for the first time.
    static void installFactory();

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

private:
    QAbstractButton *button() const { return static_cast<QAbstractButton *>(object()); }
    bool hasMenu() const;
    void showMenu();
};
