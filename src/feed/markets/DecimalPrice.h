// A price as a whole number of decimal units, so that what a recording says is what the feed prints: "100.0"
// stays "100.0" and no sum of prices ever rounds. Plain data and pure functions, any thread.
#pragma once

#include <cstdint>
#include <string_view>

namespace zantroq::feed {

struct sPRICE
{
    std::int64_t Mantissa : 58 = 0; // the price times 10^Decimals
    std::uint64_t Decimals : 6 = 0; // 0 to 15, digits behind the point
};
static_assert(sizeof(sPRICE) == 8);

inline sPRICE MakePrice(std::int64_t mantissa, unsigned decimals)
{
    sPRICE price;
    price.Mantissa = mantissa;
    price.Decimals = decimals;
    return price;
}

// An optional sign, digits, an optional point and digits; at most 17 significant digits. "1e3" and longer
// fractions go through the nearest double and are kept to at most 10 decimals. False, and price untouched,
// for anything else, blanks included.
bool ParsePrice(std::string_view text, sPRICE& price);

// The nearest double; two prices compare as their values do, whatever their decimals.
double PriceValue(sPRICE price);
bool IsBelow(sPRICE a, sPRICE b);

// The same value with that many decimals, rounded half away from zero where digits go. A price too large for
// so many keeps as many as fit.
sPRICE WithDecimals(sPRICE price, unsigned decimals);

// Writes the price at `at`, at most 24 characters without a terminating zero, and returns the end.
char* WritePrice(char* at, sPRICE price);

} // namespace zantroq::feed
