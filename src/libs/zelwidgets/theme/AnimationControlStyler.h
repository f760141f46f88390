#pragma once

#include "ZelStyleForwarder.h"

/// Takes the animations away from one widget.
class AnimationControlStyler : public ZelStyleForwarder
{
    Q_OBJECT

public:
    using ZelStyleForwarder::ZelStyleForwarder;

    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
};
