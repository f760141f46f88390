#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

/// Polishing one widget for a new application style sheet.
namespace ZelWidgetPolish {

/// Polishing runs code of the widgets, which may delete others.
using Widgets = std::vector<QPointer<QWidget>>;

/// Polishes a widget that was polished before; null does nothing.
void polish(QWidget *widget);

} // namespace ZelWidgetPolish
