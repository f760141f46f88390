#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDockWidget>

#include <memory>

/// The title bar of a ZelDockWidget: a group name at the left, the title in the middle, the buttons
/// at the right. The style sheet reaches it by the object name "ZelDockWidgetTitle".
class ZELWIDGETS_EXPORT ZelDockWidgetTitle : public QWidget
{
    Q_OBJECT

public:
    /// With the dock button, a floating dock can be put back by a button of its own.
    explicit ZelDockWidgetTitle(bool showDockButton, QWidget *parent = nullptr);
    ~ZelDockWidgetTitle() override;

    QString groupName() const;
    QString headerTitle() const;
    /// The header title, else the dock's window title, as it is painted.
    QString shownTitle() const;
    void setGroupName(const QString &name);
    /// Is shown in the place of the dock's window title; an empty one shows the window title.
    void setHeaderTitle(const QString &title);

    /// What the Tab key reaches last of it.
    QWidget *lastTabStop() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows the buttons for what the dock can do.
    void setFeatures(QDockWidget::DockWidgetFeatures features);
    void floatingChanged(bool floating);

Q_SIGNALS:
    void closeClicked();
    void toggleFloating();
    void titleBarPressed();
    void titleBarReleased();

protected:
    void changeEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showButtons();

    std::unique_ptr<class ZelDockWidgetTitlePrivate> d_;
};
