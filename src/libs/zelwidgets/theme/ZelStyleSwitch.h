#pragma once

class QString;

/// Exchanges the application's style sheet, far faster than QApplication::setStyleSheet() does it
/// alone: that polishes a widget once for itself and once for each of its ancestors.
///
/// All rules that the style has cached are dropped first, by which setStyleSheet() finds no widget
/// to go through; then each widget is polished once, parents before children.
namespace ZelStyleSwitch {

/// When widgets that aren't visible are polished. Those that don't have a hidden parent, and with
/// that the pages and windows themselves, always are at once, as code may read colours from them.
enum class HiddenWidgets {
    Now,  ///< with the others
    Later ///< when their page is shown, or as soon as the application is idle
};

void apply(const QString &sheet, HiddenWidgets hidden);

/// The two halves of apply(), for trials of several sheets: puts a sheet in without polishing any
/// widget, and polishes the widgets by the sheet that is in.
void install(const QString &sheet);
void polishWidgets(HiddenWidgets hidden);

/// Polishes what was left for later.
void finish();

} // namespace ZelStyleSwitch
