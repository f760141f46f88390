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

    /// The digit that is held in the view as a key; Qt::Key_unknown for none.
    Qt::Key heldDigit() const { return heldDigit_; }

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
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QKeyCombination keys(Qt::KeyboardModifiers modifiers) const;
    void tell(ZelMouseShortcut::MouseEventAction event, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers);
    void tellClick(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

    QPoint pressed_;
    bool isDragged_ = false;
    Qt::Key heldDigit_ = Qt::Key_unknown;
};
