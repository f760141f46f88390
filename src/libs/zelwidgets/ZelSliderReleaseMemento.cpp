#include "ZelSliderReleaseMemento.h"

#include "ZelDoubleSliderEdit.h"
#include "ZelIntegerSliderEdit.h"

#include <utility>

ZelSliderReleaseMemento::ZelSliderReleaseMemento() = default;

void ZelSliderReleaseMemento::addSlider(ZelDoubleSliderEdit *row)
{
    connect(row, &ZelDoubleSliderEdit::sliderReleased, this, [this, row] {
        released_ = true;
        Q_EMIT row->valueUpdated(false);
    });
}

void ZelSliderReleaseMemento::addSlider(ZelIntegerSliderEdit *row)
{
    connect(row, &ZelIntegerSliderEdit::sliderReleased, this, [this, row] {
        released_ = true;
        Q_EMIT row->valueUpdated();
    });
}

bool ZelSliderReleaseMemento::retrieveReleaseState()
{
    return std::exchange(released_, false);
}
