#include "ZelKeepAwake.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include "ZelDesktopInhibitor.h"

#include <QCoreApplication>
#include <QPointer>
#endif

namespace {

#ifdef Q_OS_WIN
class SystemKeepAwake : public ZelKeepAwake
{
public:
    // ES_SYSTEM_REQUIRED alone, not continuous: there is nothing to take back.
    void keepAwake() override { SetThreadExecutionState(ES_SYSTEM_REQUIRED); }
    void release() override {}
};
#else
class SystemKeepAwake : public ZelKeepAwake
{
public:
    ~SystemKeepAwake() override { delete inhibitor_; }

    void keepAwake() override
    {
        if (!inhibitor_ && ZelDesktopInhibitor::hasSessionBus()) {
            // It must not outlive the bus connection, which goes soon after the application.
            inhibitor_ = new ZelDesktopInhibitor(QDBusConnection::sessionBus(),
                                                 QCoreApplication::instance());
        }
        if (inhibitor_)
            inhibitor_->inhibit();
    }

    void release() override
    {
        if (inhibitor_)
            inhibitor_->uninhibit();
    }

private:
    QPointer<ZelDesktopInhibitor> inhibitor_;
};
#endif

std::unique_ptr<ZelKeepAwake> &current()
{
    static std::unique_ptr<ZelKeepAwake> keepAwake;
    return keepAwake;
}

} // namespace

ZelKeepAwake::~ZelKeepAwake() = default;

ZelKeepAwake &ZelKeepAwake::instance()
{
    if (!current())
        current() = std::make_unique<SystemKeepAwake>();
    return *current();
}

void ZelKeepAwake::setInstance(std::unique_ptr<ZelKeepAwake> keepAwake)
{
    current() = std::move(keepAwake);
}
