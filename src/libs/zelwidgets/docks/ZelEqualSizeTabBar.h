#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QTabBar>

/// A tab bar whose tabs are all as wide as the widest text and a margin.
class ZELWIDGETS_EXPORT ZelEqualSizeTabBar : public QTabBar
{
    Q_OBJECT

public:
    ZelEqualSizeTabBar();
    explicit ZelEqualSizeTabBar(int margin);

    int tabHeaderStyle() const { return style_; }
    /// The width that the bar needs to show all texts.
    int minimumWidth() const;

    void setTabHeaderStyle(int style);
    /// Measures the texts anew; the width itself isn't used.
    void setTabWidgetWidth(int width);

protected:
    QSize tabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    void measure();

    int margin_;
    int style_ = 1;
    int maxTextWidth_ = 10;
};
