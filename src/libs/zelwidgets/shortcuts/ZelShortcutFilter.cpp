#include "ZelShortcutFilter.h"

#include <algorithm>

void ZelShortcutFilter::setText(const QString &text)
{
    words_ = text.toLower().split(u' ', Qt::SkipEmptyParts);
}

bool ZelShortcutFilter::isEmpty() const
{
    return words_.isEmpty() && key.isEmpty() && !onlyChanged && !onlyConflicts;
}

bool ZelShortcutFilter::fits(const Row &row) const
{
    if ((onlyChanged && !row.changed) || (onlyConflicts && !row.conflict))
        return false;
    if (key.count() > row.key.count())
        return false;
    for (uint i = 0; i < static_cast<uint>(key.count()); ++i) {
        if (key[i] != row.key[i])
            return false;
    }
    return std::all_of(words_.begin(), words_.end(),
                       [&row](const QString &word) { return row.words.contains(word); });
}
