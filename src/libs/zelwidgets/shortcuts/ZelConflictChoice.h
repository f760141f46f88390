#pragma once

#include <Qt>

class QWidget;

/// Which of several objects with one key is meant, by where the focus is and where the objects
/// belong; without the objects themselves.
namespace ZelConflictChoice {

/// An object that could be meant.
struct Claim
{
    /// Where it belongs; never null.
    QWidget *scope;
    Qt::ShortcutContext context;
    bool isShortcut;
};

/// Whether a key that is pressed in this place reaches the claim. The place is the focus widget or,
/// without one, the active window.
bool isCandidate(const Claim &claim, QWidget *focus, QWidget *place);
/// How far the claim is from the place; the lowest is meant.
int score(const Claim &claim, const QWidget *place);
/// The window of a widget and, where that is a menu, the windows that the menu came from.
QWidget *windowBehindMenus(QWidget *widget);
/// The widget or one of its ancestors below the next window, as QWidget::isAncestorOf().
bool isAncestorOrSame(const QWidget *ancestor, const QWidget *widget);

} // namespace ZelConflictChoice
