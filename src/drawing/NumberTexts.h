// Numbers as texts, as the panes show them. They follow printf in the "C" locale whatever the process's
// locale; not-a-number is "nan" whatever its sign. Pure functions, any thread.
#pragma once

#include <cstdint>
#include <string>

namespace zantroq {

std::string FixedText(double value, int decimals); // "%.*f"; decimals below 0 count as 0, above 340 as 340
std::string GeneralText(double value, int digits = 6); // "%.*g"; "%g" with 6 digits

// Removes the trailing zeros of a fraction, and the point if no digit is left after it. A text without a
// fraction is unchanged: "100" does not become "1".
std::string CutTrailingZeros(std::string text);

// An integer with a comma after every three digits from the right: "1,234,567". Empty for a negative number.
std::string ThousandsText(std::int64_t value);

// The whole part of a number, rounded half away from zero to three significant digits, with commas: 1234567
// gives "1,230,000". A negative number keeps its sign.
std::string RoundedThousandsText(double value);

// Three significant digits and a suffix: "1.23K", "45.6M", "789B", "1.00T". Empty for numbers up to 0.1 and
// from 10^15 on.
std::string ShortLargeNumberText(double value);

} // namespace zantroq
