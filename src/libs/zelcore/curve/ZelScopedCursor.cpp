#include "ZelScopedCursor.h"

#include <QGuiApplication>

ZelScopedCursor::ZelScopedCursor(const QCursor &cursor)
{
    QGuiApplication::setOverrideCursor(cursor);
}

ZelScopedCursor::~ZelScopedCursor()
{
    if (qGuiApp)
        QGuiApplication::restoreOverrideCursor();
}
