#pragma once

#include <QKeySequence>
#include <QString>
#include <QStringList>

/// Which rows an editor of shortcuts shows.
class ZelShortcutFilter
{
public:
    /// What is looked at of a row.
    struct Row
    {
        /// Lower case.
        QString words;
        QKeySequence key;
        bool changed = false;
        bool conflict = false;
    };

    bool onlyChanged = false;
    bool onlyConflicts = false;
    /// The row's keys have to begin with these.
    QKeySequence key;

    /// All words of the text have to be in the row's, in any order and case.
    void setText(const QString &text);
    bool isEmpty() const;
    bool fits(const Row &row) const;

private:
    QStringList words_;
};
