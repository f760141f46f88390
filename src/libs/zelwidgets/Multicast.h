#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QObject>

#include <memory>

class QHostAddress;

/// Listens for datagrams to the IPv4 group 239.255.67.76 and to all IPv6 nodes of the link, on
/// every network interface that can take part, and for those sent to this machine on the port.
///
/// Several programs on one machine can listen on the same port. What can't be bound or joined is
/// told in a warning; whatever else can is listened to.
class ZELWIDGETS_EXPORT Multicast : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 defaultPort = 50676;

    /// Listens at once. Port 0 leaves the choice of a port to the system.
    explicit Multicast(QObject *parent = nullptr, quint16 port = defaultPort);
    ~Multicast() override;

    /// The port that is listened on.
    quint16 port() const;
    /// Stops listening and listens on another port; on the same port, it tries anew what failed.
    void setPort(quint16 port);
    /// True if datagrams of the IP version, 4 or 6, can come.
    bool isListening(uchar ipVersion) const;

Q_SIGNALS:
    /// A datagram of up to 65,507 bytes, maybe empty, with its sender and its IP version, 4 or 6.
    /// The address lives as long as the signal.
    void multicastDatagramReady(QByteArray datagram, QHostAddress &sender, uchar ipVersion);

private:
    friend class MulticastPrivate;
    std::unique_ptr<class MulticastPrivate> d_;
};
