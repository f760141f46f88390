#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QSlider>

/// A slider that the wheel turns only with Control.
class ZELWIDGETS_EXPORT ZelSlider : public QSlider
{
    Q_OBJECT

public:
    explicit ZelSlider(QWidget *parent = nullptr);
    explicit ZelSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~ZelSlider() override;

protected:
    /// Without Control the event stays as it came, neither accepted nor ignored.
    void wheelEvent(QWheelEvent *event) override;
};
