#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QTabBar>

/// A tab bar that shows the current tab only.
class ZELWIDGETS_EXPORT ZelSimpleTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit ZelSimpleTabBar(QWidget *parent = nullptr);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
};
