#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QTimeEdit>

/// A time of day, noon at first, with hours, minutes and seconds. The wheel is left to the panel
/// around it, unless Control is held: then it turns the section with the cursor by single steps,
/// with Shift as well by large ones.
class ZELWIDGETS_EXPORT ZelTimeEdit : public QTimeEdit
{
    Q_OBJECT

public:
    explicit ZelTimeEdit(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};
