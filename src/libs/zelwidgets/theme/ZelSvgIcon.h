#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QString>

/// A plain icon of an SVG text, without theme, modes and states.
class ZELWIDGETS_EXPORT ZelSvgIcon : public QIcon
{
public:
    explicit ZelSvgIcon(const QString &svg);

    /// A file that can't be opened gives a warning and an icon that paints nothing.
    static ZelSvgIcon fromFile(const QString &path);

    void setNewText(const QString &svg);
    /// Replaces every colour of the text that is written as "#" and six lower-case hexadecimal
    /// digits by the given one, which is written as "#" and six digits too.
    void overrideColor(const QString &color);

private:
    QString text_;
};
