#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>
#include <QWidgetAction>

/// A line between controls. The style sheet draws it by the object name, "VerticalSeparator" or
/// "HorizontalSeparator".
class ZELWIDGETS_EXPORT ZelSeparator : public QWidget
{
    Q_OBJECT

public:
    /// A vertical separator is an upright line, one between controls that stand side by side.
    explicit ZelSeparator(Qt::Orientation orientation, QWidget *parent = nullptr);

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    QSize sizeHint() const override;

private:
    void applyOrientation();

    Qt::Orientation orientation_;
};

/// A ZelSeparator in menus and tool bars. In a tool bar the line stands across the bar and turns
/// with it; elsewhere it is horizontal.
class ZELWIDGETS_EXPORT ZelSeparatorAction : public QWidgetAction
{
    Q_OBJECT

public:
    explicit ZelSeparatorAction(QWidget *parent);

protected:
    QWidget *createWidget(QWidget *parent) override;
};
