#pragma once

#include <memory>

class QMainWindow;
class QWidget;

/// Windows full of parameter panels like those of a real application.
namespace SamplePanels {

/// A window whose stack holds pages of panels with about so many widgets in all; the first page is
/// the current one. It isn't shown yet.
std::unique_ptr<QMainWindow> makeWindow(int widgetCount, int pageCount);
/// A page with one of each common widget, that shows text, selections and states.
QWidget *makeMixedPage(QWidget *parent);
/// Shows a page of the window.
void showPage(QMainWindow &window, int page);

} // namespace SamplePanels
