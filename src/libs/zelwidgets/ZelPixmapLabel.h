#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QWidget>

/// A picture in a frame with a soft shadow. With drag data set it can be dragged.
class ZELWIDGETS_EXPORT ZelPixmapLabel : public QWidget
{
    Q_OBJECT

public:
    /// The size is that of the picture in logical pixels; the frame adds one on each side.
    explicit ZelPixmapLabel(const QSize &size);

    bool highlightHover() const;

    /// Shows the picture, scaled to fit; a placeholder for a null one.
    void setPixmap(const QPixmap &pixmap);
    void clear();
    /// What a drag of the picture carries. An empty type or empty data makes it stay.
    void setDragMimeData(const QString &mimeType, const QByteArray &data);
    void setDrawBorder(bool draw);
    /// Whether an inner frame shows that the mouse is over the picture; off at first.
    void setHighlightHover(bool highlight);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setHovered(bool hovered);
    QPixmap dragPicture() const;
    void startDrag();

    bool isDragPending_ = false;
    QPoint pressPosition_;
    QString mimeType_;
    QByteArray dragData_;
    QPixmap pixmap_;
    QSize pictureSize_;
    bool isHovered_ = false;
    bool highlightHover_ = false;
    bool drawBorder_ = true;
    bool isPlaceholder_ = true;
};
