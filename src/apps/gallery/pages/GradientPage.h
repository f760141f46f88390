#pragma once

#include "GalleryPage.h"

#include <array>

class QComboBox;
class QLabel;
class QVBoxLayout;
class ZelGradient;
class ZelGradientView;

/// The gradient editor in all its variants, and what the model answers.
class GradientPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit GradientPage(QWidget *parent = nullptr);
    ~GradientPage() override;

private:
    void addEditors();
    void addAnswers();
    void addVariants();
    /// The presets of the page, and the gradient files that the system has installed.
    QComboBox *presetBox();
    void choosePreset(int index);
    void showAnswers();

    ZelGradient *gradient_;
    std::array<QLabel *, 5> swatches_{};
    std::array<QLabel *, 5> numbers_{};
    std::array<QLabel *, 3> rows_{};
    QComboBox *presets_ = nullptr;
};
