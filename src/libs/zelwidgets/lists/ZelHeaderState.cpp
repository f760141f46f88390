#include "lists/ZelHeaderState.h"

#include <QDataStream>
#include <QHeaderView>
#include <QIODevice>

#include <algorithm>

namespace {

constexpr int marker = 0xff;
constexpr int version = 0;
constexpr int mostSize = 1 << 20;
constexpr int moreFlags = 5;
constexpr int moreNumbers = 6;

/// Reads numbers as long as there are bytes for them.
class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : stream_(bytes)
    {}

    bool isGood() const { return isGood_ && stream_.status() == QDataStream::Ok; }

    int number()
    {
        int number = 0;
        stream_ >> number;
        return number;
    }
    bool flag()
    {
        bool flag = false;
        stream_ >> flag;
        return flag;
    }
    /// The count of what takes this many bytes each.
    int count(int bytesEach)
    {
        const int count = number();
        if (count >= 0 && qint64(count) * bytesEach <= stream_.device()->bytesAvailable())
            return count;
        isGood_ = false;
        return 0;
    }
    QList<int> numbers()
    {
        QList<int> numbers(count(int(sizeof(int))));
        for (int &number : numbers)
            number = this->number();
        return numbers;
    }
    QBitArray bits()
    {
        const int size = number();
        if (size < 0 || (qint64(size) + 7) / 8 > stream_.device()->bytesAvailable()) {
            isGood_ = false;
            return {};
        }
        QBitArray bits(size);
        for (int at = 0; at < size; at += 8) {
            quint8 byte = 0;
            stream_ >> byte;
            for (int bit = 0; bit < 8 && at + bit < size; ++bit)
                bits.setBit(at + bit, (byte >> bit) & 1);
        }
        return bits;
    }

private:
    QDataStream stream_;
    bool isGood_ = true;
};

bool isPermutation(const QList<int> &order, qsizetype count)
{
    QList<int> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        if (sorted[i] != i)
            return false;
    }
    return sorted.size() == count;
}

} // namespace

std::optional<ZelHeaderState> ZelHeaderState::read(const QByteArray &bytes)
{
    Reader in(bytes);
    if (in.number() != marker || in.number() != version)
        return {};
    ZelHeaderState state;
    const int orientation = in.number();
    if (orientation != Qt::Horizontal && orientation != Qt::Vertical)
        return {};
    state.orientation_ = Qt::Orientation(orientation);
    state.sortOrder_ =
        in.number() == Qt::DescendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    state.sortSection_ = in.number();
    state.isSortShown_ = in.flag();
    const QList<int> visuals = in.numbers();
    state.order_ = in.numbers();
    state.hidden_ = in.bits();
    for (int left = in.count(2 * int(sizeof(int))); left > 0; --left) {
        const int section = in.number();
        state.hiddenSizes_.append({section, in.number()});
    }
    in.number(); // length of all
    const int sections = in.number();
    for (int flags = 0; flags < moreFlags; ++flags)
        in.flag();
    for (int rest = 0; rest < moreNumbers; ++rest)
        in.number();
    for (int left = in.count(3 * int(sizeof(int))); left > 0; --left) {
        state.sizes_.append(std::clamp(in.number(), 0, mostSize));
        in.number();
        in.number();
    }
    const bool isWhole = in.isGood() && sections == state.count() &&
                         (state.order_.isEmpty() || isPermutation(state.order_, sections)) &&
                         visuals.size() == state.order_.size() && state.hidden_.size() <= sections;
    return isWhole ? std::optional(state) : std::nullopt;
}

void ZelHeaderState::applyTo(QHeaderView &header) const
{
    const int known = int(std::min<qsizetype>(count(), header.count()));
    int visual = 0;
    for (const int logical : order_) {
        if (logical < known)
            header.moveSection(header.visualIndex(logical), visual++);
    }
    for (int logical = 0; logical < known; ++logical) {
        const qsizetype place = order_.isEmpty() ? logical : order_.indexOf(logical);
        const bool isHidden = place < hidden_.size() && hidden_.testBit(place);
        if (!isHidden && sizes_[place] > 0)
            header.resizeSection(logical, sizes_[place]);
        header.setSectionHidden(logical, isHidden);
    }
    if (sortSection_ < known)
        header.setSortIndicator(sortSection_, sortOrder_);
    header.setSortIndicatorShown(isSortShown_);
}
