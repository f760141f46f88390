#include "workspace/WorkSpaceNameChooser.h"

#include "workspace/WorkSpaceNames.h"

#include <ZelCore/splitTrailingNumber>

namespace {

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

} // namespace

WorkSpaceNameChooser::WorkSpaceNameChooser(const QStringList &takenIds,
                                           const QStringList &takenNames)
    : ids_(takenIds.begin(), takenIds.end())
    , names_(takenNames.begin(), takenNames.end())
{}

QString WorkSpaceNameChooser::takeId()
{
    QString id;
    do
        id = QStringLiteral("wsid%1").arg(++lastId_);
    while (ids_.contains(id));
    ids_.insert(id);
    return id;
}

QString WorkSpaceNameChooser::takeName(const QString &wanted)
{
    const QString fitting = cut(wanted, WorkSpaceNames::maximumLength);
    const QString name = fitting.trimmed().isEmpty() ? QStringLiteral("Imported") : fitting;
    if (!names_.contains(name)) {
        names_.insert(name);
        return name;
    }
    const ZelTrailingNumber split = splitTrailingNumber(name);
    return takeNumbered(split.stem, qint64(split.number.value_or(0)) + 1);
}

QString WorkSpaceNameChooser::takeNumbered(const QString &stem, qint64 first)
{
    Jumps &jumps = jumpsByStem_[stem];
    QList<qint64> seen;
    qint64 number = first;
    for (;;) {
        seen.append(number);
        const auto jump = jumps.constFind(number);
        if (jump == jumps.constEnd() && !names_.contains(numbered(stem, number)))
            break;
        number = jump == jumps.constEnd() ? number + 1 : *jump;
    }
    for (const qint64 taken : std::as_const(seen))
        jumps.insert(taken, number + 1);
    names_.insert(numbered(stem, number));
    return numbered(stem, number);
}
