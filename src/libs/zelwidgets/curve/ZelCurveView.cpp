#include "ZelCurveView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

struct ZelCurveView::Curve
{
    QPointer<ZelCurveModel> model;
    QPen pen{Qt::black, 1.0};
    QPen disabledPen{Qt::gray, 1.0};
    QPainterPath path;
    QList<QPointF> vertices;
};

ZelCurveView::ZelCurveView(QWidget *parent)
    : QWidget(parent)
{}

ZelCurveView::~ZelCurveView() = default;

void ZelCurveView::addCurve(ZelCurveModel *model)
{
    if (!model || curveFromModel(model))
        return;
    curves_.push_back(std::make_unique<Curve>());
    curves_.back()->model = model;
    updateCurve(curves_.back().get());
    connect(model, &ZelCurveModel::changed, this, &ZelCurveView::curveChanged);
    connect(model, &ZelCurveModel::vertexAdded, this,
            [this, model](int index) { vertexAdded(ZelVertexIndex(model, index)); });
    connect(model, &ZelCurveModel::vertexRemoved, this,
            [this, model](int index) { vertexRemoved(ZelVertexIndex(model, index)); });
    connect(model, &QObject::destroyed, this, &ZelCurveView::removeDeadCurves);
    update();
}

void ZelCurveView::removeCurve(ZelCurveModel *model)
{
    Curve *curve = curveFromModel(model);
    if (!curve)
        return;
    model->disconnect(this);
    std::erase_if(curves_, [curve](const auto &other) { return other.get() == curve; });
    if (selection_.model() == model)
        clearSelection();
    update();
}

void ZelCurveView::clearCurves()
{
    for (const auto &curve : curves_) {
        if (curve->model)
            curve->model->disconnect(this);
    }
    curves_.clear();
    selection_ = {};
    Q_EMIT selectionChanged(selection_);
    update();
}

void ZelCurveView::removeDeadCurves()
{
    const bool wasSelected = selection_.index() >= 0 && !selection_.isValid();
    std::erase_if(curves_, [](const auto &curve) { return curve->model.isNull(); });
    if (wasSelected)
        clearSelection();
    update();
}

void ZelCurveView::setCurvePen(ZelCurveModel *model, const QPen &pen)
{
    if (Curve *curve = curveFromModel(model)) {
        curve->pen = pen;
        update();
    }
}

void ZelCurveView::addDecorator(ZelCurveViewDecorator *decorator)
{
    if (!decorator)
        return;
    decorators_ << decorator;
    update();
}

void ZelCurveView::setVertexSize(double size)
{
    if (!(size >= 1.0))
        return;
    vertexSize_ = size;
    update();
}

void ZelCurveView::setView(const QRectF &view)
{
    if (view == view_)
        return;
    view_ = view;
    for (const auto &curve : curves_)
        updateCurve(curve.get());
    update();
}

QTransform ZelCurveView::viewToWidget(const QSize &size, const QRectF &view, bool keepAspect)
{
    const bool isShown = view.width() > 0 && view.height() > 0 && qIsFinite(view.width()) &&
                         qIsFinite(view.height());
    if (size.isEmpty() || !isShown)
        return {};
    double sx = size.width() / view.width();
    double sy = size.height() / view.height();
    if (keepAspect)
        sx = sy = std::min(sx, sy);
    const QPointF center = view.center();
    return {
        sx, 0, 0, -sy, size.width() / 2.0 - center.x() * sx, size.height() / 2.0 + center.y() * sy};
}

ZelCurveView::Curve *ZelCurveView::curveFromModel(const ZelCurveModel *model) const
{
    const auto found = std::find_if(curves_.begin(), curves_.end(), [model](const auto &curve) {
        return model && curve->model == model;
    });
    return found == curves_.end() ? nullptr : found->get();
}

void ZelCurveView::updateCurve(Curve *curve)
{
    if (!curve || !curve->model)
        return;
    const ZelCurveModel &model = *curve->model;
    curve->path = model.path(view_);
    curve->vertices.clear();
    const int count = model.vertexCount();
    for (int i = 0; i < count; ++i)
        curve->vertices << model.vertexData(i, ZelVertexData::Position).toPointF();
}

void ZelCurveView::curveChanged()
{
    if (Curve *curve = curveFromModel(qobject_cast<ZelCurveModel *>(sender())))
        updateCurve(curve);
    update();
}

void ZelCurveView::vertexAdded(const ZelVertexIndex &index)
{
    updateCurve(curveFromModel(index.model()));
    const bool isShifted = selection_.isValid() && selection_.model() == index.model() &&
                           selection_.index() >= index.index();
    if (isShifted)
        setSelection(ZelVertexIndex(index.model(), selection_.index() + 1));
    update();
}

void ZelCurveView::vertexMoved(const ZelVertexIndex &from, const ZelVertexIndex &to)
{
    if (from == selection_)
        setSelection(to);
    updateCurve(curveFromModel(to.model()));
    update();
}

void ZelCurveView::vertexRemoved(const ZelVertexIndex &index)
{
    updateCurve(curveFromModel(index.model()));
    if (index == selection_)
        clearSelection();
    else if (selection_.isValid() && selection_.model() == index.model() &&
             selection_.index() > index.index())
        setSelection(ZelVertexIndex(index.model(), selection_.index() - 1));
    update();
}

void ZelCurveView::clearSelection()
{
    setSelection({});
}

void ZelCurveView::setSelection(const ZelVertexIndex &index)
{
    // A selection whose model died looks like none, but its index tells.
    if (index == selection_ || (index.isValid() && !curveFromModel(index.model())))
        return;
    selection_ = index;
    Q_EMIT selectionChanged(selection_);
    update();
}

void ZelCurveView::setSelectedFromPoint(const QPointF &point)
{
    const ZelVertexIndex hit = vertexAtPoint(point);
    if (hit.isValid())
        dragOffset_ =
            hit.data(ZelVertexData::Position).toPointF() - widgetToViewTransform_.map(point);
    setSelection(hit);
}

ZelVertexIndex ZelCurveView::vertexAtPoint(const QPointF &point)
{
    updateTransforms();
    for (const auto &curve : curves_) {
        for (int i = 0; i < curve->vertices.size(); ++i) {
            const QPointF position = viewToWidgetTransform_.map(curve->vertices[i]);
            if ((position - point).manhattanLength() < vertexSize_)
                return {curve->model, i};
        }
    }
    return {};
}

void ZelCurveView::updateTransforms()
{
    viewToWidgetTransform_ = viewToWidget(size(), view_, keepAspectRatio_);
    widgetToViewTransform_ = viewToWidgetTransform_.inverted();
}

void ZelCurveView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setSelectedFromPoint(event->position());
    QWidget::mousePressEvent(event);
}

void ZelCurveView::mouseMoveEvent(QMouseEvent *event)
{
    const bool isDrag = selection_.isValid() && event->buttons().testFlag(Qt::LeftButton);
    if (isDrag) {
        const QPointF position = widgetToViewTransform_.map(event->position()) + dragOffset_;
        selection_.setData(ZelVertexData::Position, position);
    }
    QWidget::mouseMoveEvent(event);
    event->setAccepted(isDrag);
}

void ZelCurveView::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
}

void ZelCurveView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QWidget::mouseDoubleClickEvent(event);
}

void ZelCurveView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    updateTransforms();
    paintDecorators(painter);
    painter.setBrush(Qt::NoBrush);
    for (const auto &curve : curves_) {
        painter.setPen(isEnabled() ? curve->pen : curve->disabledPen);
        painter.drawPath(viewToWidgetTransform_.map(curve->path));
    }
    for (const auto &curve : curves_)
        paintVertices(painter, *curve);
}

void ZelCurveView::paintDecorators(QPainter &painter)
{
    for (ZelCurveViewDecorator *decorator : std::as_const(decorators_)) {
        painter.save();
        decorator->paint(painter, view_, viewToWidgetTransform_);
        painter.restore();
    }
}

void ZelCurveView::paintVertices(QPainter &painter, const Curve &curve) const
{
    const QPen pen = isEnabled() ? curve.pen : curve.disabledPen;
    painter.setPen(pen);
    const double margin = vertexSize_ + pen.widthF();
    const QRectF visible = QRectF(rect()).adjusted(-margin, -margin, margin, margin);
    const int selected = selection_.model() == curve.model ? selection_.index() : -1;
    for (int i = 0; i < curve.vertices.size(); ++i) {
        const QPointF center = viewToWidgetTransform_.map(curve.vertices[i]);
        const bool isPoint = qIsFinite(center.x()) && qIsFinite(center.y());
        if (!isPoint || !visible.contains(center))
            continue;
        painter.setBrush(i == selected ? QBrush(pen.color()) : QBrush(Qt::NoBrush));
        painter.drawEllipse(center, vertexSize_ / 2, vertexSize_ / 2);
    }
}
