#include "ZelCombinedIconEngine.h"

#include "IconModeOrder.h"
#include "StyleSvgIconEngine.h"

#include <QDebug>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

void ZelCombinedIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                                  QIcon::State state)
{
    if (const ZelStyleIcon *icon = findBestMatch(mode, state))
        icon->engine_->paint(painter, rect, mode, state);
    else
        painter->fillRect(rect, Qt::gray);
}

QSize ZelCombinedIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const ZelStyleIcon *icon = findBestMatch(mode, state);
    return icon ? icon->engine_->actualSize(size, mode, state) : size;
}

QPixmap ZelCombinedIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const ZelStyleIcon *icon = findBestMatch(mode, state);
    return icon ? icon->engine_->pixmap(size, mode, state) : QPixmap();
}

QIconEngine *ZelCombinedIconEngine::clone() const
{
    return new ZelCombinedIconEngine(*this);
}

void ZelCombinedIconEngine::virtual_hook(int id, void *data)
{
    if (id == QIconEngine::IsNullHook) {
        *static_cast<bool *>(data) =
            std::all_of(entries_.cbegin(), entries_.cend(),
                        [](const Entry &entry) { return entry.icon.isNull(); });
    } else {
        QIconEngine::virtual_hook(id, data);
    }
}

void ZelCombinedIconEngine::addIcon(const ZelStyleIcon &icon, QIcon::Mode mode, QIcon::State state)
{
    const auto present = std::find_if(entries_.begin(), entries_.end(), [&](const Entry &entry) {
        return entry.mode == mode && entry.state == state;
    });
    if (present != entries_.end()) {
        qDebug() << "ZelCombinedIcon - Unexpected icon override";
        present->icon = icon;
    }
    entries_.append({icon, mode, state});
}

const ZelStyleIcon *ZelCombinedIconEngine::findBestMatch(QIcon::Mode mode, QIcon::State state) const
{
    for (const auto &[wantedMode, wantedState] : iconModeOrder(mode, state)) {
        for (const Entry &entry : entries_) {
            if (entry.mode == wantedMode && entry.state == wantedState)
                return &entry.icon;
        }
    }
    qWarning() << "ZelCombinedIconEngine::findBestMatch didn't find a match (mode:" << int(mode)
               << " ,state: " << int(state) << ")";
    return nullptr;
}
