#pragma once

#include <QWidget>

/// The handle of a ZelDirectedResizeWidget: a strip with a grip that is dragged, or moved by the
/// arrow keys. Tells pixels since the start of the drag, positive towards the larger size.
class ZelDirectedResizeHandle : public QWidget
{
    Q_OBJECT

public:
    /// Pixels that an arrow key moves it by.
    static constexpr int keyStep = 10;

    explicit ZelDirectedResizeHandle(Qt::Orientation orientation, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    /// Moves it at once, as a short drag would; nothing during a drag.
    void moveBy(int pixels);

Q_SIGNALS:
    void dragStarted();
    void dragged(int offset);
    void dragEnded();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int offsetTo(QPoint globalPosition) const;
    int stepFor(int key) const;
    void endDrag();

    Qt::Orientation orientation_;
    QPoint dragStart_;
    bool isDragged_ = false;
};
