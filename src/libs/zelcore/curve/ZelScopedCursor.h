#pragma once

#include <ZelCore/zelcore_export.h>

#include <QCursor>
#include <QtGlobal>

/// Shows an override cursor for the application while it lives.
class ZELCORE_EXPORT ZelScopedCursor
{
public:
    explicit ZelScopedCursor(const QCursor &cursor);
    ~ZelScopedCursor();
    Q_DISABLE_COPY_MOVE(ZelScopedCursor)
};
