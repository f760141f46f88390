#include "ThemedSvg.h"

#include <algorithm>

using SvgMarkers::Comment;
using SvgMarkers::Kind;

namespace {

bool holdsAnyOf(QStringView text, QStringView characters)
{
    return std::any_of(text.begin(), text.end(),
                       [&](QChar character) { return characters.contains(character); });
}

// Whether a colour text can only be found in the document, never in or across one of the tags
// that stand in for the colours between the two passes, nor in the marks of a comment.
bool isRegularSource(QStringView from)
{
    return from.isEmpty() || (!holdsAnyOf(from, u"<>!&-") && !from.front().isDigit() &&
                              !QStringView(u"replace_").contains(from));
}

} // namespace

ThemedSvg::ThemedSvg(const QString &svg)
    : source_(svg)
    , text_(SvgMarkers::withoutLineEnds(svg))
{
    const auto comments = SvgMarkers::findComments(text_);
    if (!comments || comments->isEmpty() || SvgMarkers::isBoundless(comments->size(), text_) ||
        text_.contains(QLatin1String("!&"))) {
        return;
    }
    if (!findMarkers(*comments))
        return;
    findOccurrences();
    regular_ = occurrencesLieWell(*comments);
}

bool ThemedSvg::isRegularColor(QStringView color)
{
    return !holdsAnyOf(color, u"<>!&-");
}

bool ThemedSvg::findMarkers(const QList<Comment> &comments)
{
    for (const Comment &comment : comments) {
        if (comment.end < comment.begin)
            return false;
        const QStringView body = SvgMarkers::body(text_, comment);
        const Kind kind = SvgMarkers::kindOf(body);
        if (kind == Kind::None)
            continue;
        const auto found = SvgMarkers::parse(body, kind);
        if (!found || (kind == Kind::Global && !isRegularSource(found->from)))
            return false;
        QList<Marker> &list = kind == Kind::Global ? globals_ : locals_;
        list.append({found->from, ColorKey(found->key), comment.begin});
    }
    return globals_.size() <= mostGlobals;
}

// Each marker in turn takes what the ones before it left over.
void ThemedSvg::findOccurrences()
{
    for (qsizetype i = 0; i < globals_.size(); ++i) {
        const QString &from = globals_.at(i).from;
        if (from.isEmpty())
            continue;
        const QList<Occurrence> taken = occurrences_;
        auto next = taken.cbegin();
        qsizetype at = text_.indexOf(from);
        while (at >= 0) {
            const qsizetype end = at + from.size();
            while (next != taken.cend() && next->end <= at)
                ++next;
            const bool free = next == taken.cend() || next->begin >= end;
            if (free) {
                occurrences_.append({at, end, int(i)});
                ++globals_[i].count;
            }
            at = text_.indexOf(from, free ? end : next->end);
        }
        std::sort(occurrences_.begin(), occurrences_.end(),
                  [](const Occurrence &a, const Occurrence &b) { return a.begin < b.begin; });
    }
}

bool ThemedSvg::occurrencesLieWell(const QList<Comment> &comments) const
{
    // What stands in front must not become a part of a mark or a tag by what is put in.
    for (const Occurrence &occurrence : occurrences_) {
        if (occurrence.begin > 0 && QStringView(u"<!-").contains(text_.at(occurrence.begin - 1))) {
            return false;
        }
    }
    // Only the colour text and the key of a global marker may change in a comment.
    for (const Comment &comment : comments) {
        const auto first = std::lower_bound(
            occurrences_.cbegin(), occurrences_.cend(), comment.begin,
            [](const Occurrence &occurrence, qsizetype at) { return occurrence.end <= at; });
        if (first == occurrences_.cend() || first->begin >= comment.end)
            continue;
        const QStringView body = SvgMarkers::body(text_, comment);
        const qsizetype signsEnd = body.constData() - text_.constData() + 2;
        if (SvgMarkers::kindOf(body) != Kind::Global || first->begin < signsEnd)
            return false;
    }
    return true;
}

QString ThemedSvg::withGlobalColors(std::span<const QStringView> colors,
                                    std::span<qsizetype> localPositions) const
{
    qsizetype size = text_.size();
    for (const Occurrence &occurrence : occurrences_)
        size += colors[size_t(occurrence.marker)].size() - (occurrence.end - occurrence.begin);
    QString result(size, Qt::Uninitialized);
    QChar *out = result.data();
    qsizetype done = 0;
    size_t local = 0;
    const auto copyUpTo = [&](qsizetype end) {
        for (; local < localPositions.size(); ++local) {
            const qsizetype position = locals_.at(qsizetype(local)).position;
            if (position >= end)
                break;
            localPositions[local] = out - result.constData() + (position - done);
        }
        out = std::copy_n(text_.constData() + done, end - done, out);
    };
    for (const Occurrence &occurrence : occurrences_) {
        copyUpTo(occurrence.begin);
        const QStringView color = colors[size_t(occurrence.marker)];
        out = std::copy_n(color.begin(), color.size(), out);
        done = occurrence.end;
    }
    copyUpTo(text_.size());
    return result;
}
