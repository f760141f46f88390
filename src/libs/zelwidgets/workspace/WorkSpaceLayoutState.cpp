#include "WorkSpaceLayoutState.h"

#include <QDataStream>
#include <QIODevice>

#include <string_view>

namespace {

constexpr quint8 docksMarker = 0xfd;
constexpr quint8 sequenceMarker = 0xfc;
constexpr quint8 dockMarker = 0xfb;
constexpr quint8 tabsMarker = 0xfa;
constexpr int headerSize = 8;
constexpr int areaSize = 12;
constexpr int placeSize = 16;
constexpr int deepest = 64;

class Reader
{
public:
    explicit Reader(const QByteArray &state)
        : state_(state)
        , stream_(state)
    {}

    QByteArray read()
    {
        QByteArray areas;
        const QByteArray header = raw(headerSize);
        if (number<quint8>() != docksMarker)
            return state_;
        const qint32 count = number<qint32>();
        qint32 kept = 0;
        for (qint32 i = 0; i < count && isGood(); ++i) {
            const QByteArray area = raw(areaSize);
            const QByteArray docks = readGroup(0);
            if (!docks.isEmpty())
                areas += area + docks;
            kept += docks.isEmpty() ? 0 : 1;
        }
        if (!isGood())
            return state_;
        return header + bytes(docksMarker) + bytes(kept) + areas +
               state_.mid(stream_.device()->pos());
    }

private:
    bool isGood() const { return isKnown_ && stream_.status() == QDataStream::Ok; }

    template <typename T>
    T number()
    {
        T value = 0;
        stream_ >> value;
        return value;
    }
    QByteArray raw(int size)
    {
        QByteArray data = stream_.device()->read(size);
        isKnown_ = isKnown_ && data.size() == size;
        return data;
    }
    template <typename T>
    static QByteArray bytes(T value)
    {
        QByteArray data;
        QDataStream(&data, QIODevice::WriteOnly) << value;
        return data;
    }

    /// Docks beside each other or behind each other; empty if none of them is left.
    QByteArray readGroup(int depth)
    {
        const auto marker = number<quint8>();
        isKnown_ =
            isKnown_ && depth < deepest && (marker == sequenceMarker || marker == tabsMarker);
        const qint32 front = marker == tabsMarker ? number<qint32>() : 0;
        const auto orientation = number<quint8>();
        const qint32 count = number<qint32>();
        qint32 kept = 0;
        qint32 newFront = front;
        QByteArray items;
        for (qint32 i = 0; i < count && isGood(); ++i) {
            const QByteArray item = readItem(depth);
            items += item;
            kept += item.isEmpty() ? 0 : 1;
            newFront -= item.isEmpty() && i < front ? 1 : 0;
        }
        if (kept == 0)
            return {};
        return bytes(marker) + (marker == tabsMarker ? bytes(newFront) : QByteArray()) +
               bytes(orientation) + bytes(kept) + items;
    }

    /// Empty for what is to go.
    QByteArray readItem(int depth)
    {
        const qint64 start = stream_.device()->pos();
        const auto marker = number<quint8>();
        if (marker == dockMarker) {
            QString name;
            stream_ >> name;
            const int flagsSize = 1;
            raw(flagsSize + placeSize);
            return name.isEmpty() ? QByteArray()
                                  : state_.mid(start, stream_.device()->pos() - start);
        }
        isKnown_ = isKnown_ && marker == sequenceMarker;
        const QByteArray place = raw(placeSize);
        const QByteArray group = isKnown_ ? readGroup(depth + 1) : QByteArray();
        return group.isEmpty() ? group : bytes(marker) + place + group;
    }

    QByteArray state_;
    QDataStream stream_;
    bool isKnown_ = true;
};

} // namespace

QByteArray WorkSpaceLayoutState::withoutNameless(const QByteArray &state)
{
    using namespace std::string_view_literals;
    constexpr auto nameless = "\xfb\xff\xff\xff\xff"sv;
    const std::string_view text(state.constData(), size_t(state.size()));
    return text.find(nameless) == text.npos ? state : Reader(state).read();
}
