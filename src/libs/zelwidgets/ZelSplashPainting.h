#pragma once

#include <QPoint>
#include <QRectF>
#include <QString>

/// Where the parts of a splash window lie, and what its texts become.
namespace ZelSplashPainting {

inline constexpr QSize defaultSize{841, 437};
inline constexpr QSize barSize{160, 18};
inline constexpr QSize labelSize{160, 20};
inline constexpr QPoint labelPosition{130, 120};
inline constexpr QPoint defaultBarPosition{130, 320};
/// From the bar to the baseline of the status, and from there to the top of the legal line.
inline constexpr QPoint statusOffset{0, -8};
inline constexpr int legalGap = 12;
inline constexpr int legalPointSize = 6;
inline constexpr int statusWidth = 250;
inline constexpr qreal radius = 2.0;

/// 0 to 1; 0 for what isn't a number.
float clampedProgress(float progress);
/// The filled part of the bar, relative to the bar; empty without progress.
QRectF filledPart(float progress);
/// The line with each "%1" replaced by the year.
QString legalLine(const QString &line, int year);
/// How long the window has to stay yet if this many milliseconds have passed; 0 if it may go.
int remainingTime(qint64 elapsed);

} // namespace ZelSplashPainting
