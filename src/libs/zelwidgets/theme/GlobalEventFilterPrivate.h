#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QSet>
#include <QWidget>

#include <memory>

class QKeyEvent;
class QLabel;

/// State and single corrections behind GlobalEventFilter.
class GlobalEventFilterPrivate
{
public:
    GlobalEventFilterPrivate();
    ~GlobalEventFilterPrivate();

    void keyWentDown(const QKeyEvent &event);
    void keyWentUp(const QKeyEvent &event);
    void leftButtonPressed(QWidget *widget);

    /// Starts the watch over a popup that a press has opened.
    void watchOpenedPopup(QWidget *shown, QObject *context);
    /// Takes the hover look off the button whose popup was hidden while the mouse went elsewhere.
    void repairStuckHover(const QObject *hidden);

    /// True if a window that is shown so long after a press counts as opened by it.
    static bool isOpenedByPress(const QWidget &shown, qint64 msSincePress);
    /// True if the key belongs to the editor in focus, whatever shortcut is bound to it.
    static bool isEditingKey(int key, const QWidget *focusWidget);
    static void prepareSpinBoxForFirstPaint(QObject *spinBox);
    static void sizeToolTip(QLabel *label);

    QSet<int> keysDown_;
    std::unique_ptr<QKeyEvent> lastKeyPress_;
    std::unique_ptr<QKeyEvent> lastKeyRelease_;
    bool trackPadTouched_ = false;
    QElapsedTimer lastLeftPress_;
    QPointer<QWidget> lastLeftPressed_;
    QPointer<QWidget> hoverToClear_;
    QPointer<QWidget> openedPopup_;
};
