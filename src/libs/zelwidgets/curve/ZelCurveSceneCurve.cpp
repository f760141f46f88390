#include "ZelCurveSceneCurve.h"

#include "curve/ZelCurveVertexItem.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelCore/contains>
#include <ZelWidgets/ZelCurveView2Style>

#include <algorithm>

namespace {

constexpr char file[] = "src/libs/zelwidgets/curve/ZelCurveScene";

using Element = QPainterPath::Element;

bool isSame(const QPainterPath &left, const QPainterPath &right)
{
    const int count = left.elementCount();
    if (count != right.elementCount())
        return false;
    for (int i = 0; i < count; ++i) {
        const Element a = left.elementAt(i);
        const Element b = right.elementAt(i);
        if (a.x != b.x || a.y != b.y || a.type != b.type)
            return false;
    }
    return true;
}

bool isAlmost(double a, double b)
{
    return a == 0.0 || b == 0.0 ? qFuzzyIsNull(a - b) : qFuzzyCompare(a, b);
}

/// The straight lines across the gaps between a path's pieces.
QList<QLineF> gapsOf(const QPainterPath &path)
{
    QList<QLineF> gaps;
    const int count = path.elementCount();
    for (int i = 1; i < count; ++i) {
        const Element start = path.elementAt(i);
        if (!start.isMoveTo())
            continue;
        const Element end = path.elementAt(i - 1);
        if (!(isAlmost(end.x, start.x) && isAlmost(end.y, start.y)))
            gaps.append(QLineF(end, start));
    }
    return gaps;
}

} // namespace

ZelCurveScene::Curve::Curve(ZelCurveModel *model, ZelCurveScene *scene,
                            ZelCurveView2Style const *style)
    : QObject(scene)
    , style_(style)
    , model_(model)
    , scene_(scene)
    , pathItem_(new PathItem(model->path(QRectF())))
{
    pathItem_->setZValue(style ? style->curveZ : 0.0);
    scene->addItem(pathItem_);
    auto *handler = new ZelPersistentVertexHandler(model);
    handler->setParent(this);
    vertexHandler_ = handler;
    connect(model, &ZelCurveModel::changed, this, &Curve::update);
    connect(model, &QObject::destroyed, this, &Curve::onModelDestroyed);
    connect(handler, &ZelPersistentVertexHandler::vertexRemoved, this, &Curve::removeVertex);
    connect(handler, &ZelPersistentVertexHandler::vertexAdded, this, &Curve::addVertex);
    const QList<ZelVertexHandle> handles(handler->begin(), handler->end());
    vertices_.reserve(size_t(handles.size()));
    for (const ZelVertexHandle &handle : handles)
        addVertex(handle);
    connect(scene, &ZelCurveScene::styleUpdated, this, &Curve::onStyleUpdated);
    onStyleUpdated();
}

ZelCurveScene::Curve::~Curve()
{
    if (!scene_)
        return;
    delete pathItem_;
    qDeleteAll(gapItems_);
}

void ZelCurveScene::Curve::retire()
{
    if (model_)
        model_->disconnect(this);
    if (vertexHandler_)
        vertexHandler_->disconnect(this);
    if (scene_)
        scene_->disconnect(this);
}

ZelCurveVertexItem *ZelCurveScene::Curve::vertexItem(const ZelVertexHandle &handle) const
{
    const auto found = vertices_.find(handle);
    return found == vertices_.end() ? nullptr : found->second.get();
}

void ZelCurveScene::Curve::update()
{
    if (!scene_ || !model_)
        return;
    updatePath();
    updateVertices();
}

void ZelCurveScene::Curve::updateVertices()
{
    const size_t count = inOrder_.size();
    if (count == 0 || model_->vertexCount() != int(count)) {
        updateAllVertices();
        return;
    }
    const quint64 changes = vertexChanges_;
    for (size_t i = 0; i < count; ++i) {
        const ZelCurveVertexItem::Points now = ZelCurveVertexItem::points(*model_, int(i));
        if (now == shown_[i])
            continue;
        shown_[i] = now;
        inOrder_[i]->update();
        if (changes != vertexChanges_) {
            updateAllVertices();
            return;
        }
    }
}

/// An item that hands its selection on is heard outside, where vertices may be added or removed;
/// then this begins again, which costs little for those that are up to date.
void ZelCurveScene::Curve::updateAllVertices()
{
    const quint64 changes = vertexChanges_;
    for (const auto &[handle, item] : vertices_) {
        item->update();
        if (changes != vertexChanges_) {
            updateAllVertices();
            return;
        }
    }
    learnOrder();
}

void ZelCurveScene::Curve::learnOrder()
{
    onVertexCameOrWent();
    if (!vertexHandler_)
        return;
    for (const ZelVertexHandle &handle : *vertexHandler_) {
        ZelCurveVertexItem *item = vertexItem(handle);
        // The model may have changed further in a signal that this curve hears later.
        if (!item || handle.index() != int(inOrder_.size())) {
            onVertexCameOrWent();
            return;
        }
        inOrder_.push_back(item);
        shown_.push_back(item->shown());
    }
}

void ZelCurveScene::Curve::onVertexCameOrWent()
{
    ++vertexChanges_;
    inOrder_.clear();
    shown_.clear();
}

void ZelCurveScene::Curve::updatePath()
{
    const QPainterPath path = model_->path(QRectF());
    if (!isSame(path, pathItem_->path())) {
        // The item compares paths by their exact bounds first, unless one is empty.
        pathItem_->setPath(QPainterPath());
        pathItem_->setPath(path);
    }
    updateGaps();
}

void ZelCurveScene::Curve::updateGaps()
{
    const QList<QLineF> gaps = gapsOf(pathItem_->path());
    setGapCount(int(gaps.size()));
    if (gaps.isEmpty())
        return;
    QPen pen = curvePen();
    pen.setStyle(Qt::DotLine);
    for (qsizetype i = 0; i < gaps.size(); ++i) {
        QPainterPath connector(gaps[i].p1());
        connector.lineTo(gaps[i].p2());
        gapItems_[i]->setPath(connector);
        gapItems_[i]->setPen(pen);
    }
}

void ZelCurveScene::Curve::setGapCount(int count)
{
    while (gapItems_.size() > count)
        delete gapItems_.takeLast();
    while (gapItems_.size() < count) {
        auto *item = new PathItem;
        item->setPen(pathItem_->pen());
        gapItems_.append(item);
        scene_->addItem(item);
    }
}

QPen ZelCurveScene::Curve::curvePen() const
{
    QPen pen(style_->curveColors.value(model_, style_->defaultCurveColor));
    const auto width = style_->curveWidths.constFind(model_);
    pen.setWidth(width == style_->curveWidths.cend() ? style_->defaultCurveWidth : int(*width));
    pen.setCosmetic(true);
    return pen;
}

void ZelCurveScene::Curve::onStyleUpdated()
{
    if (!scene_ ||
        !ZEL_SOFT_ASSERT(style_ != nullptr, "style_ != nullptr", "onStyleUpdated", file, 275) ||
        !ZEL_SOFT_ASSERT(model_ != nullptr, "model_ != nullptr", "onStyleUpdated", file, 276))
        return;
    pathItem_->setPen(curvePen());
    for (const auto &[handle, item] : vertices_)
        item->onStyleUpdated();
}

void ZelCurveScene::Curve::addVertex(ZelVertexHandle handle)
{
    if (!scene_)
        return;
    const bool isOwn = handle.model() == model_.data();
    if (!ZEL_SOFT_ASSERT(isOwn, "handle.model() == model_.data()", "addVertex", file, 410) ||
        !ZEL_SOFT_ASSERT(!orv::contains(vertices_, handle), "!orv::contains(vertices_, handle)",
                         "addVertex", file, 411))
        return;
    onVertexCameOrWent();
    vertices_.try_emplace(handle, new ZelCurveVertexItem(handle, scene_, style_, this));
}

void ZelCurveScene::Curve::removeVertex(ZelVertexHandle handle)
{
    const bool isOwn = handle.model() == model_.data();
    if (!ZEL_SOFT_ASSERT(isOwn, "handle.model() == model_.data()", "removeVertex", file, 400) ||
        !ZEL_SOFT_ASSERT(orv::contains(vertices_, handle), "orv::contains(vertices_, handle)",
                         "removeVertex", file, 401))
        return;
    onVertexCameOrWent();
    vertices_.erase(handle);
}

/// What is left of the curve is a line that belongs to nothing.
void ZelCurveScene::Curve::onModelDestroyed()
{
    onVertexCameOrWent();
    vertices_.clear();
    if (!scene_)
        return;
    setGapCount(0);
    pathItem_->setPath(QPainterPath());
}
