#pragma once

#include "ZelConflictMember.h"

#include <QKeySequence>
#include <QList>
#include <QString>

/// What users can start by a key: the live objects of one id, of which the one nearest to the focus
/// is meant.
class ZelCommand
{
public:
    /// All that there are, in the order of the shortcuts' categories and ids. Hidden actions and
    /// those without a text are left out.
    static QList<ZelCommand> all(const QWidget *focus);

    QString id() const { return id_; }
    QString category() const { return category_; }
    QString text() const { return text_; }
    QKeySequence key() const { return key_; }
    /// Of now; false also after the object's death.
    bool isEnabled() const { return member_.enabled(); }
    /// Does what the key does; nothing unless it is enabled.
    void run() const;

private:
    class Collector;

    QString id_;
    QString category_;
    QString text_;
    QKeySequence key_;
    ConflictMember member_;
};
