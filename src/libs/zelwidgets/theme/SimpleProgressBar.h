#pragma once

#include <QProgressBar>

/// A progress bar that paints itself without the style, as it runs while the style changes.
class SimpleProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit SimpleProgressBar(QWidget *parent = nullptr);

    /// The filled part of a bar: from the left edge, never beyond the right edge.
    static QRect filledRect(const QRect &bar, int value, int maximum);

protected:
    void paintEvent(QPaintEvent *event) override;
};
