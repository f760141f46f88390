#include "ZelTimedCursor.h"

#include <chrono>

ZelTimedCursor::ZelTimedCursor(const QCursor &cursor, const std::function<bool()> &isOver)
    : cursor_(cursor)
    , isOver_(isOver)
{
    timer_.setInterval(std::chrono::milliseconds(50));
    timer_.callOnTimeout([this] {
        if (isOver_ && isOver_())
            stop();
    });
}

ZelTimedCursor::~ZelTimedCursor() = default;

void ZelTimedCursor::setCursor()
{
    if (shown_)
        return;
    shown_.emplace(cursor_);
    timer_.start();
}

void ZelTimedCursor::stop()
{
    timer_.stop();
    shown_.reset();
}
