#include "workspace/WorkSpaceTabOrder.h"

#include <QHash>

#include <algorithm>
#include <numeric>

QList<int> WorkSpaceTabOrder::ranks(const QStringList &pages, const QStringList &wanted)
{
    QHash<QString, int> rankByName;
    const QStringList &order = wanted.isEmpty() ? pages : wanted;
    for (int i = 0; i < int(order.size()); ++i) {
        if (!rankByName.contains(order[i]))
            rankByName.insert(order[i], i);
    }
    int next = int(order.size());
    QList<int> ranks;
    for (const QString &page : pages) {
        const auto known = rankByName.constFind(page);
        ranks.append(known != rankByName.constEnd() ? *known : next++);
    }
    return ranks;
}

QList<int> WorkSpaceTabOrder::sorted(const QList<int> &ranks)
{
    QList<int> indices(ranks.size());
    std::iota(indices.begin(), indices.end(), 0);
    std::stable_sort(indices.begin(), indices.end(),
                     [&ranks](int a, int b) { return ranks[a] < ranks[b]; });
    return indices;
}
