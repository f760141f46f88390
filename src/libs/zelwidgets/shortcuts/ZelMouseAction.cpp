#include "ZelMouseAction.h"

#include "ZelShortcutHandler_p.h"

ZelMouseAction::ZelMouseAction(const QString &id, QString text, Category category,
                               ZelMouseShortcut shortcut, QObject *parent)
    : QObject(parent)
    , id_(id)
    , text_(std::move(text))
    , category_(category)
    , shortcut_(shortcut)
{
    assertIfInvalidShortcut();
    ZelShortcutHandler::instance()->registerOrChangeMouseAction(*this);
}

ZelMouseAction::~ZelMouseAction()
{
    ZelShortcutHandlerPrivate::hasDead = true;
}

QString ZelMouseAction::internalShortcutTxt() const
{
    return shortcut_.exportToString();
}

QString ZelMouseAction::publicShortcutText() const
{
    return shortcut_.publicShortcutText();
}

bool ZelMouseAction::hasScopeOverLap(const ZelMouseAction &other) const
{
    return (scope_ & other.scope_) != 0;
}

void ZelMouseAction::setShortcut(const ZelMouseShortcut &shortcut)
{
    shortcut_ = shortcut;
    assertIfInvalidShortcut();
}

void ZelMouseAction::setShortcutFromText(const QString &text)
{
    setShortcut(ZelMouseShortcut::buildFromExportedString(text));
}

void ZelMouseAction::setEnabled(bool enabled) const
{
    enabled_ = enabled;
}

void ZelMouseAction::setScope(const QFlags<ScopeInformation> &scope)
{
    scope_ = scope;
}

void ZelMouseAction::assertIfInvalidShortcut() const {}
