#include "TestCase.h"

#include <ZelWidgets/Multicast>

#include <QHostAddress>
#include <QUdpSocket>

namespace {

constexpr int largestDatagram = 65'507;

struct Received
{
    QByteArray data;
    QHostAddress sender;
    int ipVersion = 0;
};

bool canBind(QHostAddress::SpecialAddress address)
{
    QUdpSocket probe;
    return probe.bind(QHostAddress(address), 0);
}

/// A listener that notes what it is told.
class Listener
{
public:
    Listener()
    {
        QObject::connect(&multicast, &Multicast::multicastDatagramReady, &multicast,
                         [this](const QByteArray &data, QHostAddress &sender, uchar ipVersion) {
                             received.append({data, sender, ipVersion});
                         });
    }
    bool send(const QByteArray &data, QHostAddress::SpecialAddress to = QHostAddress::LocalHost)
    {
        return sender.writeDatagram(data, QHostAddress(to), multicast.port()) == data.size();
    }

    Multicast multicast{nullptr, 0};
    QUdpSocket sender;
    QList<Received> received;
};

} // namespace

class TestMulticast : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsDatagrams();
    void tellsIpv6();
    void survivesAFlood();
    void sharesItsPort();
    void goesOnWithoutAFamily();
    void changesItsPort();
    void diesInItsOwnSignal();
};

void TestMulticast::tellsDatagrams()
{
    Listener listener;
    QVERIFY(listener.multicast.isListening(4));
    QVERIFY(!listener.multicast.isListening(5));
    QVERIFY(listener.multicast.port() != 0);
    const QList<QByteArray> sent{QByteArray(), "hello", QByteArray(largestDatagram, 'x')};
    for (const QByteArray &data : sent)
        QVERIFY(listener.send(data));
    QTRY_COMPARE(listener.received.size(), sent.size());
    for (qsizetype i = 0; i < sent.size(); ++i) {
        QCOMPARE(listener.received[i].data, sent[i]);
        QCOMPARE(listener.received[i].ipVersion, 4);
        QVERIFY(listener.received[i].sender.isLoopback());
    }
}

void TestMulticast::tellsIpv6()
{
    if (!canBind(QHostAddress::LocalHostIPv6))
        QSKIP("no IPv6 on this machine");
    Listener listener;
    QVERIFY(listener.multicast.isListening(6));
    QVERIFY(listener.send("six", QHostAddress::LocalHostIPv6));
    QTRY_COMPARE(listener.received.size(), 1);
    QCOMPARE(listener.received[0].data, QByteArray("six"));
    QCOMPARE(listener.received[0].ipVersion, 6);
}

/// Other events get their turn while datagrams come without end.
void TestMulticast::survivesAFlood()
{
    Listener listener;
    constexpr int count = 150;
    for (int i = 0; i < count; ++i)
        QVERIFY(listener.send(QByteArray::number(i)));
    qsizetype whenOthersRan = -1;
    const auto noteTurn = [&] {
        whenOthersRan = listener.received.size();
    };
    QObject::connect(
        &listener.multicast, &Multicast::multicastDatagramReady, &listener.sender,
        [&] { QMetaObject::invokeMethod(&listener.sender, noteTurn, Qt::QueuedConnection); },
        Qt::SingleShotConnection);
    QTRY_COMPARE(listener.received.size(), count);
    QVERIFY(whenOthersRan > 0 && whenOthersRan < count);
    QCOMPARE(listener.received.last().data, QByteArray::number(count - 1));
}

void TestMulticast::sharesItsPort()
{
    Listener listener;
    const Multicast second(nullptr, listener.multicast.port());
    QVERIFY(second.isListening(4));
    QCOMPARE(second.port(), listener.multicast.port());
}

void TestMulticast::goesOnWithoutAFamily()
{
    QUdpSocket owner;
    QVERIFY(owner.bind(QHostAddress(QHostAddress::AnyIPv4), 0, QUdpSocket::DontShareAddress));
    messages().expect(
        QtWarningMsg,
        QStringLiteral("could not listen for IP version 4 on port %1").arg(owner.localPort()));
    const Multicast multicast(nullptr, owner.localPort());
    QVERIFY(!multicast.isListening(4));
    QCOMPARE(multicast.isListening(6), canBind(QHostAddress::AnyIPv6));
    QCOMPARE(multicast.port(), owner.localPort());
}

void TestMulticast::changesItsPort()
{
    Listener listener;
    const quint16 former = listener.multicast.port();
    QObject::connect(
        &listener.multicast, &Multicast::multicastDatagramReady, &listener.multicast,
        [&listener] { listener.multicast.setPort(0); }, Qt::SingleShotConnection);
    QVERIFY(listener.send("1"));
    QVERIFY(listener.send("2"));
    QTRY_COMPARE(listener.received.size(), 1);
    QVERIFY(listener.multicast.port() != former);
    QVERIFY(listener.send("3"));
    QTRY_COMPARE(listener.received.size(), 2);
    QCOMPARE(listener.received[1].data, QByteArray("3"));
}

void TestMulticast::diesInItsOwnSignal()
{
    auto *multicast = new Multicast(nullptr, 0);
    const quint16 port = multicast->port();
    const QPointer<Multicast> alive(multicast);
    connect(multicast, &Multicast::multicastDatagramReady, this, [multicast] { delete multicast; });
    QUdpSocket sender;
    for (int i = 0; i < 3; ++i)
        QCOMPARE(sender.writeDatagram("x", QHostAddress(QHostAddress::LocalHost), port), 1);
    QTRY_VERIFY(!alive);
}

ZEL_TEST_MAIN(TestMulticast)
#include "tst_multicast.moc"
