#include "PreventSleep.h"

#include <ZelCore/ZelKeepAwake>

#include <QDebug>
#include <QTimer>

namespace {

constexpr int repeatInterval = 25000;

// The request is the process's: it is given back when nobody wants it any more.
int activeCount = 0;

} // namespace

PreventSleep::PreventSleep(QObject *parent)
    : QObject(parent)
    , timer_(new QTimer(this))
{
    timer_->setInterval(repeatInterval);
    connect(timer_, &QTimer::timeout, this, [] { ZelKeepAwake::instance().keepAwake(); });
}

PreventSleep::~PreventSleep()
{
    end();
}

bool PreventSleep::isActive() const
{
    return timer_->isActive();
}

void PreventSleep::start()
{
    qDebug() << "Preventing OS sleep";
    ZelKeepAwake::instance().keepAwake();
    if (!isActive())
        ++activeCount;
    timer_->start();
}

void PreventSleep::stop()
{
    qDebug() << "Enabling OS sleep";
    end();
}

void PreventSleep::end()
{
    if (!isActive())
        return;
    timer_->stop();
    if (--activeCount == 0)
        ZelKeepAwake::instance().release();
}
