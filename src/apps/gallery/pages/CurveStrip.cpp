#include "CurveStrip.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

CurveStrip::CurveStrip(QWidget *parent)
    : QWidget(parent)
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    rows->addLayout(row);
    points_ = {addPoint(row, tr("Vertex"), ZelVertexData::Position),
               addPoint(row, tr("Tangent in"), ZelVertexData::InTangent),
               addPoint(row, tr("Tangent out"), ZelVertexData::OutTangent)};
    smooth_ = new QCheckBox(tr("&Smooth"), this);
    gap_ = new QCheckBox(tr("&Gap behind"), this);
    row->addStretch(1);
    auto *switches = new QHBoxLayout;
    switches->setSpacing(12);
    switches->addWidget(smooth_);
    switches->addWidget(gap_);
    switches->addStretch(1);
    rows->addLayout(switches);
    connect(smooth_, &QCheckBox::toggled, this, [this](bool on) {
        if (curve_)
            curve_->setSmooth(vertex_, on);
    });
    connect(gap_, &QCheckBox::toggled, this, [this](bool on) {
        if (curve_)
            curve_->setGapAfter(vertex_, on);
    });
    showVertex();
}

CurveStrip::Point CurveStrip::addPoint(QHBoxLayout *row, const QString &name, ZelVertexData key)
{
    row->addWidget(new QLabel(name, this));
    const Point point{key, addNumber(row, tr("t"), tr("%1, time").arg(name)),
                      addNumber(row, tr("v"), tr("%1, value").arg(name))};
    for (QDoubleSpinBox *number : {point.time, point.value})
        connect(number, &QDoubleSpinBox::valueChanged, this, [this, point] { write(point); });
    row->addSpacing(10);
    return point;
}

QDoubleSpinBox *CurveStrip::addNumber(QHBoxLayout *row, const QString &label, const QString &name)
{
    auto *number = new QDoubleSpinBox(this);
    number->setRange(-1e6, 1e6);
    number->setDecimals(4);
    number->setSingleStep(0.1);
    number->setKeyboardTracking(false);
    number->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-00.0000")) + 30);
    number->setMaximumWidth(number->minimumWidth());
    number->setAccessibleName(name);
    auto *text = new QLabel(label, this);
    text->setBuddy(number);
    row->addWidget(text);
    row->addWidget(number);
    return number;
}

void CurveStrip::setVertex(const ZelVertexHandle &vertex)
{
    disconnect(following_);
    vertex_ = vertex;
    curve_ = qobject_cast<ZelBezierCurveModel *>(vertex.model());
    if (curve_)
        following_ = connect(curve_, &ZelCurveModel::changed, this, &CurveStrip::showVertex);
    showVertex();
}

void CurveStrip::write(const Point &point)
{
    vertex_.setData(point.key, QPointF(point.time->value(), point.value->value()));
    // What the curve made of it.
    showVertex();
}

void CurveStrip::showVertex()
{
    const bool isShown = curve_ && vertex_.isValid();
    for (const Point &point : points_) {
        const bool has = isShown && vertex_.hasData(point.key);
        const QPointF data = has ? vertex_.data(point.key).toPointF() : QPointF();
        const QSignalBlocker timeBlocker(point.time);
        const QSignalBlocker valueBlocker(point.value);
        point.time->setValue(data.x());
        point.value->setValue(data.y());
        point.time->setEnabled(has);
        point.value->setEnabled(has);
    }
    const QSignalBlocker smoothBlocker(smooth_);
    const QSignalBlocker gapBlocker(gap_);
    smooth_->setEnabled(isShown);
    gap_->setEnabled(isShown);
    smooth_->setChecked(isShown && curve_->isSmooth(vertex_));
    gap_->setChecked(isShown && curve_->hasGapAfter(vertex_));
}
