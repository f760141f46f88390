#pragma once

#include <QCache>
#include <QColor>
#include <QIcon>
#include <QPixmap>

/// The icons of colours that a list shows: views ask several times for each paint.
class ZelColorIcons
{
public:
    /// The icon of the colour, by the picture that paint(colour) gives. It shows its colour as it
    /// is in selected rows too; the style would tint it.
    template <typename Paint>
    QIcon icon(const QColor &color, Paint paint)
    {
        if (const QIcon *known = icons_.object(color.rgb()))
            return *known;
        const QPixmap pixmap = paint(color);
        auto *icon = new QIcon(pixmap);
        icon->addPixmap(pixmap, QIcon::Selected);
        const QIcon made = *icon;
        icons_.insert(color.rgb(), icon);
        return made;
    }
    void clear() { icons_.clear(); }

private:
    static constexpr int enough = 100;

    QCache<QRgb, QIcon> icons_{enough};
};
