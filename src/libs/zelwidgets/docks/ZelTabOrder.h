#pragma once

class QTabWidget;
class QWidget;

/// The order of the pages of a tab widget: the one that the user made, which is stored in the
/// settings group of the tab widget's object name under the page's, and the one that the
/// application built, which the pages carry as the dynamic property "OrgTabOrder".
///
/// A page or a tab widget without an object name has no stored position.
namespace ZelTabOrder {

/// Marks the pages that aren't marked yet with their places.
void markOriginal(QTabWidget *tabs);
bool isOriginal(const QTabWidget *tabs);

void storePosition(const QTabWidget *tabs, const QWidget *page, int position);
/// True if there was one.
bool removePosition(const QTabWidget *tabs, const QWidget *page);
/// Stores the present order.
void store(const QTabWidget *tabs);
/// Takes a tab to another place, as the user asked, and stores the order. Does nothing if there is
/// no such tab or place.
void move(QTabWidget *tabs, int from, int to);

/// Sorts the pages by their stored positions; those that have none come last, as they are.
void apply(QTabWidget *tabs);
/// Stores and shows the order that the application built.
void restoreOriginal(QTabWidget *tabs);

} // namespace ZelTabOrder
