#pragma once

#include "TestCase.h"

#include <QAccessible>

inline QPixmap filled(QSize size, Qt::GlobalColor color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

/// Where a colour is painted in a widget.
inline QRect boundsOf(QWidget *widget, Qt::GlobalColor color)
{
    const QImage image = widget->grab().toImage();
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(color))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

inline QAccessibleInterface *accessible(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}
