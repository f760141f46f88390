#pragma once

#include "ZelStyleForwarder.h"

/// Lets one item view activate its items on a single click.
class SingleClickActivationStyle : public ZelStyleForwarder
{
    Q_OBJECT

public:
    using ZelStyleForwarder::ZelStyleForwarder;

    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
};
