#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

class ZelDoubleSliderEdit;
class ZelIntegerSliderEdit;

/// Remembers that the slider of one of its rows was released. On the release the row emits its
/// valueUpdated() once more, so that a slot which acts on releases alone can ask there:
///
///     if (memento->retrieveReleaseState())
///         startRendering();
class ZELWIDGETS_EXPORT ZelSliderReleaseMemento : public QObject
{
    Q_OBJECT

public:
    ZelSliderReleaseMemento();

    void addSlider(ZelDoubleSliderEdit *row);
    void addSlider(ZelIntegerSliderEdit *row);
    /// Whether a slider was released since the last call.
    bool retrieveReleaseState();

private:
    bool released_ = false;
};
