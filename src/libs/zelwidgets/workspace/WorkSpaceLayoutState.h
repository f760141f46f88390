#pragma once

#include <QByteArray>

/// The bytes of QMainWindow::saveState().
namespace WorkSpaceLayoutState {

/// The state without the places of docks that have no name. Qt keeps the place of a dock that is
/// gone, and forgets it when the state is restored if it has no name: the state before and after
/// that would differ. What isn't understood is given back as it is.
QByteArray withoutNameless(const QByteArray &state);

/// Which docks stand where, behind each other, hidden or afloat: the docks of the state without
/// their places and sizes, for comparisons only. Empty if the state isn't understood.
QByteArray structure(const QByteArray &state);

} // namespace WorkSpaceLayoutState
