#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QWidget>

class QBoxLayout;

/// Holds a widget whose size the user changes in one direction, by a handle at its end (right or
/// below; left in right-to-left layouts) or by the arrow keys while the handle has focus.
///
/// The size is a factor of the natural size hint, 1 at first, so that it follows the content and
/// the font. In the chosen direction the size policy is Fixed at first: what the hint tells holds.
class ZELWIDGETS_EXPORT ZelDirectedResizeWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelDirectedResizeWidget(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// Puts the widget beside the handle and takes ownership; deletes the former one. Null for
    /// none.
    void setWidget(QWidget *widget);
    QWidget *widget() const;
    /// The size hint in the chosen direction, in pixels.
    int directedSize() const;
    /// Makes the size hint in the chosen direction that many pixels.
    void setDirectedSize(int size);

    QSize sizeHint() const override;

private:
    int inDirection(QSize size) const;
    void setFactorFor(int size, int baseSize);
    void startDrag();
    void doDrag(int offset);
    void endDrag();

    Qt::Orientation orientation_;
    double factor_ = 1.0;
    int baseSizeAtDragStart_ = 0;
    int sizeAtDragStart_ = 0;
    QPointer<QWidget> widget_;
    QBoxLayout *layout_;
};
