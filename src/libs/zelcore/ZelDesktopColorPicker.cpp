#include "ZelDesktopColorPicker.h"

#include <QColor>
#include <QObject>

#ifndef Q_OS_WIN
#include "ZelDesktopInhibitor.h"
#include "ZelPortalColorPicker.h"
#endif

namespace {

class SystemColorPicker : public ZelDesktopColorPicker
{
public:
#ifndef Q_OS_WIN
    bool isAvailable() override
    {
        return portal() && portal()->isAvailable();
    }

    void pick(const QString &window, QObject *context, const Answer &answer) override
    {
        if (portal())
            portal()->pick(window, context, answer);
        else
            refuse(context, answer);
    }

private:
    ZelPortalColorPicker *portal()
    {
        if (!portal_ && ZelDesktopInhibitor::hasSessionBus())
            portal_ = std::make_unique<ZelPortalColorPicker>(QDBusConnection::sessionBus());
        return portal_.get();
    }

    std::unique_ptr<ZelPortalColorPicker> portal_;
#else
    bool isAvailable() override
    {
        return false;
    }
    void pick(const QString &, QObject *context, const Answer &answer) override
    {
        refuse(context, answer);
    }

private:
#endif
    static void refuse(QObject *context, const Answer &answer)
    {
        QMetaObject::invokeMethod(
            context, [answer] { answer(QColor()); }, Qt::QueuedConnection);
    }
};

std::unique_ptr<ZelDesktopColorPicker> &current()
{
    static std::unique_ptr<ZelDesktopColorPicker> picker;
    return picker;
}

} // namespace

ZelDesktopColorPicker::~ZelDesktopColorPicker() = default;

ZelDesktopColorPicker &ZelDesktopColorPicker::instance()
{
    if (!current())
        current() = std::make_unique<SystemColorPicker>();
    return *current();
}

void ZelDesktopColorPicker::setInstance(std::unique_ptr<ZelDesktopColorPicker> picker)
{
    current() = std::move(picker);
}
