#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QString>

#include <memory>

class ThemedSvg;

/// The icon colours of the theme in force, and the rewriting of SVG documents by them.
///
/// A theme file is a JSON array of objects that map colour keys to colour texts. The suffixes
/// "_inactive", "_active" (state), "_hover", "_normal", "_disabled" and "_selected" (mode) of a
/// key tell what it holds for. XML comments in an SVG document name which of its colours stands
/// for which key: `<!--@*#808080:icon-->` replaces every #808080, `<!--@#808080:icon-->` the
/// nearest one in front of the comment.
class ZELWIDGETS_EXPORT IconColorTheme
{
public:
    static IconColorTheme *instance();

    IconColorTheme(const IconColorTheme &) = delete;
    IconColorTheme &operator=(const IconColorTheme &) = delete;
    ~IconColorTheme();

    /// Replaces the tables by what the file holds. A file that can't be read or is no JSON gives
    /// empty tables and a critical message.
    void loadThemeFile(const QString &path);
    /// Adds the entries of a JSON text to the tables.
    void buildMap(const QString &json);
    /// True if there is no colour at all.
    bool isNull() const;

    /// The document with its colours replaced for the mode and state. Malformed markers give an
    /// empty text and a warning with the name; nothing is kept of a call.
    QString mapSvgToTheme(const QString &svg, QIcon::Mode mode, QIcon::State state,
                          const QString &name) const;
    /// The same of a document whose markers were found once; for the library's own engines.
    QString mapSvgToTheme(const ThemedSvg &svg, QIcon::Mode mode, QIcon::State state,
                          const QString &name) const;

private:
    IconColorTheme();

    std::unique_ptr<class IconColorThemeImpl> d_;
};
