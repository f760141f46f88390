#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QVBoxLayout>

class QLabel;
class ZelToolButton;

/// A layout with a title, an add button, and a widget (mostly a list) below them.
///
/// It is a layout, not a widget: title, button and widget belong to the widget that it is set on.
class ZELWIDGETS_EXPORT ZelListWithAddition : public QVBoxLayout
{
    Q_OBJECT

public:
    /// The tool tip is the add button's; the layout takes the widget over. The title may hold rich
    /// text.
    ZelListWithAddition(const QString &title, const QString &toolTip, QWidget *widget);

    /// The one of the layout, which the signal below would hide.
    using QVBoxLayout::addItem;

Q_SIGNALS:
    /// The add button was clicked. Connect with qOverload<>(&ZelListWithAddition::addItem).
    void addItem();

private:
    QLabel *label_;
    ZelToolButton *addButton_;
    QWidget *widget_;
};
