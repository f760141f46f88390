#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

class QAbstractSpinBox;

/// What assistive technology sees of sliders, dials and wheels: the number that they stand for,
/// in the text and unit that the field beside them shows.
///
/// A subclass tells the numbers; its widget's constructor calls serve() once.
class ZelAccessibleValue : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    ZelAccessibleValue(QWidget *widget, QAccessible::Role role);

    /// From now on widgets of this class, by its name, show themselves by the interface.
    template <typename Interface, typename Widget>
    static void serve();

    /// The field whose text is the value of the widget; the field may die.
    static void describeBy(QWidget *widget, QAbstractSpinBox *field);

    /// Tells assistive technology that the user changed the value of the widget.
    static void announce(QWidget *widget, double value);

    void *interface_cast(QAccessible::InterfaceType type) override;
    /// Beside what each widget has: the tool tip as name of last resort, and the value.
    QString text(QAccessible::Text kind) const override;

private:
    using Create = QAccessibleInterface *(*)(QWidget *);
    static void add(const char *className, Create create);
    static QAccessibleInterface *createInterface(const QString &className, QObject *object);
};

template <typename Interface, typename Widget>
void ZelAccessibleValue::serve()
{
    static const bool added = [] {
        add(Widget::staticMetaObject.className(),
            [](QWidget *widget) -> QAccessibleInterface * { return new Interface(widget); });
        return true;
    }();
    Q_UNUSED(added);
}
