#pragma once

#include <ZelWidgets/ZelTabWidgetBase>

/// A tab widget over a tab bar of the kind, which has to have setTabWidgetWidth(int): the bar is
/// told how much room there is for the tabs.
template <typename TabBar>
class ZelDecoratedTabWidget : public ZelTabWidgetBase
{
public:
    explicit ZelDecoratedTabWidget(QWidget *parent = nullptr)
        : ZelTabWidgetBase(parent)
        , bar_(new TabBar)
    {
        setTabBar(bar_);
    }

    TabBar *decoratedTabBar() const { return bar_; }

    /// Gives the tabs the present width.
    void updateTabWidths()
    {
        const QMargins margins = contentsMargins();
        bar_->setTabWidgetWidth(width() - margins.left() - margins.right() - 2);
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        ZelTabWidgetBase::resizeEvent(event);
        updateTabWidths();
    }

    void tabInserted(int index) override
    {
        ZelTabWidgetBase::tabInserted(index);
        updateTabWidths();
    }

    void tabRemoved(int index) override
    {
        ZelTabWidgetBase::tabRemoved(index);
        updateTabWidths();
    }

private:
    TabBar *bar_;
};
