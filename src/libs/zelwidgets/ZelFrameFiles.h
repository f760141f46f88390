#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

/// The numbered image files of one video in one folder: base name, number, dot, extension. Numbers
/// begin at 1 and are not padded with zeros.
class ZelFrameFiles
{
public:
    ZelFrameFiles(const QString &folder, const QString &baseName, const QString &extension);

    /// What the user typed as a path that ends with a separator: backslashes are separators.
    static QString folderFromText(const QString &text);
    /// The base name of the video's frames; "frame" for a video that hasn't got one.
    static QString baseNameFor(const QString &videoPath);

    /// What the video program takes for the names: percent signs of the path stand for themselves.
    QString pattern() const;
    QString path(int number) const;
    /// Names of the files in the folder that have any number, in the order of the numbers.
    QStringList existing() const;

    struct Written
    {
        int expected = 0; ///< those with a number that was expected
        int all = 0;
        QString first; ///< absolute path
    };
    /// Counts the files that were written since then. The expected ones have the numbers from 1 to
    /// the count; those behind them count up to the first one that is missing.
    Written writtenSince(const QDateTime &start, int count) const;

private:
    QString digits(const QString &name) const;

    QString folder_;
    QString baseName_;
    QString suffix_;
};
