#pragma once

#include <QWidget>

/// Shows a ball above the ground.
class BallStage : public QWidget
{
    Q_OBJECT

public:
    /// Shows heights up to this, in metres.
    explicit BallStage(double mostHeight, QWidget *parent = nullptr);

    /// In metres; a ball out of sight is not drawn.
    void setHeight(double height);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double mostHeight_;
    double height_ = 0.0;
};
