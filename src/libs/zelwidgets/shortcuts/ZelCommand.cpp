#include "ZelCommand.h"

#include "ZelShortcutHandler_p.h"
#include "ZelShortcutTreeItem.h"

#include <QAction>

#include <algorithm>

namespace {

/// Where the category of an id stands in the list; behind all others if it isn't in it.
qsizetype categoryIndex(const QString &id)
{
    const auto &categories = ZelShortcutHandlerPrivate::global().categories;
    const QString prefix = id.left(std::max<qsizetype>(id.lastIndexOf(u'.'), 0));
    const auto found = std::find_if(categories.begin(), categories.end(),
                                    [&prefix](const auto &one) { return one.first == prefix; });
    return found - categories.begin();
}

QString categoryText(qsizetype index)
{
    const auto &categories = ZelShortcutHandlerPrivate::global().categories;
    return index < categories.size() ? categories[index].second : QString();
}

/// Which of several objects of one id is meant: one that is on, one whose place has the focus.
int preference(const ConflictMember &member, const QWidget *focus)
{
    const QWidget *scope = member.scope();
    const bool isNear = scope && focus && (scope == focus || scope->isAncestorOf(focus));
    return (member.enabled() ? 2 : 0) + (isNear ? 1 : 0);
}

bool isShown(const ConflictMember &member)
{
    return member.isAlive() && (!member.qAction() || member.qAction()->isVisible());
}

} // namespace

class ZelCommand::Collector
{
public:
    Collector(const ZelShortcutHandlerPrivate &registry, const QWidget *focus)
        : registry_(registry)
        , focus_(focus)
    {}

    void add(QObject *object)
    {
        const ConflictMember member(object);
        if (!isShown(member))
            return;
        const auto known = positions_.constFind(member.id());
        if (known == positions_.constEnd()) {
            positions_.insert(member.id(), commands_.size());
            commands_.append(commandOf(member));
        } else if (isBetter(member, commands_[*known].member_)) {
            commands_[*known].member_ = member;
        }
    }

    QList<ZelCommand> commands() const
    {
        QList<ZelCommand> commands = commands_;
        commands.removeIf([](const ZelCommand &command) { return command.text_.isEmpty(); });
        std::sort(commands.begin(), commands.end(), [](const ZelCommand &a, const ZelCommand &b) {
            const qsizetype categoryA = categoryIndex(a.id_);
            const qsizetype categoryB = categoryIndex(b.id_);
            return categoryA != categoryB ? categoryA < categoryB : a.id_ < b.id_;
        });
        return commands;
    }

private:
    bool isBetter(const ConflictMember &member, const ConflictMember &present) const
    {
        // A shortcut is what the key activates, where it was made together with an action.
        if (member.isSameThing(present))
            return member.isShortcut();
        return preference(member, focus_) > preference(present, focus_);
    }

    ZelCommand commandOf(const ConflictMember &member) const
    {
        const ShortcutEntry entry = registry_.entries.value(member.id());
        ZelCommand command;
        command.id_ = member.id();
        command.category_ = categoryText(categoryIndex(command.id_));
        command.text_ =
            ZelShortcutTreeItem::displayText(entry.text.isEmpty() ? member.text() : entry.text);
        // While keys are in conflict shortcuts are without theirs.
        command.key_ = member.hasKey() ? member.key() : entry.currentKey.key();
        command.member_ = member;
        return command;
    }

    const ZelShortcutHandlerPrivate &registry_;
    const QWidget *focus_;
    QHash<QString, qsizetype> positions_;
    QList<ZelCommand> commands_;
};

QList<ZelCommand> ZelCommand::all(const QWidget *focus)
{
    const ZelShortcutHandlerPrivate &registry = *ZelShortcutHandler::instance()->d_;
    Collector collector(registry, focus);
    for (const QPointer<QObject> &object : registry.liveObjects)
        collector.add(object);
    return collector.commands();
}

void ZelCommand::run() const
{
    if (isEnabled())
        member_.fire();
}
