#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCursor>
#include <QObject>

/// Shows an override cursor for the application while a modifier key is held; with
/// Qt::NoModifier, while none is held. It polls the keyboard, so it needs no focus.
class ZELWIDGETS_EXPORT ZelCursorState : public QObject
{
    Q_OBJECT

public:
    /// The poll interval is in milliseconds.
    ZelCursorState(const QCursor &cursor, Qt::KeyboardModifier modifier, int pollInterval,
                   QObject *parent = nullptr);
    /// Takes the cursor back if it is shown.
    ~ZelCursorState() override;

    bool isActive() const;

private:
    bool modifiersMatch() const;
    void updateCursor();

    QCursor cursor_;
    Qt::KeyboardModifier modifier_;
    bool active_ = false;
};
