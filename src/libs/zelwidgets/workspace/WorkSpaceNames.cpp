#include "workspace/WorkSpaceNames.h"

#include <ZelCore/splitTrailingNumber>

#include <QSet>

#include <algorithm>

namespace {

const QLatin1String exportPrefix("Exp");

/// The first text of the form that isn't taken, counting from 1.
QString firstFree(const QString &form, const QStringList &taken)
{
    const QSet<QString> all(taken.begin(), taken.end());
    int number = 1;
    while (all.contains(form.arg(number)))
        ++number;
    return form.arg(number);
}

/// The first characters of a text, without half a surrogate pair at the end.
QString cut(const QString &text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    const bool isInPair = length > 0 && text[length - 1].isHighSurrogate();
    return text.left(isInPair ? length - 1 : length);
}

QString numbered(const QString &stem, qint64 number)
{
    const QString digits = QString::number(number);
    return cut(stem, WorkSpaceNames::maximumLength - digits.size()) + digits;
}

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'-';
}

} // namespace

QString WorkSpaceNames::freeId(const QStringList &takenIds)
{
    return firstFree(QStringLiteral("wsid%1"), takenIds);
}

QString WorkSpaceNames::proposedName(const QStringList &takenNames)
{
    const QString plain = QStringLiteral("Workspace");
    return takenNames.contains(plain) ? firstFree(QStringLiteral("Workspace %1"), takenNames)
                                      : plain;
}

QString WorkSpaceNames::importedName(const QString &name, const QStringList &takenNames)
{
    const QString fitting = cut(name, maximumLength);
    const QString wanted = fitting.trimmed().isEmpty() ? QStringLiteral("Imported") : fitting;
    if (!takenNames.contains(wanted))
        return wanted;
    const QSet<QString> all(takenNames.begin(), takenNames.end());
    const ZelTrailingNumber split = splitTrailingNumber(wanted);
    qint64 number = split.number.value_or(0) + 1;
    while (all.contains(numbered(split.stem, number)))
        ++number;
    return numbered(split.stem, number);
}

QString WorkSpaceNames::exportedId(const QString &id)
{
    return id.contains(exportPrefix) ? id : exportPrefix + id;
}

bool WorkSpaceNames::isIdLess(const QString &first, const QString &second)
{
    const ZelTrailingNumber a = splitTrailingNumber(first);
    const ZelTrailingNumber b = splitTrailingNumber(second);
    if (a.stem != b.stem)
        return a.stem < b.stem;
    return a.number < b.number;
}

QString WorkSpaceNames::filtered(const QString &objectName)
{
    QString name = objectName;
    std::replace_if(
        name.begin(), name.end(), [](QChar character) { return !isNameCharacter(character); },
        QChar(u'_'));
    return name;
}
