#pragma once

#include "GalleryPage.h"

#include <QElapsedTimer>
#include <QList>
#include <QPointF>
#include <QPointer>
#include <QTimer>

class BallStage;
class QAbstractButton;
class QDoubleSpinBox;
class QHBoxLayout;
class QLabel;
class ZelBezierCurveModel;
class ZelCurveView2;
class ZelTimeMarkerDecorator;

/// A recorded motion as a curve of few vertices, which is played while it is edited.
class AnimationCurvePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit AnimationCurvePage(QWidget *parent = nullptr);
    ~AnimationCurvePage() override;

    void lookChanged() override;

Q_SIGNALS:
    /// There is a new recording.
    void recorded(const QList<QPointF> &samples);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addControls(QVBoxLayout *section);
    void addView(QVBoxLayout *section);
    QDoubleSpinBox *addNumber(QHBoxLayout *row, const QString &label, double least, double most,
                              double value, int decimals, const QString &suffix);
    void applyStyle();
    void addDecorators();
    void addRuler();
    void addMarker();
    void record();
    void fit();
    void tellQuality();

    void play(bool on);
    void advance();
    void showTime(double time);
    void moveTo(double time);

    ZelBezierCurveModel *model_;
    ZelCurveView2 *view_ = nullptr;
    BallStage *stage_ = nullptr;
    QPointer<ZelTimeMarkerDecorator> marker_;
    QAbstractButton *playButton_ = nullptr;
    QDoubleSpinBox *time_ = nullptr;
    QDoubleSpinBox *bounciness_ = nullptr;
    QDoubleSpinBox *tolerance_ = nullptr;
    QLabel *height_ = nullptr;
    QLabel *quality_ = nullptr;

    QList<QPointF> samples_;
    QTimer player_;
    /// Since when it plays, and from what time on.
    QElapsedTimer clock_;
    double startTime_ = 0.0;
    bool isAdvancing_ = false;
};
