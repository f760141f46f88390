#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QStyledItemDelegate>

class QListView;

/// Cells of a list in icon mode that share out the width of a row, so that nothing stays free at
/// its end. The parent is the list; without one the sizes are left alone.
class ZELWIDGETS_EXPORT IconModeSizeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    IconModeSizeDelegate();
    explicit IconModeSizeDelegate(QObject *parent);

    /// What a cell needs beside its icon; negative until the first cell was measured.
    int sizeWidthMinusIconWidth() const;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// The size that a cell needs.
    virtual QSize actualSizeHint(QStyleOptionViewItem const &option,
                                 QModelIndex const &index) const;

    /// The width that cells can fill, also once a scroll bar has come.
    static int availableWidth(const QListView *view);
    /// The width of a cell that gets its share; the needed one if not even one fits.
    static int sharedWidth(int needed, int available);

Q_SIGNALS:
    /// At the first measure, in the middle of a layout.
    void iconDeltaChanged() const;

private:
    mutable int sizeWidthMinusIconWidth_ = -1;
};
