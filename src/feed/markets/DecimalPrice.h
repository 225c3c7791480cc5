// A price as a whole number of decimal units. The feed prints a price as it was recorded ("100.0" stays
// "100.0"), and sums of prices do not round. Plain data and pure functions, any thread.
#pragma once

#include <cstdint>
#include <string_view>

namespace zantroq::feed {

struct sPRICE
{
    std::int64_t Mantissa : 58 = 0; // price times 10^Decimals
    std::uint64_t Decimals : 6 = 0; // 0 to 15: digits after the point
};
static_assert(sizeof(sPRICE) == 8);

inline sPRICE MakePrice(std::int64_t mantissa, unsigned decimals)
{
    sPRICE price;
    price.Mantissa = mantissa;
    price.Decimals = decimals;
    return price;
}

// Reads an optional sign, digits, an optional point and digits, with at most 17 significant digits. An
// exponent ("1e3") and longer fractions are read as the nearest double and kept to at most 10 decimals.
// Returns false and leaves `price` unchanged for any other text, blanks included.
bool ParsePrice(std::string_view text, sPRICE& price);

// The nearest double.
double PriceValue(sPRICE price);
// Compares the values, whatever their decimals.
bool IsBelow(sPRICE a, sPRICE b);

// The same value with so many decimals, rounded half away from zero if digits are lost. If the value is too
// large for so many decimals, it gets as many as fit.
sPRICE WithDecimals(sPRICE price, unsigned decimals);

// Writes the price at `at`, at most 24 characters and no terminating zero. Returns the end.
char* WritePrice(char* at, sPRICE price);

} // namespace zantroq::feed
