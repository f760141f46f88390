#include "ZelTabKeyOrder.h"

#include <QWidget>

#include <utility>
#include <vector>

namespace {

/// Makes a widget one that takes the focus and hands it to nobody, as long as this lives: Qt moves
/// no other alone.
class PlainStop
{
public:
    explicit PlainStop(QWidget *widget)
        : widget_(widget)
        , proxy_(widget->focusProxy())
        , policy_(widget->focusPolicy())
    {
        widget_->setFocusProxy(nullptr);
        widget_->setFocusPolicy(Qt::StrongFocus);
    }
    PlainStop(PlainStop &&other) noexcept
        : widget_(std::exchange(other.widget_, nullptr))
        , proxy_(other.proxy_)
        , policy_(other.policy_)
    {}
    PlainStop &operator=(PlainStop &&) = delete;
    ~PlainStop()
    {
        if (!widget_)
            return;
        widget_->setFocusPolicy(policy_);
        widget_->setFocusProxy(proxy_);
    }

    QWidget *widget() const { return widget_; }

private:
    QWidget *widget_;
    QWidget *proxy_;
    Qt::FocusPolicy policy_;
};

} // namespace

void placeInTabOrder(QWidget *widget, QWidget *behind)
{
    if (!widget || !behind || widget == behind || widget->window() != behind->window() ||
        widget->isAncestorOf(behind))
        return;
    std::vector<PlainStop> stops;
    QWidget *part = widget;
    do {
        if (part == widget || widget->isAncestorOf(part))
            stops.emplace_back(part);
        part = part->nextInFocusChain();
    } while (part != widget);
    for (const PlainStop &stop : stops) {
        QWidget::setTabOrder(behind, stop.widget());
        behind = stop.widget();
    }
}
