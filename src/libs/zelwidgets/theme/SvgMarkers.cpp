#include "SvgMarkers.h"

#include <QStringList>

namespace SvgMarkers {
namespace {

constexpr QLatin1String beginMark("<!--");
constexpr QLatin1String endMark("-->");

QList<qsizetype> positionsOf(QStringView text, QLatin1String mark)
{
    QList<qsizetype> positions;
    qsizetype at = text.indexOf(mark);
    while (at >= 0) {
        positions.append(at);
        at = text.indexOf(mark, at + mark.size());
    }
    return positions;
}

} // namespace

QString withoutLineEnds(const QString &svg)
{
    QString text = svg;
    text.remove(QLatin1String("\r\n"));
    text.remove(QLatin1Char('\n'));
    return text;
}

std::optional<QList<Comment>> findComments(QStringView text)
{
    const QList<qsizetype> begins = positionsOf(text, beginMark);
    const QList<qsizetype> ends = positionsOf(text, endMark);
    if (begins.size() != ends.size())
        return std::nullopt;
    QList<Comment> comments;
    comments.reserve(begins.size());
    for (qsizetype i = 0; i < begins.size(); ++i)
        comments.append({begins.at(i), ends.at(i)});
    return comments;
}

bool isBoundless(qsizetype commentCount, QStringView text)
{
    constexpr qint64 mostComparisons = qint64(1) << 32;
    return qint64(commentCount) * text.size() > mostComparisons;
}

QStringView body(QStringView text, const Comment &comment)
{
    const qsizetype start = comment.begin + beginMark.size();
    // In "<!-->" the marks share their dashes.
    if (comment.end <= start)
        return {};
    return text.mid(start, comment.end - start).trimmed();
}

Kind kindOf(QStringView body)
{
    if (body.startsWith(QLatin1String("@*")))
        return Kind::Global;
    return body.startsWith(QLatin1Char('@')) ? Kind::Local : Kind::None;
}

std::optional<Marker> parse(QStringView body, Kind kind)
{
    const qsizetype colon = body.indexOf(QLatin1Char(':'));
    if (colon < 0 || body.indexOf(QLatin1Char(':'), colon + 1) >= 0)
        return std::nullopt;
    const qsizetype signs = kind == Kind::Global ? 2 : 1;
    const QStringView from = body.left(colon).trimmed().mid(signs).trimmed();
    return Marker{from.toString(), body.mid(colon + 1).trimmed().toString()};
}

void replaceInFront(QString &text, const QString &from, const QString &to, qsizetype position)
{
    if (from.isEmpty())
        return;
    const qsizetype at = QStringView(text).left(position).lastIndexOf(from);
    if (at >= 0)
        text.replace(at, from.size(), to);
}

} // namespace SvgMarkers
