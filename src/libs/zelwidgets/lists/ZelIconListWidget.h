#pragma once

#include <ZelWidgets/ZelListWidget>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPersistentModelIndex>

class ZelIconListWidgetAdapter;

/// The list of a library browser: large thumbnails to be dragged out, renamed, copied and opened.
///
/// A click on the selected item renames it, a Shift+click copies it, a double click opens it. What
/// that means is up to the adapter.
class ZELWIDGETS_EXPORT ZelIconListWidget : public ZelListWidgetWithZoom
{
    Q_OBJECT

public:
    /// The adapter is not owned and has to live as long as the list.
    ZelIconListWidget(QWidget *parent, ZelIconListWidgetAdapter *adapter);
    ~ZelIconListWidget() override;

    void setIconMode();
    void setListMode();
    /// Whether tool tips are the adapter's.
    void enableCustomTooltips(bool enable);

protected:
    void removeCustomToolTip();
    virtual QPixmap pixmapFromItem(QListWidgetItem *item, QSize size);
    /// Written when it is asked for: the pictures of many items take long.
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override;

    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    bool viewportEvent(QEvent *event) override;

private Q_SLOTS:
    void slotCopyHotKey();

private:
    void repairAfterDrag(QListWidgetItem *pressed);
    void selectOnly(QListWidgetItem *item);
    bool copyByClick(QListWidgetItem *item, Qt::KeyboardModifiers modifiers);
    void updateToolTip();
    QPixmap dragPicture(const QList<QListWidgetItem *> &items);
    QPixmap dragPixmap(QListWidgetItem *item);

    ZelIconListWidgetAdapter *adapter_;
    bool dragFinished_ = false;
    bool customTooltips_ = false;
    QPersistentModelIndex tooltipItem_;
    QPersistentModelIndex pressedItem_;
};
