#pragma once

#include <QKeySequence>

#include <array>

/// What a key sequence consists of: a key of hashes that is quicker than the sequence itself.
class ZelKeyCodes
{
public:
    explicit ZelKeyCodes(const QKeySequence &key)
    {
        for (int i = 0; i < key.count(); ++i)
            codes_[std::size_t(i)] = quint32(key[uint(i)].toCombined());
    }

    bool operator==(const ZelKeyCodes &other) const = default;

    friend std::size_t qHash(const ZelKeyCodes &key, std::size_t seed = 0) noexcept
    {
        // An odd number without a pattern.
        constexpr quint64 factor = 0x9e3779b97f4a7c15;
        quint64 hash = seed;
        for (const quint32 code : key.codes_)
            hash = (hash ^ code) * factor;
        return std::size_t(hash ^ (hash >> 32));
    }

private:
    std::array<quint32, 4> codes_ = {};
};
