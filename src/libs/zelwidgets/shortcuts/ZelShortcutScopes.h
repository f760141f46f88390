#pragma once

#include <QHash>
#include <QSet>
#include <QString>

class QWidget;
class ZelShortcutHandler;

/// Where the live objects of each id work, as it was when this was made: their widgets and
/// windows, which are only compared. For those who ask about many pairs of ids.
class ZelShortcutScopes
{
public:
    ZelShortcutScopes() = default;
    explicit ZelShortcutScopes(const ZelShortcutHandler &handler);

    /// The widget, its window, and the windows that a menu belongs to.
    static QSet<QWidget *> places(QWidget *scope);

    bool isLive(const QString &id) const { return places_.contains(id); }
    /// The answer of ZelShortcutHandler::hasScopeConflictKey().
    bool share(const QString &idA, const QString &idB) const;

private:
    QHash<QString, QSet<QWidget *>> places_;
};
