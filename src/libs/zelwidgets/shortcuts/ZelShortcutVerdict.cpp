#include "ZelShortcutVerdict.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr qsizetype mostNames = 3;

QString text(const char *source)
{
    return QCoreApplication::translate("ZelShortcutVerdict", source);
}

QString names(const QList<ZelShortcutVerdict::Use> &uses)
{
    QStringList names;
    for (const auto &use : uses.first(std::min(uses.size(), mostNames)))
        names += use.name;
    const QString joined = names.join(QStringLiteral(", "));
    const qsizetype rest = uses.size() - mostNames;
    return rest > 0 ? text("%1 and %2 more").arg(joined).arg(rest) : joined;
}

bool beginsWith(const QKeySequence &whole, const QKeySequence &beginning)
{
    for (int i = 0; i < beginning.count(); ++i) {
        if (i >= whole.count() || whole[static_cast<uint>(i)] != beginning[static_cast<uint>(i)])
            return false;
    }
    return true;
}

} // namespace

ZelShortcutBinding ZelShortcutBinding::of(const QString &internalText)
{
    if (ZelMouseShortcut::isMouseShortcut(internalText))
        return {{}, ZelMouseShortcut::buildFromExportedString(internalText)};
    return {QKeySequence::fromString(internalText, QKeySequence::PortableText), {}};
}

bool ZelShortcutBinding::isEmpty() const
{
    return key.isEmpty() && gesture.getEvent() == ZelMouseShortcut::None;
}

bool ZelShortcutBinding::clashesWith(const ZelShortcutBinding &other) const
{
    if (isEmpty() || other.isEmpty() || key.isEmpty() != other.key.isEmpty())
        return false;
    if (key.isEmpty())
        return gesture == other.gesture;
    return beginsWith(key, other.key) || beginsWith(other.key, key);
}

quint64 ZelShortcutBinding::bucket() const
{
    if (!key.isEmpty())
        return static_cast<quint64>(static_cast<uint>(key[0].toCombined()));
    constexpr int gestureBit = 32;
    constexpr int eventShift = 36;
    return (quint64(1) << gestureBit) | (static_cast<quint64>(gesture.getEvent()) << eventShift) |
           static_cast<uint>(gesture.getKeyCombination().toCombined());
}

ZelShortcutVerdict::ZelShortcutVerdict(QList<Use> uses)
    : uses_(std::move(uses))
{}

ZelShortcutVerdict::Kind ZelShortcutVerdict::kind() const
{
    const bool shares =
        std::any_of(uses_.begin(), uses_.end(), [](const Use &use) { return use.sharesScope; });
    return uses_.isEmpty() ? Free : shares ? SameScope : Elsewhere;
}

QList<ZelShortcutVerdict::Use> ZelShortcutVerdict::usesOfKind() const
{
    const bool shares = kind() == SameScope;
    QList<Use> uses;
    std::copy_if(uses_.begin(), uses_.end(), std::back_inserter(uses),
                 [shares](const Use &use) { return use.sharesScope == shares; });
    return uses;
}

QString ZelShortcutVerdict::text() const
{
    switch (kind()) {
    case Free:
        break;
    case Elsewhere:
        return ::text("Used by %1 elsewhere, allowed").arg(names(usesOfKind()));
    case SameScope:
        return ::text("Used by %1 in the same scope").arg(names(usesOfKind()));
    }
    return ::text("Not used by others");
}

QStringList ZelShortcutVerdict::losers() const
{
    QStringList ids;
    for (const Use &use : usesOfKind())
        ids += use.id;
    return ids;
}
