#pragma once

#include "IconColorKey.h"
#include "SvgMarkers.h"

#include <QList>
#include <QString>

#include <span>

/// An SVG document whose theme markers were found once.
///
/// It holds where the markers and the colour texts that they name lie, never a colour of a theme:
/// each rewriting looks the colours up anew. A document that the shortcut could treat differently
/// from the plain rewriting is not regular and is always rewritten from its text.
class ThemedSvg
{
public:
    /// With more, the tag of one global marker would be the beginning of another's.
    static constexpr int mostGlobals = 10;

    /// A marker and its key; the position is that of its comment in text().
    struct Marker
    {
        QString from;
        ColorKey key;
        qsizetype position;
        /// How often a global marker's colour text occurs.
        qsizetype count = 0;
    };

    ThemedSvg() = default;
    explicit ThemedSvg(const QString &svg);

    const QString &source() const { return source_; }
    bool isRegular() const { return regular_; }
    /// The source without line ends.
    const QString &text() const { return text_; }
    /// In document order.
    const QList<Marker> &globals() const { return globals_; }
    const QList<Marker> &locals() const { return locals_; }

    /// Whether a global marker's colour can be put in without making or breaking a comment.
    static bool isRegularColor(QStringView color);

    /// text() with a colour for each global marker, and where the comments of the local markers
    /// begin in it.
    QString withGlobalColors(std::span<const QStringView> colors,
                             std::span<qsizetype> localPositions) const;

private:
    /// An occurrence of a global marker's colour text.
    struct Occurrence
    {
        qsizetype begin;
        qsizetype end;
        int marker;
    };

    bool findMarkers(const QList<SvgMarkers::Comment> &comments);
    void findOccurrences();
    bool occurrencesLieWell(const QList<SvgMarkers::Comment> &comments) const;

    QString source_;
    QString text_;
    QList<Marker> globals_;
    QList<Marker> locals_;
    QList<Occurrence> occurrences_;
    bool regular_ = false;
};
