#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QHeaderView>
#include <QIcon>

/// A header that shows a handle in each section, for reordering the rows or columns of a view.
///
/// While a section is dragged, the view finds in movingFrom() and movingTo() between which sections
/// to draw the line of the drop; it is repainted at each move.
class ZELWIDGETS_EXPORT ZelDragHeader : public QHeaderView
{
    Q_OBJECT

public:
    /// A null icon stands for the theme's drag handle.
    ZelDragHeader(Qt::Orientation orientation, QIcon const &icon);

    QIcon icon() const;
    void setIcon(const QIcon &icon);
    /// Whether the view is repainted while a section is dragged, as it is at first.
    void setViewPortUpdateOnDrag(bool update);

    bool isMovingSection() const;
    /// The logical index of the section that is dragged, and of the one whose place it would take;
    /// -1 while none is dragged.
    int movingFrom() const;
    int movingTo() const;

    /// The visual index that a section, pressed at one visual index and dragged over another, would
    /// take with the cursor here and that section's middle there.
    static int targetOf(int pressed, int visual, int position, int middle);

public Q_SLOTS:
    void setLastSectionPress(int logicalIndex);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    int calcMoveToPosition(int position) const;
    void updateView() const;

    QIcon icon_;
    bool viewportUpdateOnDrag_ = true;
    int lastSectionPress_ = -1;
    int moveTarget_ = 0;
};
