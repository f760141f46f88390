#pragma once

#include <ZelWidgets/ZelIconWidget>
#include <ZelWidgets/zelwidgets_export.h>

/// Shows an icon at a fixed size.
class ZELWIDGETS_EXPORT ZelSvgLabel : public ZelIconWidget
{
    Q_OBJECT

public:
    explicit ZelSvgLabel(const QIcon &icon, const QSize &size, QWidget *parent = nullptr);
};
