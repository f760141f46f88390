#pragma once

#include <QFont>
#include <QObject>
#include <QString>

/// What the gallery does as the application around the library: the order of the start, and the
/// switch of theme and font size at run time.
class GalleryApplication : public QObject
{
    Q_OBJECT

public:
    /// Makes the registry of shortcuts, registers resources and style, and applies the first sheet.
    /// Needs the application object and the settings store. An empty theme takes the stored one.
    explicit GalleryApplication(const QString &theme, QObject *parent = nullptr);

    QString theme() const { return theme_; }
    /// Stores and applies a theme; does nothing if it is in force.
    void setTheme(const QString &key);
    /// Follows a theme that somebody else has stored and applied.
    void followTheme(const QString &key);
    /// Stores and applies a font size in points; -1 takes the system's.
    void setFontSize(int points);
    int fontSize() const;

Q_SIGNALS:
    void themeChanged(const QString &key);
    void fontSizeChanged(int points);

private:
    void updateApplicationFont();
    static void updateToolTipFont();

    QString theme_;
    const QFont systemFont_;
};
