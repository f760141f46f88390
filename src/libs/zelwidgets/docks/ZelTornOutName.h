#pragma once

#include <QString>

class QWidget;

/// The object names of the windows of torn-out pages, by which the layout of a main window is
/// stored.
namespace ZelTornOutName {

/// The name until the window is moved, and again from when its layout is stored. Without a page it
/// shows that.
QString stable(const QWidget *page);
/// The name from the first move on until the layout is stored: takes the next number of the page
/// from the settings, so that no two windows of an installation share a name.
QString takeNext(const QWidget *page);

} // namespace ZelTornOutName
