// Prices as texts. The feed sends a format code with its data; what a code means is a rule of its own, behind
// an interface so that a host can bring another.
#pragma once

#include <string>

namespace zantroq {

class IPriceFormatter
{
public:
    virtual ~IPriceFormatter() = default;
    virtual std::string Format(double price, int code) const = 0;
};

// The rule that ships. Code 10 and above: code - 10 decimals. Codes 1 to 8: fractions of 2^code, not reduced:
// "101 8/32" with code 5; a fraction of 0 is left out; a minus sign stands in front of the whole. Any other
// code: "%0.12g".
class CFeedCodePriceFormatter : public IPriceFormatter
{
public:
    std::string Format(double price, int code) const override;
};

const IPriceFormatter& ShippedPriceFormatter();

// The same for a series without a format code (code 0), which has a text for each place.
std::string PlainInfoPriceText(double price);    // in titles: "%0.12f", zeros at the end cut
std::string PlainReadoutPriceText(double price); // in the readout: "%0.12g", zeros at the end cut

} // namespace zantroq
