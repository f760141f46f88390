#pragma once

#include <QBitArray>
#include <QByteArray>
#include <QList>

#include <optional>

class QHeaderView;

/// What QHeaderView::saveState() wrote, read without trust: a state may come from another table, an
/// older version with other columns, or a damaged file.
class ZelHeaderState
{
public:
    /// Nothing if the bytes aren't a state; counts that the bytes can't hold are never believed.
    static std::optional<ZelHeaderState> read(const QByteArray &bytes);

    qsizetype count() const { return sizes_.size(); }
    Qt::Orientation orientation() const { return orientation_; }

    /// Gives the header's sections, as far as there are as many, order, size, visibility and sort
    /// mark. Sections that the state doesn't know stay as they are, behind the others.
    void applyTo(QHeaderView &header) const;

private:
    Qt::Orientation orientation_ = Qt::Horizontal;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    int sortSection_ = 0;
    bool isSortShown_ = false;
    /// Logical sections in the order that they are shown in.
    QList<int> order_;
    QBitArray hidden_;
    QList<int> sizes_;
    /// Of hidden sections, by logical index.
    QList<std::pair<int, int>> hiddenSizes_;
};
