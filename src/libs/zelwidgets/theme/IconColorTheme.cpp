#include "IconColorTheme.h"

#include "IconColorThemeImpl.h"

#include <QFile>

IconColorTheme::IconColorTheme()
    : d_(std::make_unique<IconColorThemeImpl>())
{}

IconColorTheme::~IconColorTheme() = default;

IconColorTheme *IconColorTheme::instance()
{
    static IconColorTheme theme;
    return &theme;
}

void IconColorTheme::loadThemeFile(const QString &path)
{
    d_->clear();
    QFile file(path);
    QString json;
    if (file.open(QIODevice::ReadOnly))
        json = QString::fromUtf8(file.readAll());
    d_->parseAndBuildMap(json);
}

void IconColorTheme::buildMap(const QString &json)
{
    d_->parseAndBuildMap(json);
}

bool IconColorTheme::isNull() const
{
    return d_->isNull();
}

QString IconColorTheme::mapSvgToTheme(const QString &svg, QIcon::Mode mode, QIcon::State state,
                                      const QString &name) const
{
    return d_->mapSvgToTheme(svg, mode, state, name);
}

QString IconColorTheme::mapSvgToTheme(const ThemedSvg &svg, QIcon::Mode mode, QIcon::State state,
                                      const QString &name) const
{
    return d_->mapSvgToTheme(svg, mode, state, name);
}
