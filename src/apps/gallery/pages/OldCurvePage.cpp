#include "OldCurvePage.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelCurveView>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr QRectF wholeArea(-0.5, -0.1, 9, 1.2);

} // namespace

OldCurvePage::OldCurvePage(QWidget *parent)
    : GalleryPage(parent)
    , wave_(new ZelBezierCurveModel(this))
    , ramp_(new ZelBezierCurveModel(this))
    , view_(new ZelCurveView(this))
{
    wave_->setVertices({{QPointF(0, 0.5), {}, QPointF(1, 1)},
                        {QPointF(4, 0.5), QPointF(3, 0), QPointF(5, 1)},
                        {QPointF(8, 0.5), QPointF(7, 0), {}}});
    ramp_->setVertices({{QPointF(0, 0.1)},
                        {QPointF(3, 0.3), {}, {}, false, true},
                        {QPointF(4, 0.6)},
                        {QPointF(8, 0.9)}});
    QVBoxLayout *section =
        addSection(tr("The simple view"),
                   tr("Click a vertex to select it and drag it; the view neither zooms nor shows "
                      "tangents. ZelCurveView2 does."));
    auto *row = new QHBoxLayout;
    row->setSpacing(10);
    section->addLayout(row);
    addControls(row);
    view_->setAccessibleName(tr("Wave and ramp"));
    view_->setMinimumHeight(320);
    view_->setView(wholeArea);
    view_->setVertexSize(9);
    for (ZelCurveViewDecorator *decorator : {static_cast<ZelCurveViewDecorator *>(&grid_),
                                             static_cast<ZelCurveViewDecorator *>(&line_),
                                             static_cast<ZelCurveViewDecorator *>(&frame_)})
        view_->addDecorator(decorator);
    line_.setPosition(6);
    view_->addCurve(wave_);
    view_->addCurve(ramp_);
    watch(view_, &ZelCurveView::selectionChanged, QStringLiteral("selectionChanged"));
    section->addWidget(view_, 1);
    leaveWheelToScrolling();
}

OldCurvePage::~OldCurvePage()
{
    delete view_;
}

void OldCurvePage::addControls(QHBoxLayout *row)
{
    auto *areas = new QComboBox(this);
    areas->setAccessibleName(tr("Shown area"));
    areas->addItems({tr("Whole curves"), tr("First half"), tr("Far away")});
    connect(areas, &QComboBox::currentIndexChanged, this, [this](int index) {
        const std::array shown{wholeArea, QRectF(-0.2, -0.1, 4.5, 1.2), QRectF(-50, -5, 110, 10)};
        view_->setView(shown[std::size_t(index)]);
    });
    row->addWidget(areas);
    auto *decades = new QCheckBox(tr("Grid in &decades"), this);
    connect(decades, &QCheckBox::toggled, this, [this](bool on) {
        grid_.setRoundToDecades(on);
        if (!on)
            grid_.setGrid(1, 0.25);
        view_->update();
    });
    row->addWidget(decades);
    auto *enabled = new QCheckBox(tr("&Enabled"), this);
    enabled->setChecked(true);
    connect(enabled, &QCheckBox::toggled, view_, &QWidget::setEnabled);
    row->addWidget(enabled);
    auto *size = new QDoubleSpinBox(this);
    size->setRange(1, 30);
    size->setDecimals(1);
    size->setValue(9);
    connect(size, &QDoubleSpinBox::valueChanged, view_, &ZelCurveView::setVertexSize);
    auto *label = new QLabel(tr("&Vertex size"), this);
    label->setBuddy(size);
    row->addWidget(label);
    row->addWidget(size);
    row->addStretch(1);
}

void OldCurvePage::showEvent(QShowEvent *event)
{
    // Only now the page has the window's look.
    lookChanged();
    GalleryPage::showEvent(event);
}

void OldCurvePage::lookChanged()
{
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlphaF(0.15F);
    grid_.setPen(QPen(faint, 1));
    line_.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DashLine));
    view_->setCurvePen(wave_, QPen(palette().color(QPalette::Link), 2));
    view_->setCurvePen(ramp_, QPen(QColor(0xd0, 0x70, 0x30), 2));
    view_->update();
}
