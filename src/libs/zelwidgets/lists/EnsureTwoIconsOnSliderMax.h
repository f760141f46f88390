#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>
#include <QPointer>

class QListView;
class QSlider;

/// Keeps the maximum of a slider of icon widths so low that two icons fit into each row of a list,
/// never above what it was at first.
///
///     new EnsureTwoIconsOnSliderMax(sizeSlider, list);
///
/// It belongs to the list; the slider may go first.
class ZELWIDGETS_EXPORT EnsureTwoIconsOnSliderMax : public QObject
{
    Q_OBJECT

public:
    EnsureTwoIconsOnSliderMax(QSlider *slider, QListView *view);

    void updateSliderMax();

    /// The maximum for a row of this width and cells that need so much beside their icons.
    static int maximumFor(int available, int beside, int sliderMinimum, int initialMaximum);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QSlider> slider_;
    QListView *view_;
    int initialMaximum_;
};
