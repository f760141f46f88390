#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>

/// What assistive technology sees of a widget that paints several things to be moved: each is a
/// child with a name, a number and a place.
///
/// A subclass tells of the parts, by their index in the order that the keyboard walks them;
/// its widget's constructor calls ZelAccessibleValue::serve() once.
class ZelAccessibleParts : public QAccessibleWidget
{
public:
    struct Part
    {
        QString name;
        QString text; ///< the number as it is read out
        double value = 0;
        double minimum = 0;
        double maximum = 0;
        double step = 0;
        QRect area; ///< in the widget
    };

    ZelAccessibleParts(QWidget *widget, QAccessible::Role role);
    ~ZelAccessibleParts() override;

    virtual int partCount() const = 0;
    virtual Part part(int index) const = 0;
    /// The part that the keys work on, or -1.
    virtual int currentPart() const = 0;
    virtual void selectPart(int index) = 0;
    virtual void setPartValue(int index, double value) = 0;

    /// Tells that the user moved the part, or made it the current one.
    static void announceValue(QWidget *widget, int index);
    static void announceCurrent(QWidget *widget, int index);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    class Child;

    static ZelAccessibleParts *of(QWidget *widget);

    mutable QHash<int, QAccessible::Id> children_;
};
