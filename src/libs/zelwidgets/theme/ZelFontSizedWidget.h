#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

#include <optional>

/// A widget whose size hints are given in font units: widths in "M", heights in font heights.
///
/// Directions without a number keep the hint of QWidget. The units follow the widget's font.
class ZELWIDGETS_EXPORT ZelFontSizedWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelFontSizedWidget(QWidget *parent = nullptr);

    void setSizeHint(std::optional<unsigned int> width, std::optional<unsigned int> height);
    void setMinimumSizeHint(std::optional<unsigned int> width, std::optional<unsigned int> height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    std::optional<unsigned int> hintWidth_;
    std::optional<unsigned int> hintHeight_;
    std::optional<unsigned int> minimumHintWidth_;
    std::optional<unsigned int> minimumHintHeight_;
};
