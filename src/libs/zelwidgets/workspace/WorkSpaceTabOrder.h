#pragma once

#include <QList>
#include <QStringList>

/// The order of the pages of a tab widget.
namespace WorkSpaceTabOrder {

/// The rank of each page: its place in the wanted order, or the next free one if it isn't in it.
/// Without a wanted order the pages keep theirs.
QList<int> ranks(const QStringList &pages, const QStringList &wanted);

/// The indices of the pages by their ranks; equal ranks keep their order.
QList<int> sorted(const QList<int> &ranks);

} // namespace WorkSpaceTabOrder
