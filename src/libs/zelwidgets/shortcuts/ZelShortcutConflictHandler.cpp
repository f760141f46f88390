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
    QWidget *parent = ZelShortcutHandlerPrivate::mainWidget();
    if (!parent && first.scope())
        parent = first.scope()->window();
    if (first.scope() == second.scope() && first.id() != second.id()) {
        qDebug().noquote() << QStringLiteral("Will not be able to resolve conflicts for (%1, %2)")
                                  .arg(first.text(), second.text());
    }
    auto *handler = new ZelShortcutConflictHandler(key, parent);
    handler->add(a);
    handler->add(b);
    return handler;
}

ZelShortcutConflictHandler::~ZelShortcutConflictHandler()
{
    release();
}

void ZelShortcutConflictHandler::release()
{
    for (ConflictMember &member : members_) {
        if (QAction *action = member.qAction())
            action->removeEventFilter(this);
        member.restore(key());
    }
    members_.clear();
}

void ZelShortcutConflictHandler::dismiss()
{
    release();
    setEnabled(false);
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
    member.neutralize();
    members_.append(member);
    connect(object, &QObject::destroyed, this, &ZelShortcutConflictHandler::removeDead);
    if (QAction *action = member.qAction()) {
        action->installEventFilter(this);
        connect(action, &QObject::destroyed, this, &ZelShortcutConflictHandler::removeDead);
    }
}

bool ZelShortcutConflictHandler::holds(const QObject *object) const
{
    return std::any_of(members_.begin(), members_.end(),
                       [object](const ConflictMember &member) { return member.isObject(object); });
}

void ZelShortcutConflictHandler::removeDead()
{
    members_.removeIf([](const ConflictMember &member) { return !member.isAlive(); });
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
        const std::optional<Candidate> chosen = best(found);
        if (chosen && chosen->member.enabled())
            chosen->member.fire();
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

std::optional<ZelShortcutConflictHandler::Candidate>
ZelShortcutConflictHandler::best(const QList<Candidate> &candidates) const
{
    Candidate best = candidates.first();
    for (const Candidate &next : candidates.mid(1)) {
        const QString id = next.member.id();
        if (id != best.member.id() || isOfEachView(id)) {
            if (next.score > best.score)
                break;
            report(best, next);
            return std::nullopt;
        }
        if (!best.member.enabled() && next.member.enabled())
            best = next;
    }
    return best;
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
    if (!force && (last->text().isEmpty() || sent > Qt::Key_F1))
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
