#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QString>

/// The colour as Qt's, opaque; what RGB can't show is clamped.
ZELWIDGETS_EXPORT QColor toQColor(const ZelColor &color);
/// The same as it is to be shown: with the display's gamma if that is on.
ZELWIDGETS_EXPORT QColor toDisplayQColor(const ZelColor &color);
/// An RGB colour of this name; alpha is dropped.
ZELWIDGETS_EXPORT ZelColor fromQColor(const QColor &color, const QString &name = QString());
