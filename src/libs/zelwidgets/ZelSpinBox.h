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

    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;

protected:
    void wheelEvent(QWheelEvent *event) override;
    int valueFromText(const QString &text) const override;
};
