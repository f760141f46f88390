#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QListView>
#include <QPersistentModelIndex>

/// A list of thumbnails to drag out and to drop on. Tool tips and copying are the owner's matter:
/// the list only asks.
///
/// The shortcut "gen.aCopy" asks to copy. Applications register it with their key, usually Ctrl+C,
/// before the first list is made; else it is the keyboard's Copy key.
class ZELWIDGETS_EXPORT ZelListView : public QListView
{
    Q_OBJECT

public:
    explicit ZelListView(QWidget *parent = nullptr);
    ~ZelListView() override;

    /// Drops go to all selected items instead of the one under the cursor, if more are selected
    /// than the list has rows.
    void setExtendDropToSelection(bool extend);

Q_SIGNALS:
    /// Around the drops on several items.
    void beginDropSelection();
    void endDropSelection();
    /// A drag that the list takes has come, or it has left or dropped.
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
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void doExtendDropToSelection(QDropEvent *event);
    QList<QPersistentModelIndex> getDropTargets(QDropEvent const *event) const;
    bool dropOn(QDropEvent const *event, QList<QPersistentModelIndex> const &targets);

    bool extendDropToSelection_ = false;
};

/// A list that asks for other icon sizes: Ctrl and the wheel, Ctrl+Plus and Ctrl+Minus.
class ZELWIDGETS_EXPORT ZelListViewWithZoom : public ZelListView
{
    Q_OBJECT

public:
    explicit ZelListViewWithZoom(QWidget *parent = nullptr);

    using QListView::resize;

Q_SIGNALS:
    /// By eighths of a degree, as the wheel tells them: 120 is a notch, or a key press.
    void resize(int delta);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
