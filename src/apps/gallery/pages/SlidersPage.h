#pragma once

#include "GalleryPage.h"

#include <array>
#include <functional>

class QAbstractSlider;
class QGridLayout;

/// The sliders, each with the number that it is bound to.
class SlidersPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SlidersPage(QWidget *parent = nullptr);

private:
    struct Range
    {
        QString name;
        double minimum;
        double maximum;
        bool isEnabled;
    };

    void addRealSliders();
    void addWholeSliders();
    void addPlainSliders();
    /// A row of name, slider and number; the text is asked for at each change.
    void addRow(QGridLayout *grid, const QString &name, QAbstractSlider *slider,
                const std::function<QString()> &number);

    std::array<float, 6> reals_{0.25F, 0, -0.6F, 5, 0.5F, 0.5F};
    std::array<int, 3> wholes_{12, 40, 60};
};
