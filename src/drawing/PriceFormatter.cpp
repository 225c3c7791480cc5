#include "drawing/PriceFormatter.h"

#include "drawing/NumberTexts.h"

#include <cmath>

namespace zantroq {

namespace {

std::string FractionText(double price, int code)
{
    const double parts = static_cast<double>(1 << code);
    const double magnitude = std::fabs(price);
    double whole = std::floor(magnitude);
    double numerator = std::floor((magnitude - whole) * parts + 0.5);
    if (numerator >= parts) {
        whole += 1.0;
        numerator = 0.0;
    }
    const bool zero = whole == 0.0 && numerator == 0.0;
    std::string text = (std::signbit(price) && !zero ? "-" : "") + FixedText(whole, 0);
    if (numerator != 0.0)
        text += " " + FixedText(numerator, 0) + "/" + FixedText(parts, 0);
    return text;
}

} // namespace

std::string CFeedCodePriceFormatter::Format(double price, int code) const
{
    if (!std::isfinite(price))
        return GeneralText(price, 12);
    if (code >= 10)
        return FixedText(price, code - 10);
    return code >= 1 && code <= 8 ? FractionText(price, code) : GeneralText(price, 12);
}

const IPriceFormatter& ShippedPriceFormatter()
{
    static const CFeedCodePriceFormatter formatter;
    return formatter;
}

std::string PlainInfoPriceText(double price)
{
    return CutTrailingZeros(FixedText(price, 12));
}

std::string PlainReadoutPriceText(double price)
{
    return CutTrailingZeros(GeneralText(price, 12));
}

} // namespace zantroq
