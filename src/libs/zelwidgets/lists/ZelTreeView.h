#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QString>
#include <QTreeView>

/// A tree of objects to drag and to drop on. Tool tips and copying are the owner's matter: the tree
/// only asks. The shortcut "gen.aCopy" asks to copy, as it does in ZelListView.
class ZELWIDGETS_EXPORT ZelTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit ZelTreeView(QWidget *parent = nullptr);
    ~ZelTreeView() override;

    /// Drops go to all selected rows instead of the one under the cursor, if more are selected than
    /// the tree has rows at its root.
    void setExtendDropToSelection(bool extend);
    /// For delegates that show where the cursor is.
    void setRepaintOnMouseMove(bool repaint);
    /// The tree becomes as wide as this text; an empty one leaves the width alone.
    void setSizeConstraintText(QString const &text);
    /// The role of the pictures that are dragged; Qt::DecorationRole at first.
    void setThumbnailRole(int role);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Around the drops on several rows.
    void beginDropSelection();
    void endDropSelection();
    /// A drag that the tree takes has come, or it has left or dropped.
    void dragEnter();
    void dragLeave();
    void toolTipRequested(QModelIndex idx);
    void toolTipHideRequest();
    void copyRequest();

protected:
    QModelIndexList draggableIndices() const;

    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void dropOnSelection(QDropEvent *event);
    QSize constrained(QSize size) const;

    bool extendDropToSelection_ = false;
    bool repaintOnMouseMove_ = false;
    QString sizeConstraintText_;
    int thumbnailRole_ = Qt::DecorationRole;
};
