#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QSpinBox>

/// A spin box for panels that scroll: Control and the wheel turn it by large steps, any other wheel
/// is left to the panel.
class ZELWIDGETS_EXPORT ZelSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit ZelSpinBox(QWidget *parent);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void fixup(QString &text) const override;
};
