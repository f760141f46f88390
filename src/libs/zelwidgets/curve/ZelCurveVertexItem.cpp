#include "ZelCurveVertexItem.h"

#include "curve/ZelCurveMarker.h"
#include "curve/ZelDelayedDelete.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelWidgets/ZelCurveView2Style>

#include <QGraphicsScene>

#include <cmath>

namespace {

constexpr char file[] = "src/libs/zelwidgets/curve/ZelCurveVertexItem";

bool isFinite(QPointF point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The point, if the vertex has it and it can be shown.
bool read(const ZelCurveModel &model, int index, ZelVertexData key, QPointF &point)
{
    const QVariant data = model.vertexData(index, key);
    if (!data.isValid())
        return false;
    point = data.metaType() == QMetaType::fromType<QPointF>()
                ? *static_cast<const QPointF *>(data.constData())
                : data.toPointF();
    return isFinite(point);
}

} // namespace

bool ZelCurveVertexItem::Points::operator==(const Points &other) const
{
    const auto isSame = [](QPointF a, QPointF b) {
        return a.x() == b.x() && a.y() == b.y();
    };
    return hasPosition == other.hasPosition && hasIn == other.hasIn && hasOut == other.hasOut &&
           isSame(position, other.position) && isSame(in, other.in) && isSame(out, other.out);
}

ZelCurveVertexItem::Anchor::Anchor()
{
    setFlag(ItemHasNoContents);
}

ZelCurveVertexItem::ZelCurveVertexItem(const ZelVertexHandle &handle, QGraphicsScene *scene,
                                       const ZelCurveView2Style *style, QObject *parent)
    : QObject(parent)
    , scene_(scene)
    , style_(style)
    , handle_(handle)
    , anchor_(new Anchor)
    , inAnchor_(new Anchor)
    , outAnchor_(new Anchor)
    , marker_(new Marker(anchor_, handle, ZelVertexData::Position, style->vertexDiameter,
                         Marker::Shape::Circle))
    , inMarker_(new Marker(inAnchor_, handle, ZelVertexData::InTangent, style->tangentDiameter,
                           Marker::Shape::Square))
    , outMarker_(new Marker(outAnchor_, handle, ZelVertexData::OutTangent, style->tangentDiameter,
                            Marker::Shape::Square))
    , inLine_(new FixedLineWidthItem<QGraphicsLineItem>)
    , outLine_(new FixedLineWidthItem<QGraphicsLineItem>)
{
    inLine_->setZValue(style->tangentLineZ);
    outLine_->setZValue(style->tangentLineZ);
    anchor_->setZValue(style->vertexZ);
    inAnchor_->setZValue(style->tangentZ);
    outAnchor_->setZValue(style->tangentZ);
    // Complete before they are in the scene, where every change has its price.
    update();
    onStyleUpdated();
    const std::array<QGraphicsItem *, 5> items{inLine_, outLine_, anchor_, inAnchor_, outAnchor_};
    for (QGraphicsItem *item : items)
        scene->addItem(item);
    connect(scene, &QGraphicsScene::selectionChanged, this,
            &ZelCurveVertexItem::onSelectionChanged);
}

ZelCurveVertexItem::~ZelCurveVertexItem()
{
    if (!scene_)
        return;
    // Taking a selected marker out changes the selection, which no longer matters here.
    scene_->disconnect(this);
    discard(anchor_);
    discard(inAnchor_);
    discard(outAnchor_);
    discard(inLine_);
    discard(outLine_);
}

template <typename Item>
void ZelCurveVertexItem::discard(Item *item)
{
    if (!scene_)
        return;
    scene_->removeItem(item);
    // Should no event loop come any more, the item goes with the scene.
    auto *later = new ZelDelayedDelete<Item>(item, scene_);
    later->deleteLater();
}

ZelCurveVertexItem::Marker *ZelCurveVertexItem::marker(ZelVertexData key) const
{
    switch (key) {
    case ZelVertexData::InTangent:
        return inMarker_;
    case ZelVertexData::OutTangent:
        return outMarker_;
    case ZelVertexData::Position:
        break;
    }
    return marker_;
}

ZelCurveVertexItem::Points ZelCurveVertexItem::points(const ZelCurveModel &model, int index)
{
    Points points;
    points.hasPosition = read(model, index, ZelVertexData::Position, points.position);
    if (!points.hasPosition)
        return points;
    // A tangent as long as nothing has no handle.
    points.hasIn =
        read(model, index, ZelVertexData::InTangent, points.in) && points.in != points.position;
    points.hasOut =
        read(model, index, ZelVertexData::OutTangent, points.out) && points.out != points.position;
    return points;
}

void ZelCurveVertexItem::update()
{
    if (!ZEL_SOFT_ASSERT(handle_.isValid(), "handle_.isValid()", "update", file, 258))
        return;
    const Points now = points(*handle_.model(), handle_.index());
    if (isUpToDate_ && now == shown_)
        return;
    shown_ = now;
    isUpToDate_ = true;
    anchor_->setVisible(now.hasPosition);
    if (now.hasPosition)
        anchor_->setPos(now.position);
    showTangent(*inAnchor_, *inMarker_, *inLine_, now.hasIn, now.in);
    showTangent(*outAnchor_, *outMarker_, *outLine_, now.hasOut, now.out);
}

void ZelCurveVertexItem::showTangent(Anchor &anchor, Marker &tangentMarker,
                                     FixedLineWidthItem<QGraphicsLineItem> &line, bool shown,
                                     QPointF end)
{
    if (shown) {
        anchor.setPos(end);
        line.setLine(QLineF(anchor_->pos(), end));
    } else if (tangentMarker.isSelected() && anchor.isVisible()) {
        // The selection must not vanish with the handle.
        marker_->setSelected(true);
    }
    anchor.setVisible(shown);
    line.setVisible(shown);
}

void ZelCurveVertexItem::onStyleUpdated()
{
    marker_->setDiameter(style_->vertexDiameter);
    inMarker_->setDiameter(style_->tangentDiameter);
    outMarker_->setDiameter(style_->tangentDiameter);
    marker_->setBrushes(style_->vertexFillColor, style_->vertexSelectedFillColor);
    inMarker_->setBrushes(style_->tangentFillColor, style_->tangentSelectedFillColor);
    outMarker_->setBrushes(style_->tangentFillColor, style_->tangentSelectedFillColor);
    highlight(isAnySelected());
}

bool ZelCurveVertexItem::isAnySelected() const
{
    return marker_->isSelected() || inMarker_->isSelected() || outMarker_->isSelected();
}

void ZelCurveVertexItem::onSelectionChanged()
{
    const bool highlighted = isAnySelected();
    if (highlighted != isHighlighted_)
        highlight(highlighted);
}

void ZelCurveVertexItem::highlight(bool highlighted)
{
    isHighlighted_ = highlighted;
    const ZelCurveView2Style &style = *style_;
    const auto color = [&](const QColor &normal) {
        return highlighted ? style.highlightColor : normal;
    };
    marker_->setOutline(QPen(color(style.vertexOutlineColor),
                             highlighted ? style.vertexHighlightPenWidth : style.vertexPenWidth));
    const QPen outline(color(style.tangentOutlineColor),
                       highlighted ? style.tangentHighlightPenWidth : style.tangentPenWidth);
    inMarker_->setOutline(outline);
    outMarker_->setOutline(outline);
    QPen line(color(style.tangentLineColor), zelApplicationFontHeight() * style.tangentLineWidth);
    line.setCosmetic(true);
    inLine_->setPen(line);
    outLine_->setPen(line);
}
