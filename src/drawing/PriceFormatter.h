// Prices as texts. The feed sends a format code with its data; an interface defines the meaning of the codes,
// so that a host can replace it.
#pragma once

#include <string>

namespace zantroq {

class IPriceFormatter
{
public:
    virtual ~IPriceFormatter() = default;
    virtual std::string Format(double price, int code) const = 0;
};

// The shipped rules. Code 10 and above: code - 10 decimals. Codes 1 to 8: fractions of 2^code, not reduced,
// such as "101 8/32" with code 5; a fraction of 0 is omitted, and a minus sign precedes the whole part. Any
// other code: "%0.12g". Stateless, any thread.
class CFeedCodePriceFormatter : public IPriceFormatter
{
public:
    std::string Format(double price, int code) const override;
};

const IPriceFormatter& ShippedPriceFormatter();

// Prices of a series without a format code (code 0); the two places have different formats.
std::string PlainInfoPriceText(double price);    // in titles: "%0.12f" without trailing zeros
std::string PlainReadoutPriceText(double price); // in the readout: "%0.12g" without trailing zeros

} // namespace zantroq
