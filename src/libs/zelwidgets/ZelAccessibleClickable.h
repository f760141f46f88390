#pragma once

#include <QAccessibleWidget>

/// What assistive technology sees of fields and captions that act like a link or a button: their
/// text is the name, pressing them goes the way of the click.
///
/// The factory serves the labels that show pictures too.
class ZelAccessibleClickable : public QAccessibleWidget
{
public:
    ZelAccessibleClickable(QWidget *widget, QAccessible::Role role);

    /// Makes those widgets show themselves by this class; costs nothing but for the first time.
    static void installFactory();

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QString shownText() const;
};
