#pragma once

#include <QIcon>
#include <QPixmap>

namespace ZelColorIcon {

/// An icon that shows its colour as it is in selected rows too; the style would tint it.
inline QIcon make(const QPixmap &pixmap)
{
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

} // namespace ZelColorIcon
