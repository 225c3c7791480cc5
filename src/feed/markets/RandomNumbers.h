// Repeatable random numbers: the same with every machine, compiler and run. The state is a counter, so any
// day or minute of a simulated market can be generated without the days before it. Mixing function:
// SplitMix64 (Steele, Lea, Flood, 2014). Free functions: any thread; an object has one owner and no lock.
#pragma once

#include <cstdint>
#include <string_view>

namespace zantroq::feed {

constexpr std::uint64_t MixBits(std::uint64_t x)
{
    x += 0x9E3779B97F4A7C15u;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
    return x ^ (x >> 31);
}

constexpr std::uint64_t HashText(std::string_view text, std::uint64_t seed)
{
    std::uint64_t hash = MixBits(seed);
    for (const char c : text)
        hash = MixBits(hash ^ static_cast<unsigned char>(c));
    return hash;
}

class CRandomNumbers
{
public:
    explicit CRandomNumbers(std::uint64_t key) : m_state(MixBits(key)) {}

    std::uint64_t Next() { return MixBits(m_state++); }
    // A number from 0 to bound - 1, for a bound of 1 to 2^32. Taken from the high half of a product; the bias
    // is below 2^-32.
    std::uint32_t Below(std::uint64_t bound)
    {
        return static_cast<std::uint32_t>(((Next() >> 32) * bound) >> 32);
    }
    // A number from -spread to +spread, with a triangular distribution: the sum of two uniform numbers.
    std::int64_t Around(std::int64_t spread)
    {
        const auto bound = static_cast<std::uint64_t>(spread) + 1;
        return static_cast<std::int64_t>(Below(bound)) + static_cast<std::int64_t>(Below(bound)) - spread;
    }

private:
    std::uint64_t m_state;
};

} // namespace zantroq::feed
