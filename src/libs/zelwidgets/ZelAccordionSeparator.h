#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QFrame>

/// A line between sections. Style sheets select on its dynamic property "Orientation".
class ZELWIDGETS_EXPORT ZelAccordionSeparator : public QFrame
{
    Q_OBJECT

public:
    explicit ZelAccordionSeparator(QWidget *parent = nullptr,
                                   Qt::Orientation orientation = Qt::Horizontal);
};
