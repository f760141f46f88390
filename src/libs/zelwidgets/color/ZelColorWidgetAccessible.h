#pragma once

#include <QAccessibleWidget>

class ZelColorWidget;

/// A colour widget for assistive technology: a button whose value is the colour.
class AccessibleColor : public QAccessibleWidget
{
public:
    explicit AccessibleColor(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Button)
    {}

    /// Makes colour widgets show themselves so; costs nothing but for the first time.
    static void installFactory();

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    ZelColorWidget *field() const;
};
