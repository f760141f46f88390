#include "IconColorThemeImpl.h"

#include "IconModeOrder.h"
#include "SvgMarkers.h"
#include "ThemedSvg.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVarLengthArray>

#include <algorithm>
#include <optional>

using SvgMarkers::Comment;
using SvgMarkers::Kind;

namespace {

constexpr QLatin1String replaceTag("!&replace_!");

struct Replacement
{
    QString from;
    QString to;
    qsizetype position;
};

QString tagOf(qsizetype index)
{
    return replaceTag + QString::number(index);
}

// How far a document may grow: markers whose colour texts occur in the tags double it each time.
qsizetype sizeLimit(const QString &text)
{
    return text.size() * 16 + 1024 * 1024;
}

bool replaceAll(QString &text, const QString &from, const QString &to, qsizetype limit)
{
    if (from.isEmpty())
        return true;
    if (to.size() > from.size() &&
        text.count(from) > (limit - text.size()) / (to.size() - from.size())) {
        return false;
    }
    text.replace(from, to);
    return true;
}

// The body of a comment, or nothing, with a warning, if its marks stand the wrong way round.
std::optional<QStringView> checkedBody(const QString &text, const Comment &comment,
                                       const QString &name)
{
    if (comment.end < comment.begin) {
        qWarning() << "Mismatch in svg comments. Svg:" << name;
        return std::nullopt;
    }
    return SvgMarkers::body(text, comment);
}

std::optional<QList<Comment>> checkedComments(const QString &text)
{
    auto comments = SvgMarkers::findComments(text);
    if (!comments)
        qWarning() << "Comments in svg mismatch";
    return comments;
}

std::optional<SvgMarkers::Marker> checkedMarker(QStringView body, Kind kind, qsizetype position,
                                                const QString &name)
{
    auto marker = SvgMarkers::parse(body, kind);
    if (!marker)
        qWarning() << "Svg icon " << name << "failed parse at" << position;
    return marker;
}

void warnIfEmpty(const QString &color, const QString &name)
{
    if (color.isEmpty())
        qWarning() << "Icon:" << name;
}

} // namespace

void IconColorThemeImpl::clear()
{
    modeColors_.clear();
    exactColors_.clear();
}

bool IconColorThemeImpl::isNull() const
{
    return modeColors_.isEmpty() && exactColors_.isEmpty();
}

void IconColorThemeImpl::parseAndBuildMap(const QString &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (document.isNull()) {
        qCritical()
            << "IconColorThemeImpl::parseAndBuildMap read empty document - Likely parse error.";
        qCritical() << "Data: " << json;
        return;
    }
    const QJsonArray elements = document.array();
    for (const auto &element : elements) {
        const QJsonObject colors = element.toObject();
        for (auto color = colors.begin(); color != colors.end(); ++color) {
            const QString value = color.value().toString();
            exactColors_.insert(color.key(), value);
            modeColors_[ColorKey::baseName(color.key())].append(
                ColorEntry::fromKey(color.key(), value));
        }
    }
}

IconColorThemeImpl::Lookup IconColorThemeImpl::lookUp(const ColorKey &key, int mode,
                                                      int state) const
{
    if (key.suffixed) {
        const auto exact = exactColors_.constFind(key.key);
        if (exact != exactColors_.constEnd())
            return {*exact, Outcome::Found};
    }
    const auto entries = modeColors_.constFind(key.base);
    if (entries == modeColors_.constEnd())
        return {QString(), Outcome::UnknownKey};
    for (const auto &wanted : iconModeOrder(mode, state)) {
        const auto entry =
            std::find_if(entries->cbegin(), entries->cend(), [&](const ColorEntry &candidate) {
                return candidate.mode == wanted.first && candidate.state == wanted.second;
            });
        if (entry != entries->cend() && !entry->color.isEmpty())
            return {entry->color, Outcome::Found};
    }
    return {entries->first().color, Outcome::UnexpectedFallback};
}

void IconColorThemeImpl::report(const ColorKey &key, Outcome outcome)
{
    if (outcome == Outcome::UnknownKey) {
        qWarning() << "IconThemeColorMap - No theme colors found for mapkey " << key.base << "("
                   << "orgKey: " << key.key << ")";
    } else if (outcome == Outcome::UnexpectedFallback) {
        qWarning() << "IconThemeColorMap - Used unexpected color fallback for " << key.base << "("
                   << "orgKey: " << key.key << ")";
    }
}

QString IconColorThemeImpl::colorFor(const ColorKey &key, int mode, int state) const
{
    const Lookup found = lookUp(key, mode, state);
    report(key, found.outcome);
    return found.color;
}

QString IconColorThemeImpl::mapSvgToTheme(const QString &svg, int mode, int state,
                                          const QString &name) const
{
    QString text = SvgMarkers::withoutLineEnds(svg);
    const auto comments = checkedComments(text);
    if (!comments)
        return {};
    if (comments->isEmpty()) {
        qWarning() << "Unexpected no colors to replace in svg " << name;
        return svg;
    }
    if (SvgMarkers::isBoundless(comments->size(), text)) {
        qWarning() << "Svg icon " << name << "holds too many comments for its size";
        return {};
    }
    if (!applyGlobals(text, mode, state, name) || !applyLocals(text, mode, state, name))
        return {};
    return text;
}

bool IconColorThemeImpl::applyGlobals(QString &text, int mode, int state, const QString &name) const
{
    QList<Replacement> records;
    const auto comments = SvgMarkers::findComments(text);
    for (const Comment &comment : *comments) {
        const auto body = checkedBody(text, comment, name);
        if (!body)
            return false;
        if (SvgMarkers::kindOf(*body) != Kind::Global)
            continue;
        const auto marker = checkedMarker(*body, Kind::Global, comment.begin, name);
        if (!marker)
            return false;
        const QString color = colorFor(ColorKey(marker->key), mode, state);
        warnIfEmpty(color, name);
        records.append({marker->from, color, comment.begin});
    }
    if (text.contains(replaceTag)) {
        qCritical() << "IconThemeColorMap - Unexpected string for replace tag found in svg.";
        return true;
    }
    // Two passes, so that a colour that was put in is not taken for what another marker replaces.
    const qsizetype limit = sizeLimit(text);
    bool fits = true;
    for (qsizetype i = 0; fits && i < records.size(); ++i)
        fits = replaceAll(text, records.at(i).from, tagOf(i), limit);
    for (qsizetype i = 0; fits && i < records.size(); ++i)
        fits = replaceAll(text, tagOf(i), records.at(i).to, limit);
    if (!fits)
        qWarning() << "Svg icon " << name << "grows without bound by its markers";
    return fits;
}

bool IconColorThemeImpl::applyLocals(QString &text, int mode, int state, const QString &name) const
{
    const auto comments = checkedComments(text);
    if (!comments)
        return false;
    QList<Replacement> records;
    for (auto comment = comments->crbegin(); comment != comments->crend(); ++comment) {
        const auto body = checkedBody(text, *comment, name);
        if (!body)
            return false;
        if (SvgMarkers::kindOf(*body) != Kind::Local)
            continue;
        const auto marker = checkedMarker(*body, Kind::Local, comment->begin, name);
        if (!marker)
            return false;
        const QString color = colorFor(ColorKey(marker->key), mode, state);
        records.append({marker->from, color, comment->begin});
    }
    for (const Replacement &record : std::as_const(records))
        SvgMarkers::replaceInFront(text, record.from, record.to, record.position);
    return true;
}

QString IconColorThemeImpl::mapSvgToTheme(const ThemedSvg &svg, int mode, int state,
                                          const QString &name) const
{
    if (!svg.isRegular())
        return mapSvgToTheme(svg.source(), mode, state, name);
    QVarLengthArray<Lookup, ThemedSvg::mostGlobals> colors;
    qsizetype room = svg.text().size();
    for (const ThemedSvg::Marker &marker : svg.globals()) {
        colors.append(lookUp(marker.key, mode, state));
        const QString &color = colors.back().color;
        room += marker.count * qMax(color.size(), tagOf(0).size());
        // Nothing was reported so far: the plain rewriting starts afresh.
        if (!ThemedSvg::isRegularColor(color) || room > sizeLimit(svg.text()))
            return mapSvgToTheme(svg.source(), mode, state, name);
    }
    for (qsizetype i = 0; i < colors.size(); ++i) {
        report(svg.globals().at(i).key, colors.at(i).outcome);
        warnIfEmpty(colors.at(i).color, name);
    }
    QVarLengthArray<QStringView, ThemedSvg::mostGlobals> views;
    for (const Lookup &found : std::as_const(colors))
        views.append(found.color);
    QVarLengthArray<qsizetype, 16> positions(svg.locals().size());
    QString text = svg.withGlobalColors(views, positions);
    for (qsizetype i = svg.locals().size() - 1; i >= 0; --i) {
        const ThemedSvg::Marker &marker = svg.locals().at(i);
        SvgMarkers::replaceInFront(text, marker.from, colorFor(marker.key, mode, state),
                                   positions.at(i));
    }
    return text;
}
