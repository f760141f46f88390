#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDockWidget>

#include <memory>

class ZelDockWidgetTitle;

/// A dock with a title bar of its own, whose floating window is resized at its edges, snaps to the
/// sides of the screen and has a size for each screen.
///
///     auto *dock = new ZelDockWidget(tr("Lights"), QStringLiteral("LightsDock"), true, window);
///     dock->setContentsWidget(new LightList);
///     window->addDockWidget(Qt::LeftDockWidgetArea, dock);
///     dock->show();
///
/// A new dock is hidden and may stand at the left and at the right. The user can switch docking off
/// (group "ui", key "EnableDocking"); a dock then stays where it is. Custom events of the type
/// QEvent::User are the dock's own.
class ZELWIDGETS_EXPORT ZelDockWidget : public QDockWidget
{
    Q_OBJECT

public:
    /// The object name is what the layout of the window is stored by. With the key of this name in
    /// the settings group "ForceFloatingWdg", the dock floats when it is shown for the first time.
    ZelDockWidget(const QString &title, const QString &objectName, bool showDockButton,
                  QWidget *parent = nullptr);
    ~ZelDockWidget() override;

    QWidget *contentsWidget() const;
    ZelDockWidgetTitle *zelTitleWidget() const;
    /// True if the point, in global coordinates, is on the title bar.
    bool hitTest(const QPoint &globalPoint) const;
    /// True if the dock was last docked at the left or at the right.
    bool isAtSide() const;

    /// Takes over the widget; the former one is deleted later if it still belongs to the dock.
    void setContentsWidget(QWidget *contents);
    void setFeatures(DockWidgetFeatures features);
    void setGroupName(const QString &name);
    /// Shows the text in the title bar in the place of the window title.
    void setHeaderTitle(const QString &title);
    void setWindowTitle(const QString &title);
    /// Lets the dock float over the main window's central widget when it is shown the next time.
    void setRestoreInCentralWidget();
    /// Paints the dock as a place to drop something on.
    void showDropFrame(bool show);
    /// Gives the event to QDockWidget, past everything that this class does with it.
    bool forceEvent(QEvent *event);

    /// The dock that the user moved last; null if there is none.
    static ZelDockWidget *lastMovedDockWidget();
    static void clearLastMoveWidget();

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The dock was closed or hidden; on a close it comes for both.
    void closed();
    void opened();
    void titleBarPressed();
    void titleBarReleased();
    void screenChanged();

protected:
    virtual void handleMousePressEvent(QMouseEvent *event, QObject *object);
    virtual void handleMouseReleaseEvent(QMouseEvent *event);
    virtual void handleMouseMoveEvent(QMouseEvent *event);

    Qt::DockWidgetArea area() const;
    bool isTopLevel() const;
    /// Shows the cursor of an edge drag, given as bits: 1 left, 2 right, 4 top, 8 bottom.
    void adjustCursor(int resizeState);
    /// The edges that a point in global coordinates drags, as bits.
    int resizeStateAt(const QPoint &globalPoint) const;

    /// What the title's buttons and a double click do to a floating dock; it goes back to its place
    /// in the layout.
    virtual void redock();

    bool eventFilter(QObject *object, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void customEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

protected Q_SLOTS:
    void toggleFloating();
    void setDockWidgetArea(Qt::DockWidgetArea a);
    void setTopLevel(bool b);

private:
    void watch(QObject *object);
    void buildContents();
    void connectTitle();
    void prepareUndockOrHide();
    void floatInMiddle();
    void floatInSight();
    void tellRelease();
    void focusContents();
    void endResize();
    void rememberSize();
    void followScreen();
    void snapToScreen();
    void dragEdges(const QPoint &globalPoint);

    std::unique_ptr<class ZelDockWidgetPrivate> d_;
};
