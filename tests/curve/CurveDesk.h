#pragma once

#include "TestCase.h"
#include "UserInput.h"
#include "curve/ZelCurveViewMarkers.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelCurveGraphicsView>
#include <ZelWidgets/ZelCurveView2>

#include <QWheelEvent>

#include <cmath>

constexpr QSize editorSize(402, 302); // with a frame of a pixel

inline bool isNear(QPointF left, QPointF right, double tolerance = 1e-6)
{
    return std::hypot(left.x() - right.x(), left.y() - right.y()) <= tolerance;
}

/// A shown editor with a curve whose second vertex has smooth tangents.
struct Desk
{
    explicit Desk(bool isNavigable = true)
        : graphics(editor.findChild<ZelCurveGraphicsView *>())
    {
        model.setVertices({{QPointF(0, 0)},
                           {QPointF(4, 2), QPointF(3, 1), QPointF(6, 4), true},
                           {QPointF(10, 5)}});
        ZelCurveView2Style style;
        style.navigable = isNavigable;
        style.sceneLeftLimit = -1000;
        editor.setStyle(&style);
        editor.addCurve(&model);
        editor.resize(editorSize);
        editor.setVisibleArea(QRectF(-1, -1, 20, 15));
        editor.show();
    }

    QPointF point(int index, ZelVertexData key = ZelVertexData::Position) const
    {
        return model.vertexData(index, key).toPointF();
    }
    QPoint pixel(int index, ZelVertexData key = ZelVertexData::Position) const
    {
        return graphics->mapFromScene(point(index, key));
    }
    QPointF exactPixel(QPointF point) const { return graphics->viewportTransform().map(point); }
    void press(int index, ZelVertexData key = ZelVertexData::Position) const
    {
        UserInput::press(graphics->viewport(), pixel(index, key));
    }
    void moveBy(QPoint start, QPoint distance, Qt::KeyboardModifiers modifiers = {}) const
    {
        UserInput::move(graphics->viewport(), start + distance, modifiers);
    }
    void release() const { UserInput::release(graphics->viewport(), QPoint(5, 5)); }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(graphics, Qt::Key(key), modifiers);
    }
    ZelCurvePointHandle selected() const
    {
        return ZelCurveViewMarkers::selected(graphics->scene());
    }
    bool wheel(QPoint angle, QPointF position, Qt::KeyboardModifiers modifiers = {}) const
    {
        QWheelEvent event(position, graphics->viewport()->mapToGlobal(position), QPoint(), angle,
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(graphics->viewport(), &event);
        return event.isAccepted();
    }

    ZelBezierCurveModel model;
    ZelCurveView2 editor;
    ZelCurveGraphicsView *graphics;
};
