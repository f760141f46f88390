#include "PreventSleep.h"

#include <ZelCore/ZelKeepAwake>

#include <QDebug>
#include <QTimer>

namespace {
constexpr int repeatInterval = 25000;
}

PreventSleep::PreventSleep(QObject *parent)
    : QObject(parent)
    , timer_(new QTimer(this))
{
    timer_->setInterval(repeatInterval);
    connect(timer_, &QTimer::timeout, this, [] { ZelKeepAwake::instance().keepAwake(); });
}

PreventSleep::~PreventSleep()
{
    if (isActive())
        ZelKeepAwake::instance().release();
}

bool PreventSleep::isActive() const
{
    return timer_->isActive();
}

void PreventSleep::start()
{
    qDebug() << "Preventing OS sleep";
    ZelKeepAwake::instance().keepAwake();
    timer_->start();
}

void PreventSleep::stop()
{
    qDebug() << "Enabling OS sleep";
    timer_->stop();
    ZelKeepAwake::instance().release();
}
