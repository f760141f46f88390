#include "ZelPortalColorPicker.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <cmath>
#include <utility>

namespace {

QString portalService()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString requestInterface()
{
    return QStringLiteral("org.freedesktop.portal.Request");
}

/// The portal answers by an object whose path both sides know before, so that nothing is missed.
QString requestPath(const QDBusConnection &bus, const QString &token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/") + sender + u'/' + token;
}

bool isChannel(double value)
{
    return std::isfinite(value) && value >= 0 && value <= 1;
}

} // namespace

ZelPortalColorPicker::ZelPortalColorPicker(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , bus_(bus)
{
    if (!bus_.isConnected())
        return;
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    watcher_.addWatchedService(portalService());
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(QColor()); });
}

ZelPortalColorPicker::~ZelPortalColorPicker()
{
    close();
}

bool ZelPortalColorPicker::isAvailable() const
{
    if (isRefused_ || !bus_.isConnected() || !bus_.interface())
        return false;
    const QString portal = portalService();
    if (bus_.interface()->isServiceRegistered(portal))
        return true;
    const QDBusReply<QStringList> names = bus_.interface()->activatableServiceNames();
    return names.isValid() && names.value().contains(portal);
}

void ZelPortalColorPicker::pick(const QString &window, QObject *context, const Answer &answer)
{
    close();
    finish(QColor());
    context_ = context;
    answer_ = answer;
    if (!bus_.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { finish(QColor()); }, Qt::QueuedConnection);
        return;
    }
    const QString token =
        QStringLiteral("zel%1_%2").arg(QCoreApplication::applicationPid()).arg(++picks_);
    listenTo(requestPath(bus_, token));
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService(), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Screenshot"), QStringLiteral("PickColor"));
    call << window << QVariantMap{{QStringLiteral("handle_token"), token}};
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, request = request_] {
        watcher->deleteLater();
        called(watcher->reply(), request);
    });
}

void ZelPortalColorPicker::called(const QDBusMessage &reply, const QString &request)
{
    if (request != request_)
        return;
    const QDBusPendingReply<QDBusObjectPath> handle = reply;
    if (handle.isError()) {
        isRefused_ = true;
        finish(QColor());
    } else if (handle.value().path() != request_) {
        // Old portals choose the path themselves.
        listenTo(handle.value().path());
    }
}

void ZelPortalColorPicker::listenTo(const QString &request)
{
    const QString signal = QStringLiteral("Response");
    if (!request_.isEmpty())
        bus_.disconnect(portalService(), request_, requestInterface(), signal, this,
                        SLOT(response(uint, QVariantMap, QDBusMessage)));
    request_ = request;
    if (!request_.isEmpty())
        bus_.connect(portalService(), request_, requestInterface(), signal, this,
                     SLOT(response(uint, QVariantMap, QDBusMessage)));
}

/// An answer to an earlier request may be on its way here when the next one begins.
void ZelPortalColorPicker::response(uint code, const QVariantMap &results,
                                    const QDBusMessage &message)
{
    if (message.path() != request_)
        return;
    finish(code == 0 ? colorOf(results) : QColor());
}

QColor ZelPortalColorPicker::colorOf(const QVariantMap &results)
{
    const QVariant value = results.value(QStringLiteral("color"));
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return {};
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    if (!isChannel(red) || !isChannel(green) || !isChannel(blue))
        return {};
    return QColor::fromRgbF(float(red), float(green), float(blue));
}

void ZelPortalColorPicker::close()
{
    if (request_.isEmpty())
        return;
    bus_.send(QDBusMessage::createMethodCall(portalService(), request_, requestInterface(),
                                             QStringLiteral("Close")));
}

void ZelPortalColorPicker::finish(const QColor &color)
{
    listenTo(QString());
    const Answer answer = std::exchange(answer_, nullptr);
    if (answer && context_)
        answer(color);
}
