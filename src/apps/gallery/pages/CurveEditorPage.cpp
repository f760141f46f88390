#include "CurveEditorPage.h"

#include "CurveHistory.h"
#include "CurveStrip.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelCurveView2>
#include <ZelWidgets/ZelFrameDecorator2>
#include <ZelWidgets/ZelGridDecorator2>
#include <ZelWidgets/ZelGridLabelDecorator>
#include <ZelWidgets/ZelGridResizingPositioning>
#include <ZelWidgets/ZelGridRulerDecorator>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelTimeMarkerDecorator>
#include <ZelWidgets/ZelVLineDecorator2>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <cmath>
#include <functional>

namespace {

constexpr double rulerHeight = 22.0;
constexpr QMargins viewMargins(36, 10, 12, 26);
constexpr double behindZ = -0.5;
constexpr double rulerZ = 2.0;

/// An entry of the context menu made of functions.
class Entry : public ZelCurveView2::ContextAction
{
public:
    using Context = ZelCurveView2::Context;

    Entry(QString text, std::function<bool(const Context &)> isEnabled,
          std::function<void(const Context &)> trigger)
        : text_(std::move(text))
        , isEnabled_(std::move(isEnabled))
        , trigger_(std::move(trigger))
    {}

    bool isEnabled(const Context &context) const override { return isEnabled_(context); }
    void trigger(const Context &context) override { trigger_(context); }
    QString text() const override { return text_; }

private:
    QString text_;
    std::function<bool(const Context &)> isEnabled_;
    std::function<void(const Context &)> trigger_;
};

QColor between(const QColor &from, const QColor &to, double part)
{
    const auto mix = [part](int a, int b) {
        return qRound(a + part * (b - a));
    };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

std::unique_ptr<ZelGridPositioning> lines()
{
    auto lines = std::make_unique<ZelGridResizingPositioning>();
    lines->setMinSceneWidth(0.5);
    lines->setMinPixelWidth(56);
    lines->setMinSceneHeight(0.1);
    lines->setMinPixelHeight(34);
    return lines;
}

/// What the three looks differ in.
struct Look
{
    double width;
    double diameter;
    double outline;
    bool isFilled;
};

constexpr std::array looks{Look{2, 0.6, 0.08, false}, Look{1, 0.4, 0.05, true},
                           Look{4, 0.9, 0.14, false}};

ZelBezierCurveModel *curveOf(const ZelCurvePointHandle &point)
{
    return qobject_cast<ZelBezierCurveModel *>(point.vertex().model());
}

} // namespace

CurveEditorPage::CurveEditorPage(QWidget *parent)
    : GalleryPage(parent)
    , tone_(new ZelBezierCurveModel(this))
    , falloff_(new ZelBezierCurveModel(this))
{
    fillCurves();
    history_ = new CurveHistory({tone_, falloff_}, this);
    QVBoxLayout *section = addSection(
        tr("Two curves with gaps"),
        tr("Drag vertices and tangents; Shift keeps to an axis, Escape puts back, beyond the edge "
           "the view scrolls. A double click adds a vertex, Delete removes one. Tab walks the "
           "vertices, Space goes on to tangents, arrows move by a pixel, with Shift by ten. The "
           "wheel zooms, with Shift or Alt along one axis; drag the ground to pan, Home fits."));
    addControls(section);
    addView(section);
    strip_ = new CurveStrip(this);
    section->addWidget(strip_);
    connect(view_, &ZelCurveView2::selectionChanged, strip_, &CurveStrip::setVertex);
    leaveWheelToScrolling();
}

CurveEditorPage::~CurveEditorPage() = default;

void CurveEditorPage::fillCurves()
{
    tone_->setVertices({{QPointF(0, 0), {}, QPointF(1, 0), true},
                        {QPointF(2.5, 0.75), QPointF(1.8, 0.6), QPointF(3.2, 0.9), true},
                        {QPointF(4, 0.8), QPointF(3.5, 0.9), {}, false, true},
                        {QPointF(5, 0.35)},
                        {QPointF(6.5, 0.6), QPointF(6, 0.6), QPointF(7, 0.6), true},
                        {QPointF(8, 1)}});
    falloff_->setVertices({{QPointF(0.5, 1), {}, QPointF(1.5, 1)},
                           {QPointF(3, 0.4), QPointF(2.2, 0.45), {}, false, true},
                           {QPointF(3.6, 0.3)},
                           {QPointF(7.5, 0.05), QPointF(5.5, 0.05), {}}});
}

void CurveEditorPage::addControls(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(10);
    section->addLayout(row);
    addHistoryButtons(row);
    navigation_ = new QCheckBox(tr("&Navigation"), this);
    decorated_ = new QCheckBox(tr("&Decorators"), this);
    for (QCheckBox *box : {navigation_, decorated_}) {
        box->setChecked(true);
        row->addWidget(box);
        connect(box, &QCheckBox::toggled, this, &CurveEditorPage::lookChanged);
    }
    looks_ = new QComboBox(this);
    looks_->addItems({tr("Usual"), tr("Fine"), tr("Bold")});
    connect(looks_, &QComboBox::currentIndexChanged, this, &CurveEditorPage::lookChanged);
    auto *label = new QLabel(tr("&Look"), this);
    label->setBuddy(looks_);
    row->addWidget(label);
    row->addWidget(looks_);
    row->addStretch(1);
}

void CurveEditorPage::addHistoryButtons(QHBoxLayout *row)
{
    const auto add = [this, row](QAction *action, const QKeySequence &keys) {
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
        auto *button = new ZelPushButton(action->text(), this);
        button->setEnabled(action->isEnabled());
        button->setToolTip(keys.toString(QKeySequence::NativeText));
        connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::enabledChanged, button, &QWidget::setEnabled);
        row->addWidget(button);
    };
    add(history_->stack()->createUndoAction(this, tr("&Undo")), QKeySequence::Undo);
    add(history_->stack()->createRedoAction(this, tr("&Redo")), QKeySequence::Redo);
}

void CurveEditorPage::addView(QVBoxLayout *section)
{
    view_ = new ZelCurveView2(this);
    view_->setAccessibleName(tr("Tone curve and falloff"));
    view_->setMinimumHeight(360);
    applyStyle();
    view_->addCurve(tone_);
    view_->addCurve(falloff_);
    view_->setVisibleArea(QRectF(-0.4, -0.15, 9.0, 1.3));
    connect(view_, &ZelCurveView2::dragStarted, history_, &CurveHistory::begin);
    connect(view_, &ZelCurveView2::dragEnded, history_, &CurveHistory::end);
    watch(view_, &ZelCurveView2::selectionChanged, QStringLiteral("selectionChanged"));
    watch(view_, &ZelCurveView2::dragStarted, QStringLiteral("dragStarted"));
    watch(view_, &ZelCurveView2::dragEnded, QStringLiteral("dragEnded"));
    section->addWidget(view_, 1);
    addContextActions();
}

ZelBezierCurveModel *CurveEditorPage::curveNear(const QPointF &position) const
{
    const auto distance = [&position](const ZelBezierCurveModel *curve) {
        return std::abs(curve->valueAt(position.x()).value_or(1e9) - position.y());
    };
    return distance(tone_) <= distance(falloff_) ? tone_ : falloff_;
}

void CurveEditorPage::addContextActions()
{
    using Context = ZelCurveView2::Context;
    const auto isOnMarker = [](const Context &context) {
        return context.handle.isValid();
    };
    const auto isAnywhere = [](const Context &) {
        return true;
    };
    const auto add = [this](const QString &text, auto isEnabled, auto trigger) {
        view_->addContextMenuAction(std::make_unique<Entry>(text, isEnabled, trigger));
    };
    add(tr("Add Vertex"), isAnywhere, [this](const Context &context) {
        curveNear(context.scenePosition)->addVertex(float(context.scenePosition.x()));
    });
    add(tr("Remove Vertex"), isOnMarker,
        [](const Context &context) { context.handle.vertex().remove(); });
    add(tr("Smooth or Not"), isOnMarker, [](const Context &context) {
        if (ZelBezierCurveModel *curve = curveOf(context.handle))
            curve->setSmooth(context.handle.vertex(), !curve->isSmooth(context.handle.vertex()));
    });
    add(tr("Gap Behind or Not"), isOnMarker, [](const Context &context) {
        if (ZelBezierCurveModel *curve = curveOf(context.handle))
            curve->setGapAfter(context.handle.vertex(),
                               !curve->hasGapAfter(context.handle.vertex()));
    });
    add(tr("Fit All"), isAnywhere, [this](const Context &) { view_->zoomToFit(); });
}

void CurveEditorPage::showEvent(QShowEvent *event)
{
    // Only now the page has the window's look.
    lookChanged();
    GalleryPage::showEvent(event);
}

void CurveEditorPage::lookChanged()
{
    applyStyle();
    addDecorators();
    // The connectors of gaps keep their look until the curve changes.
    for (ZelBezierCurveModel *curve : {tone_, falloff_})
        Q_EMIT curve->changed();
}

void CurveEditorPage::applyStyle()
{
    const Look look = looks[std::size_t(looks_->currentIndex())];
    const QColor text = palette().color(QPalette::WindowText);
    const QColor ground = palette().color(QPalette::Base);
    const QColor accent = palette().color(QPalette::Link);
    ZelCurveView2Style style = view_->getStyle();
    style.navigable = navigation_->isChecked();
    style.viewportMargins = decorated_->isChecked() ? viewMargins : QMargins();
    style.sceneLeftLimit = -20.0F;
    style.autoScrollStepY = 0.004;
    style.backgroundColor = ground;
    style.defaultCurveColor = accent;
    // The pens of curves count the pixels of the device.
    style.defaultCurveWidth = qRound(look.width * devicePixelRatioF());
    style.curveColors.insert(tone_, accent);
    style.curveColors.insert(falloff_, between(text, QColor(0xe0, 0x80, 0x30), 0.8));
    style.highlightColor = text;
    style.vertexOutlineColor = between(accent, text, 0.3);
    style.vertexFillColor = look.isFilled ? style.vertexOutlineColor : ground;
    style.vertexSelectedFillColor = text;
    style.vertexPenWidth = look.outline;
    style.vertexHighlightPenWidth = 1.5 * look.outline;
    style.vertexDiameter = look.diameter;
    style.tangentOutlineColor = between(ground, text, 0.7);
    style.tangentFillColor = look.isFilled ? style.tangentOutlineColor : ground;
    style.tangentSelectedFillColor = text;
    style.tangentPenWidth = look.outline;
    style.tangentHighlightPenWidth = 1.2 * look.outline;
    style.tangentDiameter = 0.75 * look.diameter;
    style.tangentLineColor = between(ground, text, 0.5);
    style.tangentLineWidth = 0.06;
    view_->setStyle(&style);
}

/// Builds all decorators anew: some take their colours only once.
void CurveEditorPage::addDecorators()
{
    view_->clearDecorators();
    if (!decorated_->isChecked())
        return;
    const QColor text = palette().color(QPalette::WindowText);
    const QColor ground = palette().color(QPalette::Base);
    auto *grid = new ZelGridDecorator2;
    grid->setPen(QPen(between(ground, text, 0.12), 1));
    grid->setPositioning(lines());
    view_->addDecoratorToBackground(grid);
    auto *axes = new ZelAxisDecorator;
    axes->setPen(QPen(between(ground, text, 0.4), 1));
    view_->addDecoratorToBackground(axes);
    auto *line = new ZelVLineDecorator2;
    line->setPen(QPen(between(ground, palette().color(QPalette::Link), 0.6), 1, Qt::DashLine));
    line->setPosition(6);
    view_->addDecoratorToBackground(line);
    addRuler();
    auto *labels = new ZelGridLabelDecorator;
    labels->setPositioning(lines());
    labels->setLabelColor(text);
    labels->setZOrderVerticalLabels(behindZ);
    labels->setZOrderHorizontalLabels(rulerZ + 0.2);
    view_->addDecoratorToForeground(labels);
    addTimeMarker();
    auto *frame = new ZelFrameDecorator2;
    frame->setPen(QPen(between(ground, text, 0.5), 2));
    view_->addDecoratorToForeground(frame);
}

void CurveEditorPage::addRuler()
{
    auto *ruler = new ZelGridRulerDecorator;
    ruler->setColor(palette().color(QPalette::Window));
    ruler->setBorderColor(
        between(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.3));
    ruler->setHeight(rulerHeight);
    ruler->setZOrder(rulerZ);
    watch(ruler, &ZelGridRulerDecorator::clicked, QStringLiteral("clicked"));
    watch(ruler, &ZelGridRulerDecorator::released, QStringLiteral("released"));
    view_->addDecoratorToForeground(ruler);
}

void CurveEditorPage::addTimeMarker()
{
    const QColor text = palette().color(QPalette::WindowText);
    auto *marker = new ZelTimeMarkerDecorator(ZelTimeMarkerDecorator::TrianglePosition::Bottom);
    marker->setPen(QPen(between(palette().color(QPalette::Base), text, 0.6), 1));
    marker->setHoverPen(QPen(palette().color(QPalette::Link), 2));
    marker->setSplitHeight(rulerHeight);
    marker->setZOrderTop(behindZ);
    marker->setZOrderBottom(rulerZ + 0.1);
    view_->addDecoratorToForeground(marker);
    marker->setPosition(1.5);
    watch(marker, &ZelTimeMarkerDecorator::markerPositionChanged,
          QStringLiteral("markerPositionChanged"));
}
