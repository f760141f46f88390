#pragma once

#include "GalleryPage.h"

#include <ZelWidgets/ZelFrameDecorator>
#include <ZelWidgets/ZelGridDecorator>
#include <ZelWidgets/ZelLineDecorator>

class QHBoxLayout;
class ZelBezierCurveModel;
class ZelCurveView;

/// The old curve view with its decorators.
class OldCurvePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit OldCurvePage(QWidget *parent = nullptr);
    ~OldCurvePage() override;

    void lookChanged() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addControls(QHBoxLayout *row);

    // The decorators outlive the view.
    ZelGridDecorator grid_{1, 0.25};
    ZelLineDecorator line_;
    ZelFrameDecorator frame_;
    ZelBezierCurveModel *wave_;
    ZelBezierCurveModel *ramp_;
    ZelCurveView *view_;
};
