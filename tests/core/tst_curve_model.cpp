#include "Rows.h"
#include "TestCase.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelCore/ZelCurvePointHandle>
#include <ZelCore/ZelPersistentVertexHandler>

#include <QHash>
#include <QLineF>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Vertex = ZelBezierCurveModel::Vertex;
using Input = std::tuple<int, ZelVertexData, QVariant, Text>;
constexpr ZelVertexData position = ZelVertexData::Position;
constexpr ZelVertexData in = ZelVertexData::InTangent;
constexpr ZelVertexData out = ZelVertexData::OutTangent;
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

bool same(QPointF left, QPointF right)
{
    return left.x() == right.x() && left.y() == right.y();
}

QPointF point(const ZelCurveModel &model, int index, ZelVertexData key = position)
{
    return model.vertexData(index, key).toPointF();
}

int gaps(const QPainterPath &path)
{
    int count = 0;
    for (int i = 1; i < path.elementCount(); ++i)
        count += path.elementAt(i).isMoveTo();
    return count;
}

/// A view that shows 100 pixels a unit across and 10 upwards.
class Stretched : public ZelCurveModel::ViewTransform
{
public:
    static QPointF toScreen(QPointF vector) { return {100.0 * vector.x(), -10.0 * vector.y()}; }
    static double length(QPointF vector) { return QLineF({}, toScreen(vector)).length(); }

    QPointF operator()(QPointF direction, QPointF vector) const override
    {
        return direction * (length(vector) / length(direction));
    }
};

/// Three vertices, the middle one smooth with tangents.
QList<Vertex> hill()
{
    Vertex middle{QPointF(1, 2), QPointF(0.5, 2), QPointF(1.75, 2)};
    middle.smooth = true;
    return {{QPointF(0, 0)}, middle, {QPointF(2, 0)}};
}

/// Does random things to a model and knows each vertex by the height that it gave it.
class Walk
{
public:
    explicit Walk(quint32 seed)
        : random_(seed)
    {
        QObject::connect(&handler, &ZelPersistentVertexHandler::vertexAdded,
                         [this](const ZelVertexHandle &handle) {
                             added = handle;
                             ++told[handle];
                         });
        QObject::connect(&handler, &ZelPersistentVertexHandler::vertexRemoved,
                         [this](const ZelVertexHandle &handle) {
                             if (--told[handle] == 0)
                                 told.remove(handle);
                         });
    }

    void step()
    {
        const int kind = random_.bounded(100);
        if (kind < 45 || model.vertexCount() == 0) {
            if (kind < 5)
                model.addVertex(float(random_.generateDouble()));
            else
                added = model.insertVertex({QPointF(random_.generateDouble(), 0)});
            heights[added] = ++height_;
            added.setData(position, QPointF(added.data(position).toPointF().x(), height_));
            return;
        }
        ZelVertexHandle handle = model.vertexHandle(random_.bounded(model.vertexCount()));
        if (kind < 55)
            handle.setData(out, QPointF(random_.generateDouble(), height_));
        else if (kind < 60)
            model.setSmooth(handle, true);
        else if (kind < 70)
            model.setGapAfter(handle, random_.bounded(2) == 0);
        else if (kind < 85)
            handle.setData(position, QPointF(random_.generateDouble(), heights.value(handle)));
        else if (kind < 99 || model.vertexCount() < 20)
            handle.remove();
        else
            load();
    }

    /// What is wrong, or an empty text.
    QString fault() const
    {
        int index = 0;
        for (const ZelVertexHandle &handle : handler) {
            if (handle != model.vertexHandle(index) || handle.index() != index)
                return QStringLiteral("the handler has another vertex at %1").arg(index);
            if (point(model, index).y() != heights.value(handle))
                return QStringLiteral("the handle at %1 is at another vertex").arg(index);
            if (index > 0 && point(model, index - 1).x() > point(model, index).x())
                return QStringLiteral("vertex %1 lies before its neighbour").arg(index);
            if (told.value(handle) != 1)
                return QStringLiteral("vertex %1 was not told once").arg(index);
            ++index;
        }
        if (index != model.vertexCount() || told.size() != index)
            return QStringLiteral("the handler lists %1, told %2, of %3 vertices")
                .arg(index)
                .arg(told.size())
                .arg(model.vertexCount());
        const auto valid = std::count_if(heights.keyBegin(), heights.keyEnd(),
                                         [](const auto &handle) { return handle.isValid(); });
        return valid == index ? QString() : QStringLiteral("%1 handles are valid").arg(valid);
    }

    ZelBezierCurveModel model;
    ZelPersistentVertexHandler handler{&model};
    ZelVertexHandle added;
    QHash<ZelVertexHandle, int> told;
    QHash<ZelVertexHandle, double> heights;

private:
    void load()
    {
        QList<Vertex> vertices = model.vertices();
        vertices.resize(vertices.size() / 2);
        model.setVertices(vertices);
        heights.clear();
        told.clear();
        for (const ZelVertexHandle &handle : handler) {
            heights[handle] = handle.data(position).toPointF().y();
            told[handle] = 1;
        }
    }

    QRandomGenerator random_;
    double height_ = 0.0;
};

} // namespace

class CurveModelTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRandomWalkKeepsHandlesAndOrder();
    void changesInsideSignalsReachLateListenersInStep();
    void listenersMayDeleteTheModel();
    void handlesOfDeadVerticesAreHarmless();
    void aLoadReplacesEverythingAtOnce();
    void verticesStayBetweenTheirNeighbours();
    void tangentsOfSmoothVerticesTurnTogetherOnScreen();
    void smoothingGivesAndAlignsTangents();
    void gapsSplitThePathAndSurviveRemovals();
    void anAddedVertexKeepsTheShape();
    void theCurveNeverTurnsBackAndItsBoundsAreTight();
    void unusableInputChangesNothing_data();
    void unusableInputChangesNothing();
};

void CurveModelTest::aRandomWalkKeepsHandlesAndOrder()
{
    for (const quint32 seed : {1u, 2u, 3u}) {
        Walk walk(seed);
        QSignalSpy changed(&walk.model, &ZelCurveModel::changed);
        for (int step = 0; step < 4000; ++step) {
            walk.step();
            const QString fault = step % 7 == 0 ? walk.fault() : QString();
            QVERIFY2(
                fault.isEmpty(),
                qPrintable(QStringLiteral("seed %1, step %2: %3").arg(seed).arg(step).arg(fault)));
        }
        QVERIFY(changed.count() > 3000);
    }
}

void CurveModelTest::changesInsideSignalsReachLateListenersInStep()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    // Heard before the handler hears the same signal.
    connect(&model, &ZelCurveModel::vertexAdded, &model, [&model](int index) {
        if (model.vertexCount() < 8)
            model.addVertex(0.25F + 0.01F * float(model.vertexCount()));
        else if (index != 0)
            model.removeVertex(0);
    });
    ZelPersistentVertexHandler handler(&model);
    QList<ZelVertexHandle> listed(handler.begin(), handler.end());
    connect(&handler, &ZelPersistentVertexHandler::vertexAdded, this,
            [&](const ZelVertexHandle &handle) {
                QVERIFY(handle.isValid() && !listed.contains(handle));
                listed.append(handle);
                if (listed.size() == 5 && model.vertexCount() == 7)
                    model.removeVertex(model.vertexCount() - 1);
            });
    connect(&handler, &ZelPersistentVertexHandler::vertexRemoved, this,
            [&](const ZelVertexHandle &handle) {
                QVERIFY(!handle.isValid());
                QCOMPARE(listed.removeAll(handle), 1);
            });
    const ZelVertexHandle added = model.insertVertex({QPointF(0.5, 1)});
    QVERIFY(same(added.data(position).toPointF(), QPointF(0.5, 1)));
    QCOMPARE(listed.size(), model.vertexCount());
    QCOMPARE(int(handler.end() - handler.begin()), model.vertexCount());
    for (int i = 0; i < model.vertexCount(); ++i)
        QVERIFY(handler.begin()[i] == model.vertexHandle(i));
}

void CurveModelTest::listenersMayDeleteTheModel()
{
    const auto dies = [](auto signal, auto action) {
        auto *model = new ZelBezierCurveModel;
        model->setVertices(hill());
        QPointer<ZelCurveModel> watched = model;
        ZelPersistentVertexHandler handler(model);
        ZelVertexHandle handle = model->vertexHandle(1);
        connect(model, signal, &handler, [model] { delete model; });
        action(model);
        return !watched && !handle.isValid() && !handle.model() && handler.begin() == handler.end();
    };
    using Model = ZelBezierCurveModel;
    QVERIFY(dies(&Model::vertexAdded, [](Model *model) { model->addVertex(0.5F); }));
    QVERIFY(dies(&Model::vertexRemoved, [](Model *model) { model->removeVertex(0); }));
    QVERIFY(dies(&Model::hardReset, [](Model *model) { model->setVertices({}); }));
    QVERIFY(dies(&Model::changed,
                 [](Model *model) { model->vertexHandle(0).setData(position, QPointF(0, 9)); }));
}

void CurveModelTest::handlesOfDeadVerticesAreHarmless()
{
    auto model = std::make_unique<ZelBezierCurveModel>();
    model->setVertices(hill());
    ZelVertexHandle removed = model->vertexHandle(0);
    ZelVertexHandle kept = model->vertexHandle(2);
    const size_t hash = qHash(removed);
    removed.remove();
    QCOMPARE(kept.index(), 1);
    QCOMPARE(removed.model(), model.get());
    QCOMPARE(qHash(removed), hash);
    QVERIFY(!model->vertexHandle(2).isValid());

    const QList<Vertex> before = model->vertices();
    const auto use = [](ZelVertexHandle handle) {
        handle.setData(position, QPointF(5, 5));
        handle.remove();
        ZelCurvePointHandle(handle, position).setData(QPointF(1, 1));
        return handle.isValid() || handle.index() != -1 || handle.hasData(position) ||
               handle.data(position).isValid() || ZelCurvePointHandle(handle, in).isValid();
    };
    QCOMPARE(QDebug::toString(kept) + QDebug::toString(removed),
             QStringLiteral("ZelVertexHandle(1)ZelVertexHandle()"));
    QVERIFY(!use(removed));
    QVERIFY(!use(ZelVertexHandle()));
    QVERIFY(model->vertices() == before);
    ZelBezierCurveModel other;
    other.setVertices(hill());
    model->setSmooth(other.vertexHandle(0), true);
    QVERIFY(model->vertices() == before);
    model.reset();
    QVERIFY(!use(kept));
    QVERIFY(kept != removed && kept != ZelVertexHandle() && kept == ZelVertexHandle(kept));
}

void CurveModelTest::aLoadReplacesEverythingAtOnce()
{
    ZelBezierCurveModel model;
    QVERIFY(model.path({}).isEmpty() && model.boundingRect().isNull() && !model.valueAt(0));
    QStringList signalsSeen;
    connect(&model, &ZelCurveModel::hardReset, this,
            [&] { signalsSeen += QStringLiteral("reset"); });
    connect(&model, &ZelCurveModel::changed, this,
            [&] { signalsSeen += QStringLiteral("changed"); });
    connect(&model, &ZelCurveModel::vertexAdded, this,
            [&] { signalsSeen += QStringLiteral("add"); });
    model.setVertices({{QPointF(3, 1)}, {QPointF(1, 2)}, {QPointF(1, 3), QPointF(5, 3)}});
    QCOMPARE(signalsSeen.join(QLatin1Char(' ')), QStringLiteral("reset changed"));
    QCOMPARE(point(model, 0), QPointF(1, 2));
    QCOMPARE(point(model, 1), QPointF(1, 3));
    QCOMPARE(point(model, 1, in), QPointF(1, 3));

    const ZelVertexHandle former = model.vertexHandle(0);
    messages().expect(QtWarningMsg, QStringLiteral("points that are not finite are ignored"));
    model.setVertices({{QPointF(notANumber, 0)}, {QPointF(1, 1), QPointF(0, infinite)}});
    QVERIFY(!former.isValid());
    QCOMPARE(model.vertexCount(), 1);
    QVERIFY(!model.hasVertexData(0, in));
    QCOMPARE(model.path({}).elementCount(), 1);
}

void CurveModelTest::verticesStayBetweenTheirNeighbours()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    QSignalSpy changed(&model, &ZelCurveModel::changed);
    ZelVertexHandle middle = model.vertexHandle(1);
    const QPointF inside(std::nextafter(1.0, 2.0), 2.0);
    middle.setData(position, inside);
    QVERIFY(same(middle.data(position).toPointF(), inside));
    QCOMPARE(changed.count(), 1);
    middle.setData(position, inside);
    QCOMPARE(changed.count(), 1);

    middle.setData(position, QPointF(7, -3));
    QVERIFY(same(middle.data(position).toPointF(), QPointF(2, -3)));
    QCOMPARE(middle.data(in).toPointF(), QPointF(1.5, -3));
    QCOMPARE(middle.data(out).toPointF(), QPointF(2.75, -3));
    middle.setData(position, QPointF(-7, 0));
    QCOMPARE(point(model, 1), QPointF(0, 0));
    QCOMPARE(middle.index(), 1);
    model.vertexHandle(0).setData(position, QPointF(-1e300, 1e300));
    QCOMPARE(point(model, 0), QPointF(-1e30, 1e30));

    ZelCurvePointHandle tangent(middle, out);
    tangent.setData(QPointF(-4, 1));
    QCOMPARE(tangent.data(), QPointF(0, 1));
    middle.setData(out, QVariant());
    QVERIFY(!tangent.isValid() && middle.hasData(in));
}

void CurveModelTest::tangentsOfSmoothVerticesTurnTogetherOnScreen()
{
    const Stretched stretched;
    ZelBezierCurveModel model;
    model.setVertices(hill());
    ZelVertexHandle middle = model.vertexHandle(1);
    const auto offset = [&](ZelVertexData key) {
        return middle.data(key).toPointF() - middle.data(position).toPointF();
    };
    for (const QPointF end : {QPointF(0.5, 4), QPointF(0.9, -3), QPointF(0.2, 2)}) {
        const double length = Stretched::length(offset(out));
        middle.setData(in, end, &stretched);
        QVERIFY(same(middle.data(in).toPointF(), end));
        QVERIFY(std::abs(Stretched::length(offset(out)) - length) < 1e-9 * length);
        const QPointF a = Stretched::toScreen(offset(in));
        const QPointF b = Stretched::toScreen(offset(out));
        QVERIFY(std::abs(a.x() * b.y() - a.y() * b.x()) < 1e-9 && QPointF::dotProduct(a, b) < 0);
    }
    // Both axes alike without a view.
    const double length = QLineF({}, offset(in)).length();
    middle.setData(out, QPointF(4, 6));
    QVERIFY(std::abs(QLineF({}, offset(in)).length() - length) < 1e-12);
    QVERIFY(std::abs(offset(in).x() * 4 - offset(in).y() * 3) < 1e-12);

    const QPointF kept = middle.data(in).toPointF();
    middle.setData(out, middle.data(position));
    QVERIFY(same(middle.data(in).toPointF(), kept));
    model.setSmooth(middle, false);
    middle.setData(out, QPointF(3, 9), &stretched);
    QVERIFY(same(middle.data(in).toPointF(), kept));
}

void CurveModelTest::smoothingGivesAndAlignsTangents()
{
    ZelBezierCurveModel model;
    model.setVertices({{QPointF(0, 0)}, {QPointF(3, 6)}, {QPointF(9, 9)}});
    model.setSmooth(model.vertexHandle(1), true);
    QCOMPARE(point(model, 1, in), QPointF(2, 5));
    QCOMPARE(point(model, 1, out), QPointF(5, 8));
    model.setSmooth(model.vertexHandle(0), true);
    QVERIFY(!model.hasVertexData(0, in) && model.hasVertexData(0, out));

    model.setVertices({{QPointF(0, 0), QPointF(-3, 4), QPointF(5, 0)}});
    model.setSmooth(model.vertexHandle(0), true);
    const QPointF a = point(model, 0, in);
    const QPointF b = point(model, 0, out);
    QVERIFY(std::abs(a.x() * b.y() - a.y() * b.x()) < 1e-12 && QPointF::dotProduct(a, b) < 0);
    QCOMPARE(QLineF({}, a).length(), 5.0);
    QCOMPARE(QLineF({}, b).length(), 5.0);
}

void CurveModelTest::gapsSplitThePathAndSurviveRemovals()
{
    ZelBezierCurveModel model;
    for (int i = 0; i < 5; ++i)
        model.insertVertex({QPointF(i, i % 2)});
    ZelVertexHandle second = model.vertexHandle(1);
    model.setGapAfter(second, true);
    QCOMPARE(gaps(model.path({})), 1);
    QVERIFY(!model.valueAt(1.5) && model.valueAt(1.0) == 1.0 && model.valueAt(2.5) == 0.5);
    second.remove();
    QVERIFY(model.hasGapAfter(model.vertexHandle(0)));
    model.removeVertex(1);
    // The vertex left of the gap stands alone by now.
    QCOMPARE(gaps(model.path({})), 1);
    QCOMPARE(QPointF(model.path({}).elementAt(0)), QPointF(0, 0));
    // A part of the curve starts at the vertex before it.
    const QPainterPath part = model.path(QRectF(3.2, 0, 0.5, 1));
    QCOMPARE(part.elementCount(), 2);
    QCOMPARE(QPointF(part.elementAt(0)), QPointF(3, 1));
    // On the line between both sides, joined to neither.
    model.addVertex(1.5F);
    QCOMPARE(point(model, 1), QPointF(1.5, 0.5));
    QVERIFY(!model.valueAt(1.2) && !model.valueAt(1.8));
}

void CurveModelTest::anAddedVertexKeepsTheShape()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    QList<double> heights;
    for (int i = 0; i <= 200; ++i)
        heights += *model.valueAt(i / 100.0);
    for (const float x : {0.5F, 1.3F, 1.3F, 0.01F, 1.999F})
        model.addVertex(x);
    QCOMPARE(model.vertexCount(), 8);
    QVERIFY(model.isSmooth(model.vertexHandle(2)));
    for (int i = 0; i <= 200; ++i)
        QVERIFY2(std::abs(*model.valueAt(i / 100.0) - heights.at(i)) < 1e-9,
                 qPrintable(QStringLiteral("at %1").arg(i / 100.0)));
    model.addVertex(-4.0F);
    QCOMPARE(point(model, 0), QPointF(-4, 0));
}

void CurveModelTest::theCurveNeverTurnsBackAndItsBoundsAreTight()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QList<Vertex> vertices;
        for (int i = 0; i < 4; ++i) {
            const auto any = [&] {
                return random.generateDouble() * 4.0;
            };
            vertices +=
                Vertex{QPointF(any(), any()), QPointF(-any(), any()), QPointF(any(), any())};
        }
        ZelBezierCurveModel model;
        model.setVertices(vertices);
        const QPainterPath path = model.path({});
        double x = path.elementAt(0).x;
        for (int i = 1; i + 2 < path.elementCount(); i += 3) {
            const double end = path.elementAt(i + 2).x;
            for (const int control : {i, i + 1})
                QVERIFY(path.elementAt(control).x >= x - 1e-12 &&
                        path.elementAt(control).x <= end + 1e-12);
            x = end;
        }
        const QRectF tight = path.boundingRect();
        const QRectF bounds = model.boundingRect();
        QVERIFY(std::abs(bounds.top() - tight.top()) < 1e-9);
        QVERIFY(std::abs(bounds.bottom() - tight.bottom()) < 1e-9);
        const double at = (bounds.left() + bounds.right()) / 2;
        QVERIFY(*model.valueAt(at) >= bounds.top() && *model.valueAt(at) <= bounds.bottom());
    }
}

void CurveModelTest::unusableInputChangesNothing_data()
{
    const char *const numbers = "points that are not finite are ignored";
    addRows<Input>({
        {"no number", {1, position, QPointF(notANumber, 1), numbers}},
        {"infinite", {1, out, QPointF(1, -infinite), numbers}},
        {"a text", {1, in, QStringLiteral("here"), "not a point"}},
        {"empty position", {1, position, QVariant(), "not a point"}},
        {"before the first", {-1, position, QPointF(), "no vertex -1"}},
        {"behind the last", {3, position, QPointF(), "no vertex 3"}},
        {"unknown key", {1, ZelVertexData(3), QPointF(), "no data of key 3"}},
    });
}

void CurveModelTest::unusableInputChangesNothing()
{
    const auto [index, key, value, message] = currentRow<Input>();
    ZelBezierCurveModel model;
    model.setVertices(hill());
    const QList<Vertex> before = model.vertices();
    QSignalSpy changed(&model, &ZelCurveModel::changed);
    messages().expect(QtWarningMsg, message);
    model.setVertexData(index, key, value);
    messages().expect(QtWarningMsg, QStringLiteral("not finite"));
    model.addVertex(std::numeric_limits<float>::infinity());
    messages().expect(QtWarningMsg, QStringLiteral("not finite"));
    QVERIFY(!model.insertVertex({QPointF(0, notANumber)}).isValid());
    QVERIFY(model.vertices() == before);
    QCOMPARE(changed.count(), 0);
}

ZEL_TEST_MAIN(CurveModelTest)
#include "tst_curve_model.moc"
