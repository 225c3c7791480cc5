#include "feed/markets/DecimalPrice.h"

#include "feed/markets/TextWriter.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <system_error>

namespace zantroq::feed {
namespace {

constexpr int MaxDigits = 17;
constexpr unsigned MaxDecimals = 15;

constexpr std::array<std::int64_t, 18> PowersOfTen = [] {
    std::array<std::int64_t, 18> powers{};
    std::int64_t power = 1;
    for (auto& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

bool ParsePlain(std::string_view text, sPRICE& price)
{
    std::size_t i = 0;
    const bool negative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+'))
        ++i;
    std::int64_t mantissa = 0;
    int significant = 0, digits = 0;
    unsigned decimals = 0;
    bool point = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.' && !point) {
            point = true;
            continue;
        }
        if (c < '0' || c > '9')
            return false;
        ++digits;
        if (mantissa != 0 || c != '0')
            ++significant;
        decimals += point;
        if (significant > MaxDigits || decimals > MaxDecimals)
            return false;
        mantissa = mantissa * 10 + (c - '0');
    }
    if (digits == 0)
        return false;
    price = MakePrice(negative ? -mantissa : mantissa, decimals);
    return true;
}

} // namespace

bool ParsePrice(std::string_view text, sPRICE& price)
{
    if (ParsePlain(text, price))
        return true;
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(value))
        return false;
    char plain[400];
    auto written = std::to_chars(plain, plain + sizeof plain, value, std::chars_format::fixed);
    if (written.ec == std::errc() && ParsePlain({plain, written.ptr}, price))
        return true;
    written = std::to_chars(plain, plain + sizeof plain, value, std::chars_format::fixed, 10);
    return written.ec == std::errc() && ParsePlain({plain, written.ptr}, price);
}

double PriceValue(sPRICE price)
{
    return static_cast<double>(price.Mantissa) / static_cast<double>(PowersOfTen[price.Decimals]);
}

bool IsBelow(sPRICE a, sPRICE b)
{
    return a.Decimals == b.Decimals ? a.Mantissa < b.Mantissa : PriceValue(a) < PriceValue(b);
}

sPRICE WithDecimals(sPRICE price, unsigned decimals)
{
    if (price.Decimals == decimals)
        return price;
    if (price.Decimals < decimals) {
        constexpr std::int64_t most = std::int64_t{1} << 56;
        std::int64_t mantissa = price.Mantissa;
        unsigned reached = price.Decimals;
        for (; reached < decimals && std::abs(mantissa) <= most / 10; ++reached)
            mantissa *= 10;
        return MakePrice(mantissa, reached);
    }
    const std::int64_t divisor = PowersOfTen[price.Decimals - decimals];
    const std::int64_t half = price.Mantissa < 0 ? -divisor / 2 : divisor / 2;
    return MakePrice((price.Mantissa + half) / divisor, decimals);
}

char* WritePrice(char* at, sPRICE price)
{
    std::int64_t mantissa = price.Mantissa;
    if (mantissa < 0) {
        *at++ = '-';
        mantissa = -mantissa;
    }
    if (price.Decimals == 2) {
        at = WriteInteger(at, mantissa / 100);
        *at++ = '.';
        return WriteTwoDigits(at, static_cast<unsigned>(mantissa % 100));
    }
    const std::int64_t unit = PowersOfTen[price.Decimals];
    at = WriteInteger(at, mantissa / unit);
    if (price.Decimals == 0)
        return at;
    *at++ = '.';
    std::int64_t fraction = mantissa % unit;
    for (unsigned i = price.Decimals; i-- > 0;) {
        at[i] = static_cast<char>('0' + fraction % 10);
        fraction /= 10;
    }
    return at + price.Decimals;
}

} // namespace zantroq::feed
