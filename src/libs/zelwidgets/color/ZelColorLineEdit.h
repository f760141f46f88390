#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDoubleSpinBox>

/// A number field without buttons that tells a number when it is finished, not while it is typed.
///
/// Return and Enter end with it, so that they don't press the default button of a dialog. The wheel
/// turns the number only with Control.
class ZELWIDGETS_EXPORT ZelColorLineEdit : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit ZelColorLineEdit(QWidget *parent = nullptr);
    ~ZelColorLineEdit() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
