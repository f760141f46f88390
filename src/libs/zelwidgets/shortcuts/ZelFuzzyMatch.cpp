#include "ZelFuzzyMatch.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype longestPattern = 64;
constexpr qsizetype longestText = 1024;

constexpr int letterScore = 1;
constexpr int wordScore = 10;
constexpr int humpScore = 8;
constexpr int nextScore = 6;
constexpr int gapPenalty = 3;
/// What comes before the first letter counts against the text up to this.
constexpr int leadPenalty = 3;
constexpr int impossible = std::numeric_limits<int>::min() / 2;

/// A letter without case and accents.
struct Letter
{
    char32_t code;
    qsizetype position;
    /// What the letter earns where it stands.
    int score;
};

int scoreAt(char32_t code, char32_t before)
{
    if (!QChar::isLetterOrNumber(before) && !QChar::isMark(before))
        return letterScore + wordScore;
    const bool isHump = (QChar::isUpper(code) && !QChar::isUpper(before)) ||
                        (QChar::isDigit(code) && !QChar::isDigit(before));
    return isHump ? letterScore + humpScore : letterScore;
}

void appendFolded(QList<Letter> &letters, char32_t code, qsizetype position, int score)
{
    // Capitals first: they write out what a letter stands for, such as a sharp s.
    const QString folded = QString::fromUcs4(&code, 1)
                               .normalized(QString::NormalizationForm_KD)
                               .toUpper()
                               .toCaseFolded();
    const QList<uint> parts = folded.toUcs4();
    for (const char32_t part : parts) {
        if (QChar::isMark(part) || QChar::isSpace(part))
            continue;
        letters.append({part, position, score});
        // What a letter falls apart into is no word of its own.
        score = letterScore;
    }
}

QList<Letter> lettersOf(const QString &text, qsizetype limit)
{
    QList<Letter> letters;
    const QList<uint> codes = text.left(2 * limit).toUcs4();
    char32_t before = 0;
    qsizetype position = 0;
    for (const char32_t code : codes) {
        appendFolded(letters, code, position, scoreAt(code, before));
        before = code;
        position += QChar::requiresSurrogates(code) ? 2 : 1;
    }
    if (letters.size() > limit)
        letters.resize(limit);
    return letters;
}

/// For each letter of the pattern and each of the text: the best score of a match that ends with
/// the one at the other, and where the letter before is then.
class Table
{
public:
    Table(const QList<Letter> &pattern, const QList<Letter> &text)
        : pattern_(pattern)
        , text_(text)
        , cells_(pattern.size() * text.size())
    {
        for (qsizetype row = 0; row < pattern.size(); ++row)
            fillRow(row);
    }

    std::optional<ZelFuzzyMatch> best() const
    {
        const qsizetype last = pattern_.size() - 1;
        qsizetype column = 0;
        for (qsizetype i = 1; i < text_.size(); ++i) {
            if (cell(last, i).score > cell(last, column).score)
                column = i;
        }
        if (cell(last, column).score <= impossible)
            return std::nullopt;
        ZelFuzzyMatch match;
        match.score = cell(last, column).score;
        for (qsizetype row = last; row >= 0; --row) {
            match.positions.prepend(text_[column].position);
            column = cell(row, column).before;
        }
        const auto end = std::unique(match.positions.begin(), match.positions.end());
        match.positions.erase(end, match.positions.end());
        return match;
    }

private:
    struct Cell
    {
        int score = impossible;
        qsizetype before = -1;
    };

    const Cell &cell(qsizetype row, qsizetype column) const
    {
        return cells_[row * text_.size() + column];
    }

    void fillRow(qsizetype row)
    {
        // The best end of the letters before that leaves a gap.
        Cell gap;
        for (qsizetype column = 0; column < text_.size(); ++column) {
            if (row > 0 && column > 1 && cell(row - 1, column - 2).score > gap.score)
                gap = {cell(row - 1, column - 2).score, column - 2};
            if (pattern_[row].code == text_[column].code)
                cells_[row * text_.size() + column] = reached(row, column, gap);
        }
    }

    Cell reached(qsizetype row, qsizetype column, const Cell &gap) const
    {
        const int own = text_[column].score;
        if (row == 0)
            return {own - static_cast<int>(std::min<qsizetype>(column, leadPenalty)), -1};
        Cell best;
        if (gap.score > impossible)
            best = {gap.score - gapPenalty + own, gap.before};
        const int adjacent = column > 0 ? cell(row - 1, column - 1).score : impossible;
        if (adjacent > impossible && adjacent + nextScore + own > best.score)
            best = {adjacent + nextScore + own, column - 1};
        return best;
    }

    const QList<Letter> &pattern_;
    const QList<Letter> &text_;
    QList<Cell> cells_;
};

} // namespace

std::optional<ZelFuzzyMatch> ZelFuzzyMatch::of(const QString &pattern, const QString &text)
{
    const QList<Letter> wanted = lettersOf(pattern, longestPattern);
    if (wanted.isEmpty())
        return ZelFuzzyMatch{};
    const QList<Letter> letters = lettersOf(text, longestText);
    if (letters.size() < wanted.size())
        return std::nullopt;
    return Table(wanted, letters).best();
}
