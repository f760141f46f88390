#include "GalleryApplication.h"

#include "GalleryShortcuts.h"
#include "IconSizeStyle.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelResources>
#include <ZelWidgets/ZelShortcutHandler>
#include <ZelWidgets/ZelStyleSheets>
#include <ZelWidgets/ZelmoraStyle>

#include <QApplication>
#include <QDebug>
#include <QToolTip>

#include <algorithm>

namespace {

/// The stored theme, or the first of the list if what is stored is none.
QString storedTheme()
{
    const QString stored = ZelStyleSheets::colorThemeFromSettings();
    const auto themes = ZelStyleSheets::colorThemeList();
    const bool known = std::any_of(themes.begin(), themes.end(),
                                   [&](const auto &theme) { return theme.second == stored; });
    return known ? stored : themes.first().second;
}

} // namespace

GalleryApplication::GalleryApplication(const QString &theme, QObject *parent)
    : QObject(parent)
    , theme_(theme.isEmpty() ? storedTheme() : theme)
    , systemFont_(QApplication::font())
{
    ZelShortcutHandler::prepareInstance();
    GalleryShortcuts::registerIds();
    zelmorawidgets_init_resources();
    HandleSvgInStyle::prepareHandleSvgIcons();
    QApplication::setStyle(new ZelmoraStyle(new IconSizeStyle(QStringLiteral("Fusion"))));
    updateApplicationFont();
    if (!ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(theme_, QString(), false))
        qCritical() << "The gallery has no style file";
    updateToolTipFont();
}

void GalleryApplication::updateApplicationFont()
{
    // The sheet's rule reaches the widgets. The units of its sub-controls and the sizes of the
    // icons go by this font.
    QFont font = systemFont_;
    if (fontSize() > 0)
        font.setPointSize(ZelFontMetrics::adjustFontSize(fontSize()));
    QApplication::setFont(font);
}

void GalleryApplication::updateToolTipFont()
{
    // Tool tips take their font from here, whatever the sheet's rule for all widgets.
    QFont font = QToolTip::font();
    font.setPointSize(ZelFontMetrics::actualZelmoraFontSize());
    QToolTip::setFont(font);
}

void GalleryApplication::setTheme(const QString &key)
{
    if (key == theme_)
        return;
    theme_ = key;
    ZelStyleSheets::updateColorThemeSettings(key);
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(key, QString(), false);
    Q_EMIT themeChanged(key);
}

void GalleryApplication::followTheme(const QString &key)
{
    if (key == theme_)
        return;
    theme_ = key;
    Q_EMIT themeChanged(key);
}

void GalleryApplication::setFontSize(int points)
{
    if (points == fontSize())
        return;
    ZelFontMetrics::setZelmoraFontSizeSetting(points);
    updateApplicationFont();
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(theme_, QString(), true);
    updateToolTipFont();
    Q_EMIT fontSizeChanged(points);
}

int GalleryApplication::fontSize() const
{
    return ZelFontMetrics::getZelmoraFontSizeSetting();
}
