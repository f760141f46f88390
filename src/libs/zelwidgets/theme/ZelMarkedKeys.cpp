#include "ZelMarkedKeys.h"

#include "ZelPaletteSubstitution.h"

#include <QHash>
#include <QList>

#include <algorithm>

namespace ZelStylePalette {
namespace {

constexpr QChar mark = u'@';
constexpr qsizetype decidingCharacters = 2;
constexpr qsizetype largestResult = 16 * 1024 * 1024;

struct Color
{
    QString key;
    QString value;
};

/// A key in the text.
struct Place
{
    qsizetype begin;
    const Color *color;

    qsizetype end() const { return begin + color->key.size(); }
};

bool isMarked(const QString &key)
{
    return key.size() > 2 && key.front() == mark && key.indexOf(mark, 1) == key.size() - 1;
}

class MarkedText
{
public:
    explicit MarkedText(const QString &text)
        : text_(text)
    {}

    bool readPalette(const Colors &colors)
    {
        colors_.reserve(qsizetype(colors.size()));
        for (const auto &[key, value] : colors) {
            colors_.append({QString::fromStdString(key), QString::fromStdString(value)});
            if (!isMarked(colors_.back().key) || colors_.back().value.contains(mark))
                return false;
        }
        for (const Color &color : std::as_const(colors_))
            byKey_.insert(color.key, &color);
        return true;
    }

    /// False if a mark belongs to no key, or to one and to the next.
    bool findPlaces()
    {
        const QStringView text(text_);
        for (qsizetype at = text.indexOf(mark); at >= 0; at = text.indexOf(mark, at)) {
            const qsizetype last = text.indexOf(mark, at + 1);
            const Color *color = last < 0 ? nullptr : find(at, last);
            if (!color || (!places_.isEmpty() && find(places_.back().end() - 1, at)))
                return false;
            places_.append({at, color});
            at = last + 1;
        }
        return true;
    }

    bool isOfReason() const
    {
        qsizetype size = text_.size();
        for (const Place &place : places_)
            size += place.color->value.size();
        return size <= largestResult;
    }

    /// Whether no key stands where the replacement of another decides about it.
    bool placesAreApart() const
    {
        for (qsizetype i = 0; i + 1 < places_.size(); ++i) {
            if (gapBehind(i) < decidingCharacters || shieldsAnother(i))
                return false;
        }
        return true;
    }

    QString replaced() const
    {
        QString result;
        result.reserve(text_.size());
        qsizetype done = 0;
        for (const Place &place : places_) {
            if (isLeftAlone(text_, place.end()))
                continue;
            result += QStringView(text_).mid(done, place.begin - done);
            result += place.color->value;
            done = place.end();
        }
        return result += QStringView(text_).mid(done);
    }

private:
    const Color *find(qsizetype begin, qsizetype last) const
    {
        return byKey_.value(QStringView(text_).mid(begin, last + 1 - begin));
    }

    qsizetype gapBehind(qsizetype i) const { return places_.at(i + 1).begin - places_.at(i).end(); }

    // A value that is shorter than its key keeps the scan from what follows by the difference.
    bool shieldsAnother(qsizetype i) const
    {
        const Color *color = places_.at(i).color;
        qsizetype shielded = color->key.size() - color->value.size();
        for (; shielded > 0 && i + 1 < places_.size(); ++i) {
            shielded -= gapBehind(i);
            if (shielded > 0 && places_.at(i + 1).color == color)
                return true;
        }
        return false;
    }

    const QString &text_;
    QList<Color> colors_;
    QHash<QStringView, const Color *> byKey_;
    QList<Place> places_;
};

} // namespace

std::optional<QString> substituteMarkedKeys(const QString &text, const Colors &colors)
{
    MarkedText marked(text);
    if (!marked.readPalette(colors) || !marked.findPlaces() || !marked.isOfReason() ||
        !marked.placesAreApart())
        return std::nullopt;
    return marked.replaced();
}

} // namespace ZelStylePalette
