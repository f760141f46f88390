#include "ZelCombinedIcon.h"

#include "IconRedirect.h"
#include "StyleSvgIconEngine.h"
#include "ZelCombinedIconEngine.h"

#include <QDebug>
#include <QFile>
#include <QStringList>

#include <algorithm>
#include <memory>

namespace {

struct FamilyRow
{
    QStringList files;
    QIcon::Mode mode;
    QIcon::State state;
};

QList<FamilyRow> familyOf(const QString &base)
{
    const auto file = [&](const char *suffix) {
        return QString(base + QLatin1String(suffix) + QLatin1String(".zelsvg"));
    };
    return {
        {{file("_inactive"), file(""), base}, QIcon::Normal, QIcon::Off},
        {{file("_active")}, QIcon::Normal, QIcon::On},
        {{file("_hover")}, QIcon::Active, QIcon::Off},
        {{file("_active_hover")}, QIcon::Active, QIcon::On},
        {{file("_disabled")}, QIcon::Disabled, QIcon::On},
        {{file("_disabled")}, QIcon::Disabled, QIcon::Off},
    };
}

void warnIfMissing(const QString &path)
{
    if (!QFile::exists(path))
        qWarning() << "Icon file" << path << "was not found.";
}

QIcon::Mode modeOfName(const QString &name)
{
    if (name.contains(QLatin1String("_selected")))
        return QIcon::Selected;
    if (name.contains(QLatin1String("_disabled")))
        return QIcon::Disabled;
    return name.contains(QLatin1String("_hover")) ? QIcon::Active : QIcon::Normal;
}

} // namespace

ZelCombinedIcon::ZelCombinedIcon()
    : ZelCombinedIcon(new ZelCombinedIconEngine)
{}

ZelCombinedIcon::ZelCombinedIcon(ZelCombinedIconEngine *engine)
    : QIcon(engine)
    , engine_(engine)
{}

void ZelCombinedIcon::addIconForMode(const ZelStyleIcon &icon, QIcon::Mode mode, QIcon::State state)
{
    engine_->addIcon(icon, mode, state);
}

ZelStyleIcon ZelCombinedIcon::findBestMatch(QIcon::Mode mode, QIcon::State state) const
{
    const ZelStyleIcon *icon = engine_->findBestMatch(mode, state);
    return icon ? *icon : ZelStyleIcon();
}

ZelCombinedIcon ZelCombinedIcon::createFromBaseIconsAndNames(const QList<ZelStyleIcon> &icons)
{
    ZelCombinedIcon combined;
    for (const ZelStyleIcon &icon : icons) {
        const QString name = icon.iconName();
        const bool on = name.contains(QLatin1String("_active"));
        combined.addIconForMode(icon, modeOfName(name), on ? QIcon::On : QIcon::Off);
    }
    return combined;
}

ZelCombinedIcon ZelCombinedIcon::iconForZELSVG(const QString &path)
{
    warnIfMissing(path);
    QString base = path;
    base.remove(QLatin1String(".zelsvg"));
    ZelCombinedIcon icon;
    for (const FamilyRow &row : familyOf(base)) {
        const auto file = std::find_if(row.files.cbegin(), row.files.cend(),
                                       [](const QString &name) { return QFile::exists(name); });
        if (file != row.files.cend())
            icon.addIconForMode(ZelStyleIcon(*file), row.mode, row.state);
    }
    return icon;
}

QIconEngine *ZelCombinedIcon::createEngineForZELSVG(const QString &path)
{
    const ZelCombinedIcon icon = iconForZELSVG(path);
    if (icon.engine_->count() == 0)
        return nullptr;
    if (icon.engine_->count() > 1)
        return icon.engine_->clone();
    if (!QFile::exists(path)) {
        qWarning() << "Only one icon mode found for " << path << "(basename was not found)";
    }
    return icon.engine_->iconAt(0).engine_->clone();
}

QIconEngine *ZelCombinedIcon::createEngineForZELSVGR(const QString &path)
{
    warnIfMissing(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const auto redirect = IconRedirect::parse(QString::fromUtf8(file.readAll()));
    if (!redirect) {
        qCritical() << "Icon" << path << "was invalid.";
        return nullptr;
    }
    if (!QFile::exists(redirect->target)) {
        qCritical() << "Icon file" << path << " refers to " << redirect->target
                    << "which doesn't exists";
        return nullptr;
    }
    const ZelStyleIcon icon =
        iconForZELSVG(redirect->target).findBestMatch(redirect->mode, redirect->state);
    icon.engine_->pin(redirect->mode, redirect->state);
    return icon.engine_->clone();
}
