#include "ViewportRenderer.h"

#include "ViewScene.h"

#include <QElapsedTimer>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>

namespace {

/// A step ends after so many milliseconds, a frame takes about sixteen.
constexpr double longestStep = 8;
constexpr double wantedDraft = 14;
constexpr double smallestDraftScale = 0.2;
constexpr int mostPixels = 16'000'000;
constexpr int mostSmoothPixels = 4'000'000;

double millisecondsOf(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

} // namespace

ViewportRenderer::ViewportRenderer(const ViewScene *scene, QObject *parent)
    : QObject(parent)
    , scene_(scene)
{}

ViewportRenderer::~ViewportRenderer() = default;

void ViewportRenderer::setSelectionColor(const QColor &color)
{
    selection_ = color;
}

void ViewportRenderer::setSmoothAtRest(bool on)
{
    smoothAtRest_ = on;
}

void ViewportRenderer::request(const OrbitCamera &camera, const QSize &size, Pace pace)
{
    camera_ = camera;
    size_ = size;
    pace_ = pace;
    if (size.isEmpty()) {
        job_.reset();
        timer_.stop();
        return;
    }
    // What isn't finer than wanted comes to its end, or a quick drag would never show anything.
    isOutdated_ = job_ && quality_ <= firstQuality();
    if (!isOutdated_) {
        job_.reset();
        quality_ = firstQuality();
    }
    timer_.start(0, this);
}

ViewportRenderer::Quality ViewportRenderer::firstQuality() const
{
    return draftWhileMoving_ && pace_ != Pace::Rest ? Quality::Draft : Quality::Full;
}

QSize ViewportRenderer::sizeOf(Quality quality) const
{
    const double scale = quality == Quality::Draft ? draftScale_ : 1.0;
    const QSize size = (QSizeF(size_) * scale).toSize().expandedTo(QSize(1, 1));
    const double pixels = double(size.width()) * size.height();
    return pixels <= mostPixels ? size : size * std::sqrt(mostPixels / pixels);
}

void ViewportRenderer::begin()
{
    isOutdated_ = false;
    const QSize size = sizeOf(quality_);
    report_ = {quality_, size, scene_->triangleCount(), 0, 0, 0};
    const int samples = quality_ == Quality::Smooth ? 2 : 1;
    job_ = std::make_unique<RenderJob>(*scene_, camera_,
                                       RenderJob::Options{size, samples, selection_});
}

void ViewportRenderer::step()
{
    QElapsedTimer clock;
    clock.start();
    if (!job_)
        begin();
    while (millisecondsOf(clock) < longestStep && job_->renderNextBand()) {
    }
    const double taken = millisecondsOf(clock);
    ++report_.steps;
    report_.milliseconds += taken;
    report_.longestStep = std::max(report_.longestStep, taken);
    if (job_->isDone())
        complete();
}

void ViewportRenderer::complete()
{
    shown_ = std::move(job_);
    const Quality done = quality_;
    if (done == Quality::Draft) {
        const double change = report_.milliseconds > wantedDraft ? 0.85 : 1.1;
        draftScale_ = std::clamp(draftScale_ * change, smallestDraftScale, 1.0);
    }
    const bool canBeSmooth = smoothAtRest_ && size_.width() * size_.height() <= mostSmoothPixels;
    if (isOutdated_)
        quality_ = firstQuality();
    else if (pace_ == Pace::Drag)
        timer_.stop();
    else if (done == Quality::Draft)
        quality_ = Quality::Full;
    else if (done == Quality::Full && canBeSmooth)
        quality_ = Quality::Smooth;
    else
        timer_.stop();
    Q_EMIT updated(report_);
}

void ViewportRenderer::finish()
{
    while (timer_.isActive())
        step();
}

void ViewportRenderer::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == timer_.timerId())
        step();
    else
        QObject::timerEvent(event);
}
