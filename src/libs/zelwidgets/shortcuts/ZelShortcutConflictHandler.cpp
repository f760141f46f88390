#include "ZelShortcutConflictHandler.h"

#include "ZelConflictChoice.h"
#include "ZelShortcutHandler_p.h"

#include <ZelWidgets/KeyStateInformation>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>

namespace {

constexpr QLatin1String deleteId("gen.cDelete");

/// Ids that every view has for itself, so that two objects of one are as good as different ids.
bool isOfEachView(const QString &id)
{
    constexpr std::array ids{"gen.aCopy", "gen.aCut", "gen.aPaste", "gen.cDelete"};
    return std::any_of(ids.begin(), ids.end(),
                       [&id](const char *known) { return id == QLatin1String(known); });
}

QString contextName(Qt::ShortcutContext context)
{
    switch (context) {
    case Qt::WidgetShortcut:
        return QStringLiteral("Wdgs");
    case Qt::WindowShortcut:
        return QStringLiteral("Window");
    case Qt::ApplicationShortcut:
        return QStringLiteral("Application");
    case Qt::WidgetWithChildrenShortcut:
        return QStringLiteral("Wdgs+Children");
    }
    return {};
}

QString typeName(const ConflictMember &member)
{
    if (member.isShortcut())
        return QStringLiteral("ZelShortcut");
    if (member.object())
        return QStringLiteral("ZelAction");
    return member.qAction() ? QStringLiteral("?qaction?") : QStringLiteral("???");
}

QString nameOf(const QObject *object)
{
    return object ? object->objectName() : QString();
}

QObject *parentOf(const ConflictMember &member)
{
    return member.object() ? member.object()->parent() : nullptr;
}

QWidget *parentFor(const ConflictMember &first, const ConflictMember &second)
{
    if (QWidget *mainWidget = ZelShortcutHandlerPrivate::mainWidget())
        return mainWidget;
    QWidget *scope = first.scope() ? first.scope() : second.scope();
    return scope ? scope->window() : nullptr;
}

bool isInItemView(const QWidget *widget)
{
    return qobject_cast<const QAbstractItemView *>(widget) ||
           qobject_cast<const QAbstractItemView *>(widget->parentWidget());
}

} // namespace

ZelShortcutConflictHandler::ZelShortcutConflictHandler(const QKeySequence &key, QWidget *parent)
    : QShortcut(key, parent, nullptr, nullptr, Qt::ApplicationShortcut)
{
    connect(this, &QShortcut::activated, this, &ZelShortcutConflictHandler::decide);
    // A member that has the focus itself is in Qt's map all the same.
    connect(this, &QShortcut::activatedAmbiguously, this, &ZelShortcutConflictHandler::decide);
}

ZelShortcutConflictHandler *ZelShortcutConflictHandler::make(QObject *a, QObject *b)
{
    const ConflictMember first(a);
    const ConflictMember second(b);
    const QKeySequence key = first.key();
    if (key.isEmpty() || key != second.key() || first.isSame(second))
        return nullptr;
    QWidget *parent = parentFor(first, second);
    if (!parent)
        return nullptr;
    if (first.scope() == second.scope() && first.id() != second.id()) {
        qDebug().noquote() << QStringLiteral("Will not be able to resolve conflicts for (%1, %2)")
                                  .arg(first.text(), second.text());
    }
    return new ZelShortcutConflictHandler(key, parent);
}

ZelShortcutConflictHandler::~ZelShortcutConflictHandler()
{
    release();
}

void ZelShortcutConflictHandler::release()
{
    const QKeySequence handled = key();
    const QPointer<ZelShortcutConflictHandler> self(this);
    while (self && !members_.isEmpty()) {
        ConflictMember member = members_.takeLast();
        giveBack(member, handled);
    }
}

void ZelShortcutConflictHandler::giveBack(ConflictMember &member, const QKeySequence &key)
{
    if (QAction *action = member.qAction())
        action->removeEventFilter(this);
    member.restore(key);
}

void ZelShortcutConflictHandler::dismiss()
{
    const QPointer<ZelShortcutConflictHandler> self(this);
    setEnabled(false);
    release();
    if (!self)
        return;
    if (deciding_ > 0)
        deleteLater();
    else
        delete this;
}

void ZelShortcutConflictHandler::add(QObject *object)
{
    ConflictMember member(object);
    if (!member.isAlive() || holds(object))
        return;
    for (const ConflictMember &other : std::as_const(members_)) {
        if (member.sharesQAction(other))
            member.takeContextOf(other);
    }
    members_.append(member);
    connect(object, &QObject::destroyed, this, &ZelShortcutConflictHandler::removeDead);
    if (QAction *action = member.qAction()) {
        action->installEventFilter(this);
        connect(action, &QObject::destroyed, this, &ZelShortcutConflictHandler::removeDead);
    }
    member.neutralize();
}

bool ZelShortcutConflictHandler::holds(const QObject *object) const
{
    return std::any_of(members_.begin(), members_.end(),
                       [object](const ConflictMember &member) { return member.isObject(object); });
}

QList<QObject *> ZelShortcutConflictHandler::objects() const
{
    QList<QObject *> objects;
    for (const ConflictMember &member : members_)
        objects.append(member.object());
    return objects;
}

QObject *ZelShortcutConflictHandler::firstObject() const
{
    return isEmpty() ? nullptr : members_.constFirst().object();
}

QList<QObject *> ZelShortcutConflictHandler::shortcuts() const
{
    QList<QObject *> shortcuts;
    for (const ConflictMember &member : members_) {
        if (member.isShortcut())
            shortcuts.append(member.object());
    }
    return shortcuts;
}

bool ZelShortcutConflictHandler::isFor(const QList<QPointer<QObject>> &objects) const
{
    const QWidget *mainWidget = ZelShortcutHandlerPrivate::mainWidget();
    if (mainWidget && parent() != mainWidget)
        return false;
    return std::equal(members_.begin(), members_.end(), objects.begin(), objects.end(),
                      [this](const ConflictMember &member, const QPointer<QObject> &object) {
                          return member.isObject(object) &&
                                 (member.isShortcut() || member.key() == key());
                      });
}

void ZelShortcutConflictHandler::removeDead()
{
    QList<ConflictMember> dead;
    for (qsizetype at = members_.size() - 1; at >= 0; --at) {
        if (!members_[at].isAlive())
            dead.append(members_.takeAt(at));
    }
    // A wrapped action outlives its ZelAction, and may be in under another one.
    for (ConflictMember &member : dead) {
        const bool isShared =
            std::any_of(members_.cbegin(), members_.cend(), [&member](const ConflictMember &other) {
                return member.sharesQAction(other);
            });
        if (!isShared)
            giveBack(member, key());
    }
}

bool ZelShortcutConflictHandler::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Shortcut) {
        const auto *press = static_cast<QShortcutEvent *>(event);
        if (press->isAmbiguous() && press->key() == key()) {
            decide();
            return true;
        }
    }
    return QShortcut::eventFilter(watched, event);
}

void ZelShortcutConflictHandler::decide()
{
    QWidget *focus = QApplication::focusWidget();
    QWidget *place = focus ? focus : QApplication::activeWindow();
    if (!place)
        return;
    const QPointer<ZelShortcutConflictHandler> self(this);
    ++deciding_;
    const QList<Candidate> found = candidates(focus, place);
    if (found.isEmpty()) {
        resend(QStringLiteral("unknown"), true);
    } else if (!leavesDeleteToView(found.first(), place)) {
        const Choice choice = choose(withoutDoubles(found));
        if (choice.rival)
            report(choice.best, *choice.rival);
        else if (choice.best.member.enabled())
            choice.best.member.fire();
    }
    if (self)
        --deciding_;
}

QList<ZelShortcutConflictHandler::Candidate>
ZelShortcutConflictHandler::candidates(QWidget *focus, QWidget *place) const
{
    QList<Candidate> found;
    for (const ConflictMember &member : members_) {
        QWidget *scope = member.isAlive() ? member.scope() : nullptr;
        if (!scope)
            continue;
        const ZelConflictChoice::Claim claim{scope, member.context(), member.isShortcut()};
        if (ZelConflictChoice::isCandidate(claim, focus, place))
            found.append({ZelConflictChoice::score(claim, place), member});
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Candidate &a, const Candidate &b) { return a.score < b.score; });
    return found;
}

/// Without the actions that a shortcut stands for.
QList<ZelShortcutConflictHandler::Candidate>
ZelShortcutConflictHandler::withoutDoubles(QList<Candidate> candidates)
{
    const QList<Candidate> all = candidates;
    candidates.removeIf([&all](const Candidate &candidate) {
        return !candidate.member.isShortcut() &&
               std::any_of(all.begin(), all.end(), [&candidate](const Candidate &other) {
                   return other.member.isShortcut() && other.member.enabled() &&
                          other.member.isSameThing(candidate.member);
               });
    });
    return candidates;
}

ZelShortcutConflictHandler::Choice
ZelShortcutConflictHandler::choose(const QList<Candidate> &candidates)
{
    Candidate best = candidates.first();
    for (const Candidate &next : candidates.mid(1)) {
        const QString id = next.member.id();
        const bool isSameThing = next.member.isSameThing(best.member);
        if (!isSameThing && (id != best.member.id() || isOfEachView(id))) {
            if (next.score > best.score)
                break;
            return {best, next};
        }
        if (!best.member.enabled() && next.member.enabled())
            best = next;
    }
    return {best, std::nullopt};
}

QList<ZelConflictStanding> ZelShortcutConflictHandler::standings() const
{
    QList<ZelConflictStanding> standings;
    QWidget *focus = QApplication::focusWidget();
    QWidget *place = focus ? focus : QApplication::activeWindow();
    const QList<Candidate> found = place ? candidates(focus, place) : QList<Candidate>();
    std::optional<Choice> choice;
    if (!found.isEmpty())
        choice = choose(withoutDoubles(found));
    for (const Candidate &candidate : found) {
        const ConflictMember &member = candidate.member;
        const bool isMeant = !choice->rival && member.isSame(choice->best.member);
        standings.append({member.id(), member.text(), candidate.score, member.enabled(), isMeant});
    }
    for (const ConflictMember &member : members_) {
        const bool isFound = std::any_of(found.begin(), found.end(), [&member](const auto &other) {
            return other.member.isSame(member);
        });
        if (!isFound)
            standings.append({member.id(), member.text(), {}, member.enabled(), false});
    }
    return standings;
}

bool ZelShortcutConflictHandler::leavesDeleteToView(const Candidate &best, const QWidget *place)
{
    const bool isDelete = key() == QKeySequence(Qt::Key_Delete) || best.member.id() == deleteId;
    return isDelete && isInItemView(place) && place != best.member.scope() &&
           resend(best.member.id(), true, Qt::Key_Delete);
}

bool ZelShortcutConflictHandler::resend(const QString &id, bool force, int key)
{
    if (inInvoke_) {
        qWarning() << "Could not invoke a shortcut as expected (id:" << id << "key:" << key << ")";
        qWarning() << "Please report to Ortavi or change your shortcut settings to avoid conflicts";
        return false;
    }
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        return false;
    const std::unique_ptr<QKeyEvent> last = KeyStateInformation::lastKeyPress();
    const int sent = key == -1 ? last->key() : key;
    const int plain = sent & ~static_cast<int>(Qt::KeyboardModifierMask);
    if (!force && (last->text().isEmpty() || plain > Qt::Key_F1))
        return false;
    const QPointer<ZelShortcutConflictHandler> self(this);
    inInvoke_ = true;
    QKeyEvent press(QEvent::KeyPress, sent, last->modifiers(), last->text());
    const bool isTaken = static_cast<QObject *>(focus)->event(&press);
    if (self)
        inInvoke_ = false;
    return isTaken;
}

void ZelShortcutConflictHandler::report(const Candidate &a, const Candidate &b)
{
    const ConflictMember &first = a.member;
    const ConflictMember &second = b.member;
    const auto tell = [](const QString &line) {
        qDebug().noquote() << line;
    };
    const auto yesNo = [](bool yes) {
        return yes ? QStringLiteral("true") : QStringLiteral("false");
    };
    const QObject *firstParent = parentOf(first);
    const QObject *secondParent = parentOf(second);
    tell(QStringLiteral("-----------------------------------------"));
    tell(QStringLiteral("Hotkey conflict with '%1' and '%2' (%3))")
             .arg(first.text(), second.text(), QString::number(a.score)));
    tell(QStringLiteral("Ids: (%1, %2). ObjNames (%3, %4) ")
             .arg(first.id(), second.id(), nameOf(first.object()), nameOf(second.object())));
    tell(QStringLiteral("Shortcut types: (%1, %2)").arg(typeName(first), typeName(second)));
    tell(QStringLiteral("Contexts: (%1, %2)")
             .arg(contextName(first.context()), contextName(second.context())));
    tell(QStringLiteral("SameScope: %1 , SameParent: %2")
             .arg(yesNo(first.scope() == second.scope()), yesNo(firstParent == secondParent)));
    if (firstParent != secondParent) {
        tell(QStringLiteral("parents: '%1', '%2'").arg(nameOf(firstParent), nameOf(secondParent)));
    }
}
