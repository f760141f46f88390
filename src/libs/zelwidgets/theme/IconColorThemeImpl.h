#pragma once

#include "IconColorKey.h"

#include <QList>
#include <QMap>
#include <QString>

class ThemedSvg;

/// The tables of the theme in force, and the rewriting of documents by them.
class IconColorThemeImpl
{
public:
    void clear();
    bool isNull() const;
    void parseAndBuildMap(const QString &json);

    /// The colour of a key for a mode and state; a key with a suffix has one colour for all. An
    /// unknown key gives an empty text and a warning.
    QString colorFor(const ColorKey &key, int mode, int state) const;

    /// The rewriting from the plain text, step by step.
    QString mapSvgToTheme(const QString &svg, int mode, int state, const QString &name) const;
    /// The same of a prepared document: equal results, equal messages.
    QString mapSvgToTheme(const ThemedSvg &svg, int mode, int state, const QString &name) const;

private:
    enum class Outcome { Found, UnknownKey, UnexpectedFallback };
    struct Lookup
    {
        QString color;
        Outcome outcome = Outcome::Found;
    };

    Lookup lookUp(const ColorKey &key, int mode, int state) const;
    static void report(const ColorKey &key, Outcome outcome);
    bool applyGlobals(QString &text, int mode, int state, const QString &name) const;
    bool applyLocals(QString &text, int mode, int state, const QString &name) const;

    QMap<QString, QList<ColorEntry>> modeColors_;
    QMap<QString, QString> exactColors_;
};
