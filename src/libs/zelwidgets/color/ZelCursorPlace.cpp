#include "color/ZelCursorPlace.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>
#include <cmath>

QPoint ZelCursorPlace::floored(const QPointF &place)
{
    return {int(std::floor(place.x())), int(std::floor(place.y()))};
}

QPointF ZelCursorPlace::of(const QMouseEvent *event)
{
    const auto exact = [](double global, double local) {
        const double part = local - std::floor(local);
        const double nearest = std::round(global);
        if (global != nearest || part == 0)
            return global;
        const bool isRoundedUp = part > 0.5 || (part == 0.5 && nearest > 0);
        return isRoundedUp ? nearest + part - 1 : nearest + part;
    };
    const QPointF global = event->globalPosition();
    const QPointF local = event->scenePosition();
    return {exact(global.x(), local.x()), exact(global.y(), local.y())};
}

QScreen *ZelCursorPlace::screenAt(QPointF &place)
{
    if (QScreen *screen = QGuiApplication::screenAt(floored(place)))
        return screen;
    for (QScreen *screen : QGuiApplication::screens()) {
        const QRectF area = screen->geometry();
        const double pixel = 1 / screen->devicePixelRatio();
        const QPointF inside(std::clamp(place.x(), area.left(), area.right() - pixel),
                             std::clamp(place.y(), area.top(), area.bottom() - pixel));
        const QPointF way = place - inside;
        if (std::abs(way.x()) <= 1 && std::abs(way.y()) <= 1) {
            place = inside;
            return screen;
        }
    }
    return nullptr;
}
