#include "ZelSvgIconEnginePlugin.h"

#include <ZelWidgets/HandleSvgInStyle>

#include <QCoreApplication>
#include <QIconEngine>
#include <QPixmap>
#include <QVariant>

namespace {

using Factory = QIconEngine *(*)(const QString &);

Factory factory()
{
    const QCoreApplication *application = QCoreApplication::instance();
    const QVariant published =
        application ? application->property("CreateIconEngineFunc") : QVariant();
    if (published.metaType() == QMetaType::fromType<void *>() && published.value<void *>())
        return reinterpret_cast<Factory>(published.value<void *>());
    return &HandleSvgInStyle::iconEngineForFile;
}

// Without an engine of ours QIcon would take the file for a picture of its own, and for no null
// icon.
class NoPicture : public QIconEngine
{
public:
    void paint(QPainter *, const QRect &, QIcon::Mode, QIcon::State) override {}
    QPixmap pixmap(const QSize &, QIcon::Mode, QIcon::State) override { return {}; }
    QIconEngine *clone() const override { return new NoPicture; }
    void virtual_hook(int id, void *data) override
    {
        if (id == QIconEngine::IsNullHook)
            *static_cast<bool *>(data) = true;
        else
            QIconEngine::virtual_hook(id, data);
    }
};

} // namespace

QIconEngine *ZelSvgIconEnginePlugin::create(const QString &fileName)
{
    QIconEngine *engine = factory()(fileName);
    return engine ? engine : new NoPicture;
}
