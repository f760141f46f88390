#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QPointF>
#include <QWidget>

#include <optional>

/// A handle that stands beside what it resizes and tells how far it is dragged; the owner does the
/// resizing, from the size that it had when the drag began.
///
/// With the focus, the arrow keys are drags of ten pixels, with Shift of one.
class ZELWIDGETS_EXPORT ZelSplitterHandle : public QWidget
{
    Q_OBJECT

public:
    /// Horizontal: it is dragged to the left and the right.
    ZelSplitterHandle(Qt::Orientation orientation, QWidget *parent);
    ~ZelSplitterHandle() override;

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void dragStarted();
    /// From the start of the drag.
    void dragged(int pixels);
    void dragEnded();

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    static QSizePolicy makeSizePolicy(Qt::Orientation orientation);
    void setCursorShown(bool shown);

    Qt::Orientation orientation_;
    std::optional<QPointF> dragStart_;
    QIcon icon_;
    bool isCursorShown_ = false;
};
