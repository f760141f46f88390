#pragma once

#include <QKeySequence>
#include <QPointer>
#include <QString>

class QAction;
class QObject;
class QWidget;
class ZelAction;
class ZelShortcut;

/// One of several live objects that have the same key. The objects may die at any time; all
/// answers are the action's first, and empty once nothing is left.
class ConflictMember
{
public:
    ConflictMember() = default;
    /// A ZelAction or a ZelShortcut; nothing for any other object.
    explicit ConflictMember(QObject *object);

    bool isAlive() const;
    bool isSame(const ConflictMember &other) const;
    bool isObject(const QObject *object) const;
    /// Whether the two are faces of one thing, which can't be in conflict with itself: actions that
    /// wrap the same QAction, or a shortcut and the QAction that it was made for.
    bool isSameThing(const ConflictMember &other) const;
    bool sharesQAction(const ConflictMember &other) const;

    QKeySequence key() const;
    bool hasKey() const;
    QString id() const;
    QString text() const;
    QWidget *scope() const;
    bool enabled() const;
    bool isShortcut() const { return !shortcut_.isNull(); }
    /// The context that the object has outside of conflicts.
    Qt::ShortcutContext context() const;
    QObject *object() const;
    QAction *qAction() const { return qAction_; }

    /// Takes the object out of Qt's map of shortcuts. An action keeps its key, for menus to show.
    void neutralize();
    /// The QAction is neutralised already: its own context is the one that the other knows.
    void takeContextOf(const ConflictMember &other) { savedContext_ = other.savedContext_; }
    /// Undoes it; shortcuts get this key.
    void restore(const QKeySequence &key);
    /// Triggers the action, emits the shortcut's signal.
    void fire() const;

private:
    QPointer<ZelAction> action_;
    QPointer<ZelShortcut> shortcut_;
    QPointer<QAction> qAction_;
    Qt::ShortcutContext savedContext_ = Qt::WindowShortcut;
};
