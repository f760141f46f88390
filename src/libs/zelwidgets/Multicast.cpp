#include "Multicast.h"

#include <QDebug>
#include <QHostAddress>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QPointer>
#include <QUdpSocket>

#include <algorithm>

namespace {

/// How many datagrams are told of before other events get their turn.
constexpr int batchSize = 64;

struct Family
{
    uchar ipVersion;
    QAbstractSocket::NetworkLayerProtocol protocol;
    QHostAddress any;
    QHostAddress group;
};

Family family(uchar ipVersion)
{
    if (ipVersion == 4)
        return {4, QAbstractSocket::IPv4Protocol, QHostAddress(QHostAddress::AnyIPv4),
                QHostAddress(QStringLiteral("239.255.67.76"))};
    return {6, QAbstractSocket::IPv6Protocol, QHostAddress(QHostAddress::AnyIPv6),
            QHostAddress(QStringLiteral("ff02::1"))};
}

bool canTakePart(const QNetworkInterface &interface, const Family &family)
{
    constexpr auto needed =
        QNetworkInterface::IsUp | QNetworkInterface::IsRunning | QNetworkInterface::CanMulticast;
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    return (interface.flags() & needed) == needed &&
           std::any_of(entries.cbegin(), entries.cend(), [&family](const auto &entry) {
               return entry.ip().protocol() == family.protocol;
           });
}

} // namespace

class MulticastPrivate
{
public:
    explicit MulticastPrivate(Multicast *q)
        : q_(q)
    {}

    void listen(quint16 port);
    bool isListening(uchar ipVersion) const
    {
        return (ipVersion == 4 && ipv4_) || (ipVersion == 6 && ipv6_);
    }
    quint16 port() const { return port_; }

private:
    using Socket = std::unique_ptr<QUdpSocket>;

    Socket open(uchar ipVersion);
    static void join(QUdpSocket &socket, const Family &family);
    void readBatch(const QPointer<QUdpSocket> &socket, uchar ipVersion);

    Multicast *q_;
    quint16 port_ = 0;
    Socket ipv4_;
    Socket ipv6_;
};

void MulticastPrivate::listen(quint16 port)
{
    ipv4_.reset();
    ipv6_.reset();
    port_ = port;
    ipv4_ = open(4);
    if (ipv4_)
        port_ = ipv4_->localPort();
    ipv6_ = open(6);
    if (ipv6_)
        port_ = ipv6_->localPort();
}

MulticastPrivate::Socket MulticastPrivate::open(uchar ipVersion)
{
    const Family family = ::family(ipVersion);
    auto socket = std::make_unique<QUdpSocket>();
    if (!socket->bind(family.any, port_, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint)) {
        qWarning() << "Multicast: could not listen for IP version" << int(ipVersion) << "on port"
                   << port_ << socket->errorString();
        return nullptr;
    }
    join(*socket, family);
    // Queued, so that a slot may ask for another port or delete the listener, and with it the
    // socket.
    QObject::connect(
        socket.get(), &QUdpSocket::readyRead, q_,
        [this, source = QPointer(socket.get()), ipVersion] { readBatch(source, ipVersion); },
        Qt::QueuedConnection);
    return socket;
}

void MulticastPrivate::join(QUdpSocket &socket, const Family &family)
{
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &interface : interfaces) {
        if (canTakePart(interface, family) && !socket.joinMulticastGroup(family.group, interface))
            qWarning() << "Multicast: could not join" << family.group.toString() << "on"
                       << interface.name() << socket.errorString();
    }
}

void MulticastPrivate::readBatch(const QPointer<QUdpSocket> &socket, uchar ipVersion)
{
    for (int i = 0; i < batchSize && socket && socket->hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = socket->receiveDatagram();
        if (!datagram.isValid())
            return;
        QHostAddress sender = datagram.senderAddress();
        Q_EMIT q_->multicastDatagramReady(datagram.data(), sender, ipVersion);
    }
    if (socket && socket->hasPendingDatagrams())
        QMetaObject::invokeMethod(
            q_, [this, socket, ipVersion] { readBatch(socket, ipVersion); }, Qt::QueuedConnection);
}

Multicast::Multicast(QObject *parent, quint16 port)
    : QObject(parent)
    , d_(std::make_unique<MulticastPrivate>(this))
{
    d_->listen(port);
}

Multicast::~Multicast() = default;

quint16 Multicast::port() const
{
    return d_->port();
}

void Multicast::setPort(quint16 port)
{
    d_->listen(port);
}

bool Multicast::isListening(uchar ipVersion) const
{
    return d_->isListening(ipVersion);
}
