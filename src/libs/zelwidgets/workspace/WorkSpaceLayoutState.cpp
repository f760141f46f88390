#include "WorkSpaceLayoutState.h"

#include <QDataStream>
#include <QIODevice>

#include <optional>
#include <string_view>

namespace {

constexpr quint8 docksMarker = 0xfd;
constexpr quint8 sequenceMarker = 0xfc;
constexpr quint8 dockMarker = 0xfb;
constexpr quint8 tabsMarker = 0xfa;
constexpr int headerSize = 8;
constexpr int areaNumberSize = 4;
constexpr int areaPlaceSize = 8;
constexpr int placeSize = 16;
constexpr int deepest = 64;

class Reader
{
public:
    enum Places { Kept, Dropped };

    Reader(const QByteArray &state, Places places)
        : state_(state)
        , stream_(state)
        , places_(places)
    {}

    /// Without what follows the docks; nothing if the state isn't understood.
    std::optional<QByteArray> docks()
    {
        QByteArray areas;
        const QByteArray header = raw(headerSize);
        isKnown_ = isKnown_ && number<quint8>() == docksMarker;
        const qint32 count = number<qint32>();
        qint32 kept = 0;
        for (qint32 i = 0; i < count && isGood(); ++i) {
            QByteArray area = raw(areaNumberSize);
            area += place(areaPlaceSize);
            const QByteArray docks = readGroup(0);
            if (!docks.isEmpty())
                areas += area + docks;
            kept += docks.isEmpty() ? 0 : 1;
        }
        if (!isGood())
            return std::nullopt;
        return header + bytes(docksMarker) + bytes(kept) + areas;
    }

    QByteArray rest() const { return state_.mid(stream_.device()->pos()); }

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
    QByteArray place(int size)
    {
        const QByteArray data = raw(size);
        return places_ == Kept ? data : QByteArray();
    }
    template <typename T>
    static QByteArray bytes(const T &value)
    {
        QByteArray data;
        QDataStream stream(&data, QIODevice::WriteOnly);
        stream << value;
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
        const auto marker = number<quint8>();
        if (marker == dockMarker) {
            QString name;
            stream_ >> name;
            const int flagsSize = 1;
            const QByteArray flags = raw(flagsSize);
            const QByteArray rectangle = place(placeSize);
            return name.isEmpty() ? QByteArray() : bytes(marker) + bytes(name) + flags + rectangle;
        }
        isKnown_ = isKnown_ && marker == sequenceMarker;
        const QByteArray rectangle = place(placeSize);
        const QByteArray group = isKnown_ ? readGroup(depth + 1) : QByteArray();
        return group.isEmpty() ? group : bytes(marker) + rectangle + group;
    }

    QByteArray state_;
    QDataStream stream_;
    Places places_;
    bool isKnown_ = true;
};

} // namespace

QByteArray WorkSpaceLayoutState::withoutNameless(const QByteArray &state)
{
    using namespace std::string_view_literals;
    constexpr auto nameless = "\xfb\xff\xff\xff\xff"sv;
    const std::string_view text(state.constData(), size_t(state.size()));
    if (text.find(nameless) == text.npos)
        return state;
    Reader reader(state, Reader::Kept);
    const std::optional<QByteArray> docks = reader.docks();
    return docks ? *docks + reader.rest() : state;
}

QByteArray WorkSpaceLayoutState::structure(const QByteArray &state)
{
    return Reader(state, Reader::Dropped).docks().value_or(QByteArray());
}
