#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QList>
#include <QString>

#include <optional>

/// How well a text fits the few letters that somebody typed for it.
///
/// All letters have to be in the text in their order; case and accents don't matter, blanks are
/// passed over. Letters at the beginnings of words and at humps ("fS" in "fullScreen") count most,
/// then those that follow one another; gaps count against the text.
struct ZELWIDGETS_EXPORT ZelFuzzyMatch
{
    /// The larger the better; comparable for one pattern only.
    int score = 0;
    /// Where the letters are in the text, ascending: the first code unit of each.
    QList<qsizetype> positions;

    /// Nothing if a letter is missing. An empty pattern fits every text with a score of 0. Of the
    /// pattern the first 64 letters count, of the text the first 1024.
    static std::optional<ZelFuzzyMatch> of(const QString &pattern, const QString &text);
};
