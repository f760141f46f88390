#pragma once

#include "ZelConflictMember.h"

#include <QList>
#include <QShortcut>

#include <optional>

class QEvent;

/// Takes the place of several live objects that have one key, and decides at each press by focus
/// and scope which one is meant.
class ZelShortcutConflictHandler : public QShortcut
{
    Q_OBJECT

public:
    /// A handler of two objects; null unless both have the same key. The two are taken out of Qt's
    /// map. The parent is the registry's main widget or, before there is one, the first object's
    /// window.
    static ZelShortcutConflictHandler *make(QObject *a, QObject *b);
    /// Gives the members their keys back.
    ~ZelShortcutConflictHandler() override;

    /// Takes a further object in; one that is in already stays as it is.
    void add(QObject *object);
    bool holds(const QObject *object) const;
    int memberCount() const { return static_cast<int>(members_.size()); }
    /// Gives the members their keys back and goes, at once or when the present press is over.
    void dismiss();

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

    ZelShortcutConflictHandler(const QKeySequence &key, QWidget *parent);
    void release();
    void removeDead();
    QList<Candidate> candidates(QWidget *focus, QWidget *place) const;
    /// The one to fire; nothing where the order is not clear.
    std::optional<Candidate> best(const QList<Candidate> &candidates) const;
    bool leavesDeleteToView(const Candidate &best, const QWidget *place);
    bool resend(const QString &id, bool force, int key = -1);
    static void report(const Candidate &a, const Candidate &b);

    QList<ConflictMember> members_;
    bool inInvoke_ = false;
    int deciding_ = 0;
};
