#pragma once

#include <QKeyCombination>
#include <QLabel>

#include <ZelWidgets/ZelMouseShortcut>

class ZelMouseAction;

/// A viewport that asks the table of gestures what each mouse event over it means. It does nothing
/// itself but tell.
class GestureView : public QLabel
{
    Q_OBJECT

public:
    explicit GestureView(QWidget *parent = nullptr);

Q_SIGNALS:
    /// An event came: what it was, and the action that it is for; null for none.
    void gestureMade(const ZelMouseShortcut &gesture, const ZelMouseAction *action);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void tell(ZelMouseShortcut::MouseEventAction event, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers);
    void tellClick(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

    QPoint pressed_;
    bool isDragged_ = false;
};
