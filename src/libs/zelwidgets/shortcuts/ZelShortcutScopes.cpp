#include "ZelShortcutScopes.h"

#include "ZelConflictMember.h"
#include "ZelShortcutHandler_p.h"

#include <QMenu>

ZelShortcutScopes::ZelShortcutScopes(const ZelShortcutHandler &handler)
{
    for (const QPointer<QObject> &object : std::as_const(handler.d_->liveObjects)) {
        const ConflictMember member(object);
        if (!member.isAlive())
            continue;
        if (QWidget *scope = member.scope())
            places_[member.id()] += places(scope);
    }
}

QSet<QWidget *> ZelShortcutScopes::places(QWidget *scope)
{
    QWidget *window = scope->window();
    QSet<QWidget *> places{scope, window};
    while (qobject_cast<QMenu *>(window) && window->parentWidget()) {
        window = window->parentWidget()->window();
        places << window;
    }
    return places;
}

bool ZelShortcutScopes::share(const QString &idA, const QString &idB) const
{
    const auto a = places_.constFind(idA);
    const auto b = places_.constFind(idB);
    return a != places_.constEnd() && b != places_.constEnd() && a->intersects(*b);
}
