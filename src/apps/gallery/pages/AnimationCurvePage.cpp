#include "AnimationCurvePage.h"

#include "BallRecording.h"
#include "BallStage.h"
#include "CurveFitting.h"
#include "RecordingDecorator.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelCurveView2>
#include <ZelWidgets/ZelGridDecorator2>
#include <ZelWidgets/ZelGridLabelDecorator>
#include <ZelWidgets/ZelGridResizingPositioning>
#include <ZelWidgets/ZelGridRulerDecorator>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelTimeMarkerDecorator>

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

constexpr double dropHeight = 3.0;
constexpr double stepsPerSecond = 60.0;
constexpr QMargins viewMargins(44, 8, 12, 28);
constexpr double rulerHeight = 24.0;

// Behind the curve's line, at 0: the upper part of the marker. Before the vertices: the band, on it
// the lower part of the marker and the times.
constexpr double markerTopZ = -0.5;
constexpr double valuesZ = -0.6;
constexpr double rulerZ = 2.0;
constexpr double markerBottomZ = 2.1;
constexpr double timesZ = 2.2;

QColor mixed(const QColor &a, const QColor &b, double part)
{
    const auto mix = [part](int from, int to) {
        return qRound(from + part * (to - from));
    };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

std::unique_ptr<ZelGridPositioning> gridLines()
{
    auto lines = std::make_unique<ZelGridResizingPositioning>();
    lines->setMinSceneWidth(0.5);
    lines->setMinPixelWidth(48);
    lines->setMinSceneHeight(0.25);
    lines->setMinPixelHeight(32);
    return lines;
}

} // namespace

AnimationCurvePage::AnimationCurvePage(QWidget *parent)
    : GalleryPage(parent)
    , model_(new ZelBezierCurveModel(this))
{
    QVBoxLayout *section = addSection(
        tr("A recorded motion as a curve"),
        tr("A ball that bounces was recorded 240 times a second; the wide line shows it. The curve "
           "follows it with few vertices, corners where the ball bounces. The ball moves by the "
           "curve: drag a vertex or a tangent, also while it plays. Drag the time marker, or press "
           "the ruler below. The wheel zooms, with Shift and Alt along one axis."));
    addControls(section);
    addView(section);
    connect(model_, &ZelCurveModel::changed, this, [this] {
        tellQuality();
        showTime(time_->value());
    });
    player_.setTimerType(Qt::PreciseTimer);
    player_.setInterval(std::chrono::milliseconds(int(1000.0 / stepsPerSecond)));
    connect(&player_, &QTimer::timeout, this, &AnimationCurvePage::advance);
    record();
    view_->setVisibleArea(QRectF(0.0, -0.1, BallRecording::duration, dropHeight + 0.22));
    leaveWheelToScrolling();
}

AnimationCurvePage::~AnimationCurvePage() = default;

void AnimationCurvePage::addControls(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    section->addLayout(row);
    playButton_ = new ZelPushButton(tr("&Play"), this);
    playButton_->setCheckable(true);
    connect(playButton_, &QAbstractButton::toggled, this, &AnimationCurvePage::play);
    row->addWidget(playButton_);
    time_ = addNumber(row, tr("T&ime"), 0.0, BallRecording::duration, 0.0, 3, tr(" s"));
    connect(time_, &QDoubleSpinBox::valueChanged, this, &AnimationCurvePage::moveTo);
    height_ = new QLabel(this);
    row->addWidget(height_);
    row->addStretch(1);
    bounciness_ = addNumber(row, tr("Bounci&ness"), 0.1, 0.95, BallRecording().bounciness, 2, {});
    connect(bounciness_, &QDoubleSpinBox::valueChanged, this, &AnimationCurvePage::record);
    tolerance_ = addNumber(row, tr("To&lerance"), 0.001, 0.5, 0.01, 3, tr(" m"));
    connect(tolerance_, &QDoubleSpinBox::valueChanged, this, &AnimationCurvePage::fit);
    auto *again = new ZelPushButton(tr("Fit &again"), this);
    connect(again, &QAbstractButton::clicked, this, &AnimationCurvePage::fit);
    row->addWidget(again);
}

QDoubleSpinBox *AnimationCurvePage::addNumber(QHBoxLayout *row, const QString &label, double least,
                                              double most, double value, int decimals,
                                              const QString &suffix)
{
    auto *number = new QDoubleSpinBox(this);
    number->setRange(least, most);
    number->setDecimals(decimals);
    number->setSingleStep(most > 1.0 ? 0.1 : 0.01);
    number->setSuffix(suffix);
    number->setValue(value);
    number->setKeyboardTracking(false);
    auto *text = new QLabel(label, this);
    text->setBuddy(number);
    row->addWidget(text);
    row->addWidget(number);
    return number;
}

void AnimationCurvePage::addView(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    section->addLayout(row, 1);
    view_ = new ZelCurveView2(this);
    view_->setAccessibleName(tr("Height of the ball over the time"));
    // By itself a view wants to be as large as its scene at the present zoom.
    view_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    view_->setMinimumSize(320, 380);
    // The limits of the style have to be there before the curve.
    applyStyle();
    view_->addCurve(model_);
    watch(view_, &ZelCurveView2::selectionChanged, QStringLiteral("selectionChanged"));
    watch(view_, &ZelCurveView2::dragStarted, QStringLiteral("dragStarted"));
    watch(view_, &ZelCurveView2::dragEnded, QStringLiteral("dragEnded"));
    row->addWidget(view_, 1);
    stage_ = new BallStage(dropHeight, this);
    row->addWidget(stage_);
    quality_ = new QLabel(this);
    section->addWidget(quality_);
}

void AnimationCurvePage::showEvent(QShowEvent *event)
{
    // Only now the page has the window's look.
    lookChanged();
    GalleryPage::showEvent(event);
}

void AnimationCurvePage::hideEvent(QHideEvent *event)
{
    playButton_->setChecked(false);
    GalleryPage::hideEvent(event);
}

void AnimationCurvePage::lookChanged()
{
    applyStyle();
    addDecorators();
}

void AnimationCurvePage::applyStyle()
{
    const QColor text = palette().color(QPalette::WindowText);
    const QColor ground = palette().color(QPalette::Window);
    const QColor accent = palette().color(QPalette::Link);
    ZelCurveView2Style style = view_->getStyle();
    style.navigable = true;
    style.viewportMargins = viewMargins;
    style.sceneLeftLimit = -5.0F;
    style.backgroundColor = mixed(ground, text.lightness() > 128 ? Qt::black : Qt::white, 0.3);
    style.defaultCurveColor = accent;
    // The pens of curves count the pixels of the device.
    style.defaultCurveWidth = qRound(2.0 * devicePixelRatioF());
    style.highlightColor = text;
    style.vertexOutlineColor = accent;
    style.vertexFillColor = style.backgroundColor;
    style.vertexSelectedFillColor = accent;
    style.vertexPenWidth = 0.08;
    style.vertexHighlightPenWidth = 0.12;
    style.vertexDiameter = 0.55;
    style.tangentOutlineColor = mixed(accent, text, 0.4);
    style.tangentFillColor = style.backgroundColor;
    style.tangentSelectedFillColor = text;
    style.tangentPenWidth = 0.08;
    style.tangentHighlightPenWidth = 0.1;
    style.tangentDiameter = 0.4;
    style.tangentLineColor = mixed(ground, text, 0.5);
    style.tangentLineWidth = 0.06;
    view_->setStyle(&style);
}

/// Builds all decorators anew: some take their colours only once.
void AnimationCurvePage::addDecorators()
{
    view_->clearDecorators();
    const QColor text = palette().color(QPalette::WindowText);
    const QColor ground = view_->getStyle().backgroundColor;
    auto *grid = new ZelGridDecorator2;
    grid->setPen(QPen(mixed(ground, text, 0.12), 1));
    grid->setPositioning(gridLines());
    view_->addDecoratorToBackground(grid);
    auto *axes = new ZelAxisDecorator;
    axes->setPen(QPen(mixed(ground, text, 0.4), 1));
    view_->addDecoratorToBackground(axes);
    auto *recording = new RecordingDecorator;
    recording->setColor(mixed(ground, text, 0.3));
    recording->setSamples(samples_);
    view_->addDecoratorToBackground(recording);
    connect(this, &AnimationCurvePage::recorded, recording, &RecordingDecorator::setSamples);
    addRuler();
    auto *labels = new ZelGridLabelDecorator;
    labels->setPositioning(gridLines());
    labels->setLabelColor(text);
    labels->setZOrderVerticalLabels(valuesZ);
    labels->setZOrderHorizontalLabels(timesZ);
    view_->addDecoratorToForeground(labels);
    addMarker();
}

void AnimationCurvePage::addRuler()
{
    auto *ruler = new ZelGridRulerDecorator;
    ruler->setColor(palette().color(QPalette::Window));
    ruler->setBorderColor(
        mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.3));
    ruler->setHeight(rulerHeight);
    ruler->setZOrder(rulerZ);
    connect(ruler, &ZelGridRulerDecorator::clicked, this, [this](float time) { moveTo(time); });
    connect(ruler, &ZelGridRulerDecorator::moved, this, [this](float time) { moveTo(time); });
    view_->addDecoratorToForeground(ruler);
}

void AnimationCurvePage::addMarker()
{
    marker_ = new ZelTimeMarkerDecorator(ZelTimeMarkerDecorator::TrianglePosition::Bottom);
    marker_->setPen(QPen(palette().color(QPalette::LinkVisited), 1));
    marker_->setHoverPen(QPen(palette().color(QPalette::WindowText), 2));
    marker_->setUseHoverPen(false);
    marker_->setSplitHeight(rulerHeight);
    marker_->setZOrderTop(markerTopZ);
    marker_->setZOrderBottom(markerBottomZ);
    view_->addDecoratorToForeground(marker_);
    marker_->setPosition(time_->value());
    connect(marker_, &ZelTimeMarkerDecorator::markerPositionChanged, this,
            [this](float time) { moveTo(double(time)); });
}

void AnimationCurvePage::record()
{
    BallRecording recording;
    recording.dropHeight = dropHeight;
    recording.bounciness = bounciness_->value();
    samples_ = recording.samples();
    Q_EMIT recorded(samples_);
    fit();
}

void AnimationCurvePage::fit()
{
    model_->setVertices(fitCurve(samples_, tolerance_->value()));
}

/// How far the curve is from the recording, by now.
void AnimationCurvePage::tellQuality()
{
    double error = 0.0;
    for (const QPointF &sample : std::as_const(samples_)) {
        const double height = model_->valueAt(sample.x()).value_or(0.0);
        error = std::max(error, std::abs(height - sample.y()));
    }
    const QLocale locale;
    quality_->setText(tr("%1 samples, %2 vertices, at most %3 m apart")
                          .arg(locale.toString(samples_.size()),
                               locale.toString(model_->vertexCount()),
                               locale.toString(error, 'f', 4)));
}

void AnimationCurvePage::play(bool on)
{
    playButton_->setText(on ? tr("&Pause") : tr("&Play"));
    startTime_ = time_->value();
    clock_.start();
    if (on)
        player_.start();
    else
        player_.stop();
}

/// The marker goes in whole steps, whenever the timer comes.
void AnimationCurvePage::advance()
{
    const double steps = std::floor(double(clock_.elapsed()) * stepsPerSecond / 1000.0);
    const QScopedValueRollback<bool> advancing(isAdvancing_, true);
    moveTo(std::fmod(startTime_ + steps / stepsPerSecond, BallRecording::duration));
}

/// Brings marker, field and ball to a time; playing goes on from there.
void AnimationCurvePage::moveTo(double time)
{
    if (!std::isfinite(time))
        return;
    time = std::clamp(time, 0.0, BallRecording::duration);
    if (!isAdvancing_) {
        startTime_ = time;
        clock_.start();
    }
    {
        const QSignalBlocker blocker(time_);
        time_->setValue(time);
    }
    if (marker_) {
        const QSignalBlocker blocker(marker_);
        marker_->setPosition(time);
    }
    showTime(time);
}

void AnimationCurvePage::showTime(double time)
{
    const double height = model_->valueAt(time).value_or(0.0);
    stage_->setHeight(height);
    height_->setText(tr("Height %1 m").arg(QLocale().toString(height, 'f', 3)));
}
