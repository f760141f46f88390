#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

class KeyToSignalFilter;
class QMainWindow;
class QMouseEvent;
class QWidget;
class ZelDockWidgetFromTab;
class ZelTextIconTabWidget;

/// Watches the tab bar of a tab widget and its main window: drags tabs out into windows and into
/// another order. It is the one owner of the override cursor of such a drag, which Escape cancels.
class ZelDragOutEventFilter : public QObject
{
    Q_OBJECT

public:
    /// A child of the tab widget with the name().
    explicit ZelDragOutEventFilter(ZelTextIconTabWidget *tabs);
    ~ZelDragOutEventFilter() override;

    static QString name();

    /// Makes a window of the tab; null for the last tab and without a main window.
    ZelDockWidgetFromTab *tearOut(int tab);
    /// Ends a drag and watches nothing any more.
    void stop();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    enum class State { Idle, Pressed, Detached };

    void press(const QMouseEvent *event);
    void move(QWidget *widget, QMouseEvent *event);
    void release(QWidget *widget, QMouseEvent *event);
    void findLostRelease(QEvent *event);
    void testTearOut(const QPoint &globalPoint);
    void dragOut(const QPoint &globalPoint);
    void forwardToDragged(const QMouseEvent *event);
    void reorder(const QPoint &globalPoint);
    void setDragging(bool dragging);
    void cancel();
    void putDraggedBack();
    void finish();

    ZelTextIconTabWidget *tabs_;
    QPointer<QMainWindow> mainWindow_;
    QPoint pressPos_;
    QPointer<ZelDockWidgetFromTab> dragged_;
    QPointer<KeyToSignalFilter> keys_;
    /// What Escape brings back.
    struct Before
    {
        QPointer<QWidget> currentPage;
        QPointer<QWidget> focus;
        int tab = -1;
    } before_;
    bool hadPosition_ = false;
    bool dragging_ = false;
    bool forwarding_ = false;
    State state_ = State::Idle;
};
