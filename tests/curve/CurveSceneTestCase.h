#pragma once

#include "TestCase.h"
#include "curve/ZelCurveMarker.h"
#include "curve/ZelCurveSceneAccess.h"
#include "curve/ZelCurveSceneCurve.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelCurveScene>
#include <ZelWidgets/ZelCurveView2Style>

#include <algorithm>

/// Base of tests with a styled scene of curves.
class CurveSceneTestCase : public TestCase
{
    Q_OBJECT

protected:
    using Vertex = ZelBezierCurveModel::Vertex;
    using Marker = ZelCurveVertexItem::Marker;
    using LineItem = FixedLineWidthItem<QGraphicsLineItem>;
    using PathItem = FixedLineWidthItem<QGraphicsPathItem>;
    static constexpr ZelVertexData position = ZelVertexData::Position;
    static constexpr ZelVertexData in = ZelVertexData::InTangent;
    static constexpr ZelVertexData out = ZelVertexData::OutTangent;

    static QList<Vertex> hill()
    {
        return {
            {QPointF(0, 0)}, {QPointF(1, 2), QPointF(0.5, 2), QPointF(1.5, 2)}, {QPointF(2, 0)}};
    }
    static void flush()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // Items are handed on to deletions of their own.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template <typename Item>
    QList<Item *> itemsOf() const
    {
        QList<Item *> found;
        for (QGraphicsItem *item : scene_->items()) {
            if (auto *wanted = dynamic_cast<Item *>(item))
                found.append(wanted);
        }
        return found;
    }
    Marker *marker(const ZelCurveModel &model, int index, ZelVertexData key = position) const
    {
        return static_cast<Marker *>(
            ZelCurveSceneAccess::marker(*scene_, model.vertexHandle(index), key));
    }
    /// The latest debug message is this assertion.
    void expectAssertion(const char *expression, const char *function, int line,
                         const char *file = "ZelCurveScene")
    {
        const QStringList texts = messages().messages(QtDebugMsg);
        QCOMPARE(texts.size(), 1);
        QCOMPARE(texts.first(),
                 QStringLiteral("soft assertion: \"%1\" failed in function: %2\n in file: "
                                "src/libs/zelwidgets/curve/%3\n line: %4\n")
                     .arg(QLatin1String(expression), QLatin1String(function), QLatin1String(file))
                     .arg(line));
        messages().clear();
    }
    /// Every vertex has its three markers where they belong, and there are no others.
    void checkStep(const QList<ZelBezierCurveModel *> &models) const
    {
        int count = 0;
        for (const ZelBezierCurveModel *model : models) {
            QVERIFY(std::ranges::any_of(itemsOf<PathItem>(), [&](const PathItem *item) {
                return item->path() == model->path(QRectF());
            }));
            for (int i = 0; i < model->vertexCount(); ++i, ++count) {
                const Vertex vertex = model->vertices()[i];
                QVERIFY(marker(*model, i));
                QCOMPARE(marker(*model, i)->scenePos(), vertex.position);
                for (const auto &[key, end] :
                     {std::pair{in, vertex.inTangent}, std::pair{out, vertex.outTangent}}) {
                    const Marker *tangent = marker(*model, i, key);
                    const bool shown = end && *end != vertex.position;
                    QCOMPARE(tangent->isVisible(), shown);
                    if (shown)
                        QCOMPARE(tangent->scenePos(), *end);
                }
            }
        }
        QCOMPARE(itemsOf<Marker>().size(), 3 * count);
        QCOMPARE(itemsOf<LineItem>().size(), 2 * count);
        QVERIFY(scene_->selectedItems().size() <= 1);
    }

    std::unique_ptr<ZelCurveView2Style> style_;
    std::unique_ptr<ZelCurveScene> scene_;

protected Q_SLOTS:
    void init()
    {
        TestCase::init();
        style_ = std::make_unique<ZelCurveView2Style>();
        scene_ = std::make_unique<ZelCurveScene>(nullptr);
        scene_->setStyle(style_.get());
    }
    void cleanup()
    {
        scene_.reset();
        style_.reset();
        TestCase::cleanup();
    }
};
