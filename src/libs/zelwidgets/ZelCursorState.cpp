#include "ZelCursorState.h"

#include <QGuiApplication>
#include <QTimer>

ZelCursorState::ZelCursorState(const QCursor &cursor, Qt::KeyboardModifier modifier,
                               int pollInterval, QObject *parent)
    : QObject(parent)
    , cursor_(cursor)
    , modifier_(modifier)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &ZelCursorState::updateCursor);
    timer->start(pollInterval);
}

ZelCursorState::~ZelCursorState()
{
    if (active_)
        QGuiApplication::restoreOverrideCursor();
}

bool ZelCursorState::isActive() const
{
    return active_;
}

bool ZelCursorState::modifiersMatch() const
{
    const Qt::KeyboardModifiers held = QGuiApplication::queryKeyboardModifiers();
    return modifier_ == Qt::NoModifier ? held == Qt::NoModifier : held.testFlag(modifier_);
}

void ZelCursorState::updateCursor()
{
    const bool matches = modifiersMatch();
    if (matches == active_)
        return;
    active_ = matches;
    if (active_)
        QGuiApplication::setOverrideCursor(cursor_);
    else
        QGuiApplication::restoreOverrideCursor();
}
