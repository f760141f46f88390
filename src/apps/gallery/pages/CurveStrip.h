#pragma once

#include <ZelCore/ZelBezierCurveModel>

#include <QPointer>
#include <QWidget>

#include <array>

class QCheckBox;
class QDoubleSpinBox;
class QHBoxLayout;

/// Exact time and value of the selected vertex and of the ends of its tangents.
class CurveStrip : public QWidget
{
    Q_OBJECT

public:
    explicit CurveStrip(QWidget *parent = nullptr);

    /// An invalid handle shows nothing.
    void setVertex(const ZelVertexHandle &vertex);

private:
    struct Point
    {
        ZelVertexData key;
        QDoubleSpinBox *time;
        QDoubleSpinBox *value;
    };

    Point addPoint(QHBoxLayout *row, const QString &name, ZelVertexData key);
    QDoubleSpinBox *addNumber(QHBoxLayout *row, const QString &label, const QString &name);
    void write(const Point &point);
    void showVertex();

    ZelVertexHandle vertex_;
    QPointer<ZelBezierCurveModel> curve_;
    QMetaObject::Connection following_;
    std::array<Point, 3> points_{};
    QCheckBox *smooth_ = nullptr;
    QCheckBox *gap_ = nullptr;
};
