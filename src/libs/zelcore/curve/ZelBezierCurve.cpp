#include "ZelBezierCurve.h"

#include <algorithm>
#include <cmath>

namespace {

using Vertex = ZelBezierCurveModel::Vertex;

constexpr double largest = 1e30;

bool isBefore(const Vertex &left, const Vertex &right)
{
    return left.position.x() < right.position.x();
}

/// A path drops a point to which no line leads; this is the shortest one that it keeps.
QPointF hair(QPointF point)
{
    return {1e-9 * std::max(1.0, std::abs(point.x())), 0.0};
}

bool dropUnusable(std::optional<QPointF> &tangent)
{
    if (!tangent || zelIsFinite(*tangent))
        return false;
    tangent.reset();
    return true;
}

} // namespace

bool zelIsFinite(QPointF point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

QPointF zelLimited(QPointF point)
{
    return {std::clamp(point.x(), -largest, largest), std::clamp(point.y(), -largest, largest)};
}

Vertex zelTidied(Vertex vertex)
{
    vertex.position = zelLimited(vertex.position);
    const double x = vertex.position.x();
    if (vertex.inTangent) {
        vertex.inTangent = zelLimited(*vertex.inTangent);
        vertex.inTangent->setX(std::min(x, vertex.inTangent->x()));
    }
    if (vertex.outTangent) {
        vertex.outTangent = zelLimited(*vertex.outTangent);
        vertex.outTangent->setX(std::max(x, vertex.outTangent->x()));
    }
    return vertex;
}

bool ZelBezierCurve::load(const QList<Vertex> &vertices)
{
    forget();
    vertices_.clear();
    vertices_.reserve(size_t(vertices.size()));
    bool complete = true;
    for (Vertex vertex : vertices) {
        if (!zelIsFinite(vertex.position)) {
            complete = false;
            continue;
        }
        const bool inDropped = dropUnusable(vertex.inTangent);
        const bool outDropped = dropUnusable(vertex.outTangent);
        complete = complete && !inDropped && !outDropped;
        vertices_.push_back(zelTidied(vertex));
    }
    std::stable_sort(vertices_.begin(), vertices_.end(), isBefore);
    return complete;
}

int ZelBezierCurve::indexFor(double x) const
{
    Vertex key;
    key.position.setX(x);
    return int(std::upper_bound(vertices_.begin(), vertices_.end(), key, isBefore) -
               vertices_.begin());
}

void ZelBezierCurve::insert(int index, const Vertex &vertex)
{
    forget();
    vertices_.insert(vertices_.begin() + index, vertex);
}

/// A gap on either side of the vertex stays a gap between its neighbours.
void ZelBezierCurve::remove(int index)
{
    forget();
    if (index > 0 && index + 1 < count() && at(index).gapAfter)
        vertices_[size_t(index) - 1].gapAfter = true;
    vertices_.erase(vertices_.begin() + index);
}

bool ZelBezierCurve::replace(int index, const Vertex &vertex)
{
    if (at(index) == vertex)
        return false;
    forget();
    vertices_[size_t(index)] = vertex;
    return true;
}

Vertex ZelBezierCurve::moved(int index, QPointF position) const
{
    const double left = index > 0 ? at(index - 1).position.x() : -largest;
    const double right = index + 1 < count() ? at(index + 1).position.x() : largest;
    position = zelLimited(position);
    position.setX(std::clamp(position.x(), left, right));

    Vertex vertex = at(index);
    const QPointF way = position - vertex.position;
    vertex.position = position;
    if (vertex.inTangent)
        *vertex.inTangent += way;
    if (vertex.outTangent)
        *vertex.outTangent += way;
    return zelTidied(vertex);
}

Vertex ZelBezierCurve::split(double x)
{
    const int next = indexFor(x);
    Vertex vertex;
    vertex.position.setX(x);
    if (next == 0 || next == count()) {
        if (count() > 0)
            vertex.position.setY(at(next == 0 ? 0 : count() - 1).position.y());
        return vertex;
    }
    const ZelBezierPiece whole = piece(next - 1);
    if (!hasPiece(next - 1) || isStraight(next - 1)) {
        const double part = (x - whole.from.x()) / (whole.to.x() - whole.from.x());
        vertex.position.setY(whole.from.y() * (1.0 - part) + whole.to.y() * part);
        vertex.gapAfter = !hasPiece(next - 1);
        return vertex;
    }
    const auto [before, behind] = whole.split(whole.parameterAt(x));
    forget();
    if (auto &tangent = vertices_[size_t(next) - 1].outTangent)
        tangent = before.control1;
    if (auto &tangent = vertices_[size_t(next)].inTangent)
        tangent = behind.control2;
    vertex.position.setY(before.to.y());
    vertex.inTangent = before.control2;
    vertex.outTangent = behind.control1;
    vertex.smooth = true;
    return zelTidied(vertex);
}

bool ZelBezierCurve::hasPiece(int index) const
{
    return index >= 0 && index + 1 < count() && !at(index).gapAfter;
}

bool ZelBezierCurve::isStraight(int index) const
{
    return !at(index).outTangent && !at(index + 1).inTangent;
}

ZelBezierPiece ZelBezierCurve::piece(int index) const
{
    const Vertex &from = at(index);
    const Vertex &to = at(index + 1);
    return ZelBezierPiece::between(from.position, from.outTangent.value_or(from.position),
                                   to.inTangent.value_or(to.position), to.position);
}

std::optional<double> ZelBezierCurve::valueAt(double x) const
{
    const int next = indexFor(x);
    if (next > 0 && at(next - 1).position.x() == x)
        return at(next - 1).position.y();
    if (!hasPiece(next - 1))
        return {};
    const ZelBezierPiece whole = piece(next - 1);
    if (!isStraight(next - 1))
        return whole.at(whole.parameterAt(x)).y();
    const double part = (x - whole.from.x()) / (whole.to.x() - whole.from.x());
    return whole.from.y() * (1.0 - part) + whole.to.y() * part;
}

QPainterPath ZelBezierCurve::path() const
{
    if (!path_) {
        path_.emplace();
        addPieces(*path_, 0, count() - 1);
    }
    return *path_;
}

QPainterPath ZelBezierCurve::path(double left, double right) const
{
    QPainterPath path;
    const int first = std::max(0, indexFor(left) - 1);
    const int last = std::min(count() - 1, indexFor(right));
    addPieces(path, first, last);
    return path;
}

void ZelBezierCurve::addPieces(QPainterPath &path, int first, int last) const
{
    if (first > last)
        return;
    path.reserve(3 * (last - first) + 1);
    path.moveTo(at(first).position);
    for (int i = first; i < last; ++i) {
        if (!hasPiece(i)) {
            if (!hasPiece(i - 1))
                path.lineTo(at(i).position + hair(at(i).position));
            path.moveTo(at(i + 1).position);
        } else if (isStraight(i)) {
            path.lineTo(at(i + 1).position);
        } else {
            const ZelBezierPiece part = piece(i);
            path.cubicTo(part.control1, part.control2, part.to);
        }
    }
}

QRectF ZelBezierCurve::bounds() const
{
    if (vertices_.empty())
        return {};
    if (!bounds_) {
        double low = at(0).position.y();
        double high = low;
        for (int i = 0; i < count(); ++i) {
            const double y = at(i).position.y();
            const auto [pieceLow, pieceHigh] =
                hasPiece(i) && !isStraight(i) ? piece(i).heights() : std::pair(y, y);
            low = std::min(low, pieceLow);
            high = std::max(high, pieceHigh);
        }
        bounds_ =
            QRectF(QPointF(at(0).position.x(), low), QPointF(vertices_.back().position.x(), high));
    }
    return *bounds_;
}

void ZelBezierCurve::forget()
{
    path_.reset();
    bounds_.reset();
}
