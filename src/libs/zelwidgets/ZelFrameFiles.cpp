#include "ZelFrameFiles.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <set>

namespace {

QString escaped(QString text)
{
    return text.replace(u'%', QLatin1String("%%"));
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// Without its zeros in front, for numbers of any length.
QStringView significant(QStringView digits)
{
    while (digits.size() > 1 && digits.front() == u'0')
        digits = digits.mid(1);
    return digits;
}

bool isLess(QStringView left, QStringView right)
{
    left = significant(left);
    right = significant(right);
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

bool isSince(const QDateTime &stamp, const QDateTime &start)
{
    // File systems that keep whole seconds, even ones only, round down.
    const bool isCoarse = stamp.time().msec() == 0;
    return isCoarse ? stamp > start.addSecs(-2) : stamp >= start;
}

} // namespace

ZelFrameFiles::ZelFrameFiles(const QString &folder, const QString &baseName,
                             const QString &extension)
    : folder_(folderFromText(folder))
    , baseName_(baseName)
    , suffix_(u'.' + extension)
{}

QString ZelFrameFiles::folderFromText(const QString &text)
{
    QString folder = text;
    folder.replace(u'\\', u'/');
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

QString ZelFrameFiles::baseNameFor(const QString &videoPath)
{
    const QString name = QFileInfo(videoPath).baseName();
    return name.isEmpty() ? QStringLiteral("frame") : name;
}

QString ZelFrameFiles::pattern() const
{
    return escaped(folder_ + baseName_) + QLatin1String("%01d") + suffix_;
}

QString ZelFrameFiles::path(int number) const
{
    return folder_ + baseName_ + QString::number(number) + suffix_;
}

QString ZelFrameFiles::digits(const QString &name) const
{
    const qsizetype length = name.size() - baseName_.size() - suffix_.size();
    if (length <= 0 || !name.startsWith(baseName_) || !name.endsWith(suffix_))
        return {};
    const QString number = name.mid(baseName_.size(), length);
    return std::all_of(number.begin(), number.end(), isDigit) ? number : QString();
}

QStringList ZelFrameFiles::existing() const
{
    QStringList names = QDir(folder_).entryList(QDir::Files | QDir::System | QDir::Hidden);
    names.removeIf([this](const QString &name) { return digits(name).isEmpty(); });
    std::stable_sort(names.begin(), names.end(), [this](const QString &left, const QString &right) {
        return isLess(digits(left), digits(right));
    });
    return names;
}

ZelFrameFiles::Written ZelFrameFiles::writtenSince(const QDateTime &start, int count) const
{
    // The folder is listed once: a report may promise any number of frames.
    std::set<int> numbers;
    const QStringList names = existing();
    for (const QString &name : names) {
        bool isNumber = false;
        const int number = digits(name).toInt(&isNumber);
        const QFileInfo file(path(number));
        if (isNumber && number > 0 && file.fileName() == name &&
            isSince(file.lastModified(), start))
            numbers.insert(number);
    }
    const auto behind = numbers.upper_bound(count);
    Written written;
    written.expected = int(std::distance(numbers.begin(), behind));
    written.all = written.expected;
    int next = count;
    for (auto number = behind; number != numbers.end() && *number - 1 == next; ++number) {
        ++written.all;
        next = *number;
    }
    if (written.all > 0)
        written.first = QFileInfo(path(*numbers.begin())).absoluteFilePath();
    return written;
}
