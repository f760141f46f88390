#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

/// Where the comments of an SVG text lie and what a theme marker in them says. Plain text
/// operations; nothing here knows XML.
namespace SvgMarkers {

/// A comment: where "<!--" and "-->" begin.
struct Comment
{
    qsizetype begin;
    qsizetype end;
};

enum class Kind { None, Global, Local };

struct Marker
{
    QString from;
    QString key;
};

/// The text without line ends, which are removed and not replaced by blanks.
QString withoutLineEnds(const QString &svg);

/// The comments by index: the first begin with the first end and so on; nothing if there are more
/// of one than of the other.
std::optional<QList<Comment>> findComments(QStringView text);

/// Whether the markers could take a search of the text each without an end in sight; an icon of a
/// few kilobytes is far from it.
bool isBoundless(qsizetype commentCount, QStringView text);

/// What stands between the marks, trimmed.
QStringView body(QStringView text, const Comment &comment);

Kind kindOf(QStringView body);

/// The parts of a marker; nothing unless there are exactly two.
std::optional<Marker> parse(QStringView body, Kind kind);

/// Replaces the nearest occurrence that lies wholly in front of the position, if there is one.
void replaceInFront(QString &text, const QString &from, const QString &to, qsizetype position);

} // namespace SvgMarkers
