#include "workspace/WorkSpaceNames.h"

#include "workspace/WorkSpaceNameChooser.h"

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

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'-';
}

} // namespace

QString WorkSpaceNames::freeId(const QStringList &takenIds)
{
    return WorkSpaceNameChooser(takenIds, {}).takeId();
}

QString WorkSpaceNames::proposedName(const QStringList &takenNames)
{
    const QString plain = QStringLiteral("Workspace");
    return takenNames.contains(plain) ? firstFree(QStringLiteral("Workspace %1"), takenNames)
                                      : plain;
}

QString WorkSpaceNames::importedName(const QString &name, const QStringList &takenNames)
{
    return WorkSpaceNameChooser({}, takenNames).takeName(name);
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
