#include "ZelPersistentSplitter.h"

#include <ZelCore/ZelSettings>

#include <algorithm>

namespace {

QString group()
{
    return QStringLiteral("ui");
}

} // namespace

ZelPersistentSplitter::ZelPersistentSplitter(QString const &settingsKey,
                                             Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
    , settingsKey_(settingsKey)
{}

ZelPersistentSplitter::~ZelPersistentSplitter()
{
    // One that was never shown has nothing that would be worth more than what is stored.
    if (hasBeenShown_ || !ZelSettings(group()).hasKey(settingsKey_))
        storeSizes();
}

QList<int> ZelPersistentSplitter::sizesFrom(const QVariant &stored)
{
    if (stored.metaType() != QMetaType::fromType<QVariantList>() &&
        stored.metaType() != QMetaType::fromType<QStringList>())
        return {};
    QList<int> sizes;
    for (const QVariant &entry : stored.toList()) {
        bool isNumber = false;
        const int size = entry.toInt(&isNumber);
        if (isNumber)
            sizes.append(std::clamp(size, 0, QWIDGETSIZE_MAX));
    }
    const bool isAnyShown =
        std::any_of(sizes.cbegin(), sizes.cend(), [](int size) { return size > 0; });
    return isAnyShown ? sizes : QList<int>();
}

void ZelPersistentSplitter::showEvent(QShowEvent *event)
{
    QList<int> sizes = sizesFrom(ZelSettings(group()).value(settingsKey_));
    if (!sizes.isEmpty()) {
        // Parts that have come since keep what they have.
        for (qsizetype i = sizes.size(); i < count(); ++i) {
            const QSize hint = widget(int(i))->sizeHint();
            sizes.append(
                std::max(1, orientation() == Qt::Horizontal ? hint.width() : hint.height()));
        }
        setSizes(sizes);
    }
    hasBeenShown_ = true;
    QSplitter::showEvent(event);
}

/// The next showing takes up what is stored.
void ZelPersistentSplitter::hideEvent(QHideEvent *event)
{
    storeSizes();
    QSplitter::hideEvent(event);
}

void ZelPersistentSplitter::storeSizes() const
{
    if (settingsKey_.isEmpty() || count() == 0)
        return;
    QVariantList list;
    for (const int size : sizes())
        list.append(size);
    ZelSettings(group()).setValue(settingsKey_, list);
}
