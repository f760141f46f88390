#include "curve/ZelCurveAccessible.h"

#include "curve/ZelCurveViewMarkers.h"

#include <ZelWidgets/ZelCurveGraphicsView>
#include <ZelWidgets/ZelCurveScene>
#include <ZelWidgets/ZelCurveView2>

#include <QLocale>

namespace {

/// Pixels around the middle of a marker that count as the marker.
constexpr int reach = 6;

} // namespace

AccessibleCurveMarkers::AccessibleCurveMarkers(QWidget *view)
    : ZelAccessibleParts(view, QAccessible::Grouping)
{}

ZelCurveGraphicsView *AccessibleCurveMarkers::view() const
{
    return static_cast<ZelCurveGraphicsView *>(object());
}

ZelCurvePointHandle AccessibleCurveMarkers::pointAt(int index) const
{
    return view()->markers_->list(view()->scene_).value(index);
}

QString AccessibleCurveMarkers::text(QAccessible::Text kind) const
{
    const auto *editor = qobject_cast<const ZelCurveView2 *>(view()->parentWidget());
    const bool isNamed = editor && !editor->accessibleName().isEmpty();
    return isNamed && kind == QAccessible::Name ? editor->accessibleName()
                                                : ZelAccessibleParts::text(kind);
}

int AccessibleCurveMarkers::partCount() const
{
    return int(view()->markers_->list(view()->scene_).size());
}

QString AccessibleCurveMarkers::nameOf(int index) const
{
    const ZelCurvePointHandle point = pointAt(index);
    const int number = point.vertex().index() + 1;
    switch (point.key()) {
    case ZelVertexData::InTangent:
        return ZelCurveGraphicsView::tr("Incoming tangent of vertex %1").arg(number);
    case ZelVertexData::OutTangent:
        return ZelCurveGraphicsView::tr("Outgoing tangent of vertex %1").arg(number);
    case ZelVertexData::Position:
        break;
    }
    const ZelCurveModel *curve = point.vertex().model();
    return ZelCurveGraphicsView::tr("Vertex %1 of %2")
        .arg(number)
        .arg(curve ? curve->vertexCount() : 0);
}

ZelAccessibleParts::Part AccessibleCurveMarkers::part(int index) const
{
    const ZelCurvePointHandle point = pointAt(index);
    const QPointF position = point.data();
    const QRectF bounds = view()->scene_ ? view()->scene_->curvesBoundingRect() : QRectF();
    const double scale = view()->transform().m11();
    const QLocale locale = view()->locale();
    Part part;
    part.name = nameOf(index);
    part.text = ZelCurveGraphicsView::tr("%1, %2").arg(locale.toString(position.x(), 'g', 6),
                                                       locale.toString(position.y(), 'g', 6));
    part.value = position.x();
    part.minimum = qMin(bounds.left(), position.x());
    part.maximum = qMax(bounds.right(), position.x());
    part.step = scale > 0 ? 1.0 / scale : 0.0;
    const QPoint pixel = view()->viewport()->mapTo(view(), view()->mapFromScene(position));
    part.area = QRect(pixel, QSize(1, 1)).adjusted(-reach, -reach, reach, reach);
    return part;
}

int AccessibleCurveMarkers::currentPart() const
{
    return view()->markers_->indexOf(view()->scene_, ZelCurveViewMarkers::selected(view()->scene_));
}

void AccessibleCurveMarkers::selectPart(int index)
{
    view()->selectMarker(index);
}

void AccessibleCurveMarkers::setPartValue(int index, double value)
{
    const ZelCurvePointHandle point = pointAt(index);
    view()->moveMarker(point, QPointF(value, point.data().y()));
}
