#pragma once

#include "ZelConflictMember.h"

#include <QList>
#include <QShortcut>

#include <optional>

struct ZelConflictStanding;

class QEvent;

/// Takes the place of several live objects that have one key, and decides at each press by focus
/// and scope which one is meant.
class ZelShortcutConflictHandler : public QShortcut
{
    Q_OBJECT

public:
    /// A handler for two objects, which are still to be added; null unless both have the same key.
    /// The parent is the registry's main widget or, before there is one, the window of the first
    /// object that has one; there is no handler without.
    static ZelShortcutConflictHandler *make(QObject *a, QObject *b);
    /// Gives the members their keys back.
    ~ZelShortcutConflictHandler() override;

    /// Takes an object in and out of Qt's map; one that is in already stays as it is. Whoever
    /// hears of the change of an action may take the handler or the object away.
    void add(QObject *object);
    bool holds(const QObject *object) const;
    QList<QObject *> objects() const;
    bool isEmpty() const { return members_.isEmpty(); }
    /// Null without any.
    QObject *firstObject() const;
    /// The shortcuts among the objects, which are without their key meanwhile.
    QList<QObject *> shortcuts() const;
    /// Whether it is what make() and add() would make of these, in this order.
    bool isFor(const QList<QPointer<QObject>> &objects) const;
    /// Gives the members their keys back and goes, at once or when the present press is over.
    void dismiss();

    /// How the members stand to a press of the key now.
    QList<ZelConflictStanding> standings() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// What a press of the key does.
    void decide();

private:
    struct Candidate
    {
        int score;
        ConflictMember member;
    };

    struct Choice
    {
        Candidate best;
        std::optional<Candidate> rival;
    };

    ZelShortcutConflictHandler(const QKeySequence &key, QWidget *parent);
    void release();
    void giveBack(ConflictMember &member, const QKeySequence &key);
    void removeDead();
    QList<Candidate> candidates(QWidget *focus, QWidget *place) const;
    static QList<Candidate> withoutDoubles(QList<Candidate> candidates);
    /// The one to fire and, where the order is not clear, the one that stands against it.
    static Choice choose(const QList<Candidate> &candidates);
    bool leavesDeleteToView(const Candidate &best, const QWidget *place);
    bool resend(const QString &id, bool force, int key = -1);
    static void report(const Candidate &a, const Candidate &b);

    QList<ConflictMember> members_;
    bool inInvoke_ = false;
    int deciding_ = 0;
};
