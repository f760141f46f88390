#pragma once

#include "OrbitCamera.h"
#include "RenderJob.h"

#include <QBasicTimer>
#include <QObject>
#include <QSize>

#include <memory>

class ViewScene;

/// Keeps the picture of a scene up to date, in steps that are short enough for the input in between
/// to be answered at once: coarse while things move, then in full, then smooth.
class ViewportRenderer : public QObject
{
    Q_OBJECT

public:
    enum class Quality { Draft, Full, Smooth };
    /// Whether the next picture is wanted soon: after a move at rest, after a single step, and in
    /// the middle of a drag, where nothing finer than the draft is begun.
    enum class Pace { Rest, Step, Drag };

    struct Report
    {
        Quality quality = Quality::Full;
        QSize size;
        int triangles = 0;
        int steps = 0;
        /// What the steps took together, and the longest of them.
        double milliseconds = 0;
        double longestStep = 0;
    };

    explicit ViewportRenderer(const ViewScene *scene, QObject *parent = nullptr);
    ~ViewportRenderer() override;

    /// The last picture that is complete; null before the first.
    const RenderJob *picture() const { return shown_.get(); }
    bool isSettled() const { return !timer_.isActive(); }

    void setSelectionColor(const QColor &color);
    void setDraftWhileMoving(bool on) { draftWhileMoving_ = on; }
    void setSmoothAtRest(bool on);
    /// A new picture of the size is wanted, in device pixels.
    void request(const OrbitCamera &camera, const QSize &size, Pace pace);
    /// Draws what is left at once.
    void finish();

Q_SIGNALS:
    void updated(const ViewportRenderer::Report &report);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void begin();
    void step();
    void complete();
    Quality firstQuality() const;
    QSize sizeOf(Quality quality) const;

    const ViewScene *scene_;
    OrbitCamera camera_;
    QSize size_;
    QColor selection_;
    Quality quality_ = Quality::Full;
    Report report_;
    std::unique_ptr<RenderJob> job_;
    std::unique_ptr<RenderJob> shown_;
    QBasicTimer timer_;
    double draftScale_ = 0.5;
    bool isOutdated_ = false;
    Pace pace_ = Pace::Rest;
    bool draftWhileMoving_ = true;
    bool smoothAtRest_ = true;
};
