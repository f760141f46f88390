#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

class QWidget;

/// Keeps modal windows from coming up under always-on-top windows.
namespace ModalWindowPlacement {

/// What is done when a widget is shown: tool windows are activated, modal windows get a place where
/// they can be reached, and always-on-top windows in their way are hidden.
void placeShownWindow(QWidget *widget);

/// True if an always-on-top window that has to stay lies over the modal window. Others that lie
/// over it are hidden, with a warning.
bool isOverlappedByAlwaysOnTopDialog(QWidget *modalWindow);

/// True if the window covers more than a third of the modal window.
bool coversTooMuch(const QRect &window, const QRect &modalWindow);
/// How far one step in search of a free place goes, by the size of the window and of the screen.
QSize searchStep(QSize window, const std::optional<QSize> &screen);

constexpr int candidateCount = 8;
/// The place of a candidate, 0 to candidateCount - 1, around the first place.
QPoint candidatePosition(int candidate, QPoint firstPlace, QSize step);

} // namespace ModalWindowPlacement
