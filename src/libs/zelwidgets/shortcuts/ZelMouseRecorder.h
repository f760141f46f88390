#pragma once

#include "ZelMouseAction.h"

#include <QFrame>

class QCheckBox;
class QComboBox;
class QLabel;

/// A surface that takes a gesture over from the mouse: clicks, wheel or drags, as the category of
/// the action allows. The digits 1 and 2 count while they are held.
class ZelGesturePad : public QFrame
{
    Q_OBJECT

public:
    explicit ZelGesturePad(QWidget *parent = nullptr);

    void setCategory(ZelMouseAction::Category category);
    void setText(const QString &text);

Q_SIGNALS:
    void recorded(const ZelMouseShortcut &gesture);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void record(ZelMouseShortcut::MouseEventAction event, Qt::KeyboardModifiers modifiers,
                Qt::MouseButtons buttons = Qt::NoButton);

    ZelMouseAction::Category category_ = ZelMouseAction::OneShot;
    QLabel *label_;
    QPoint pressPosition_;
    bool isClick_ = false;
};

/// Records a gesture: the surface, and controls that choose the same by keyboard.
class ZelMouseRecorder : public QWidget
{
    Q_OBJECT

public:
    explicit ZelMouseRecorder(QWidget *parent = nullptr);

    const ZelMouseShortcut &gesture() const { return gesture_; }
    void start(ZelMouseAction::Category category, const ZelMouseShortcut &gesture);

Q_SIGNALS:
    /// With each change by the user, also to a gesture that isn't complete.
    void recorded(const ZelMouseShortcut &gesture);

private:
    void take(const ZelMouseShortcut &gesture);
    void readControls();
    void showGesture();
    QCheckBox *addCheckBox(const QString &text);

    ZelMouseShortcut gesture_;
    ZelGesturePad *pad_;
    QComboBox *event_;
    QComboBox *digit_;
    QList<QCheckBox *> modifiers_;
    QList<QCheckBox *> buttons_;
};
