#include "ZelStyleIcon.h"

#include "StyleSvgIconEngine.h"

ZelStyleIcon::ZelStyleIcon()
    : ZelStyleIcon(new StyleSvgIconEngine)
{}

ZelStyleIcon::ZelStyleIcon(const QString &file)
    : ZelStyleIcon(new StyleSvgIconEngine(file))
{}

ZelStyleIcon::ZelStyleIcon(StyleSvgIconEngine *engine)
    : QIcon(engine)
    , engine_(engine)
{}

ZelStyleIcon ZelStyleIcon::active() const
{
    return modeIcon(QIcon::Normal, QIcon::On);
}

ZelStyleIcon ZelStyleIcon::inactive() const
{
    return modeIcon(QIcon::Normal, QIcon::Off);
}

ZelStyleIcon ZelStyleIcon::hover() const
{
    return modeIcon(QIcon::Active, QIcon::Off);
}

ZelStyleIcon ZelStyleIcon::disabled() const
{
    return modeIcon(QIcon::Disabled, QIcon::Off);
}

ZelStyleIcon ZelStyleIcon::modeIcon(QIcon::Mode mode, QIcon::State state) const
{
    auto *engine = static_cast<StyleSvgIconEngine *>(engine_->clone());
    engine->pin(mode, state);
    return ZelStyleIcon(engine);
}

QString ZelStyleIcon::iconName() const
{
    return engine_->fileName();
}
