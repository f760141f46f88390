#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

/// A handle that shows that what it stands in can be dragged. Its parent gets the mouse events.
class ZELWIDGETS_EXPORT ZelDragIndicator : public QWidget
{
    Q_OBJECT

public:
    explicit ZelDragIndicator(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
