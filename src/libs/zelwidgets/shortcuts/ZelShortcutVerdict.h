#pragma once

#include "ZelMouseShortcut.h"

#include <QKeySequence>
#include <QList>
#include <QString>

/// What a shortcut is bound to: keys, a gesture, or nothing.
struct ZelShortcutBinding
{
    QKeySequence key;
    ZelMouseShortcut gesture;

    /// Of a portable key text or an exported gesture.
    static ZelShortcutBinding of(const QString &internalText);
    bool isEmpty() const;
    /// The same gesture, or key sequences of which one is the other or its beginning.
    bool clashesWith(const ZelShortcutBinding &other) const;
    /// The same number for all bindings that can clash.
    quint64 bucket() const;
};

/// What stands against a binding: the shortcuts that have it already.
class ZelShortcutVerdict
{
public:
    enum Kind { Free, Elsewhere, SameScope };
    struct Use
    {
        QString id;
        QString name;
        bool sharesScope;
    };

    explicit ZelShortcutVerdict(QList<Use> uses = {});

    Kind kind() const;
    /// For users; names the first few.
    QString text() const;
    /// Whom a reassignment takes the binding from: those of the same scope, without such all.
    QStringList losers() const;

private:
    QList<Use> usesOfKind() const;

    QList<Use> uses_;
};
