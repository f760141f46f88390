#include "ZelListWidget.h"

#include "lists/ZelZoomAnchor.h"
#include "lists/ZelZoomRequest.h"

#include <QDropEvent>

namespace {

constexpr int spare = 5;

} // namespace

ZelListWidget::ZelListWidget(QWidget *parent)
    : QListWidget(parent)
{
    setAcceptDrops(true);
}

void ZelListWidget::dragEnterEvent(QDragEnterEvent *event)
{
    event->accept();
}

void ZelListWidget::dragMoveEvent(QDragMoveEvent *event)
{
    event->accept();
}

void ZelListWidget::dropEvent(QDropEvent *event)
{
    event->accept();
    Q_EMIT gotDropData(event->mimeData());
}

ZelListWidgetWithZoom::ZelListWidgetWithZoom(QWidget *parent)
    : QListWidget(parent)
{}

void ZelListWidgetWithZoom::keyPressEvent(QKeyEvent *event)
{
    if (const auto delta = ZelZoomRequest::of(event)) {
        const ZelZoomAnchor anchor(this);
        Q_EMIT resize(*delta);
    } else {
        QAbstractItemView::keyPressEvent(event);
    }
}

void ZelListWidgetWithZoom::wheelEvent(QWheelEvent *event)
{
    if (const auto delta = ZelZoomRequest::of(event)) {
        const ZelZoomAnchor anchor(this, event->position().toPoint());
        Q_EMIT resize(*delta);
    } else {
        QListWidget::wheelEvent(event);
    }
}

QSize ZelListWidgetWithSizeHint::sizeHint() const
{
    return {sizeHintForColumn(0) + spare, QListWidget::sizeHint().height()};
}
