#pragma once

#include <ZelCore/ZelScopedCursor>

#include <QCursor>
#include <QTimer>

#include <functional>
#include <optional>

/// Shows an override cursor for the application until it is told to stop or a condition, looked at
/// twenty times a second, says that it is over; so a cursor can't stay behind when the event that
/// should have ended it never comes.
class ZELCORE_EXPORT ZelTimedCursor
{
public:
    /// The condition is true when the cursor has to go; an empty one never is.
    ZelTimedCursor(const QCursor &cursor, const std::function<bool()> &isOver);
    ~ZelTimedCursor();
    Q_DISABLE_COPY_MOVE(ZelTimedCursor)

    /// Shows the cursor; nothing more while it is shown.
    void setCursor();
    /// Takes the cursor back if it is shown.
    void stop();

private:
    QCursor cursor_;
    std::function<bool()> isOver_;
    std::optional<ZelScopedCursor> shown_;
    QTimer timer_;
};
