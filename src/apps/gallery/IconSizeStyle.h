#pragma once

#include <QProxyStyle>

/// The base style of the gallery: icons, switches and the marks of check boxes and radio buttons
/// grow with the font of the application, and are never smaller than in the style below.
class IconSizeStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
};
