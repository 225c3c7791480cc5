// Numbers as texts, as the panes print them. All follow the rules of printf in the "C" locale whatever the
// process's locale is; a not-a-number reads "nan" whatever its sign. Pure functions, any thread.
#pragma once

#include <cstdint>
#include <string>

namespace zantroq {

std::string FixedText(double value, int decimals); // "%.*f"; decimals below 0 count as 0, above 340 as 340
std::string GeneralText(double value, int digits = 6); // "%.*g"; "%g" with 6 digits

// Takes the zeros at the end of a fraction away, and the point when nothing is left behind it. A text without
// a fraction stays: "100" is not "1".
std::string CutTrailingZeros(std::string text);

// Integers with a comma every three digits from the right: "1,234,567". A negative number gives an empty
// text.
std::string ThousandsText(std::int64_t value);

// The whole part of a number, rounded half away from zero to its first three digits, with commas: 1234567
// gives "1,230,000". A negative number keeps its sign.
std::string RoundedThousandsText(double value);

// Three significant digits and a suffix: "1.23K", "45.6M", "789B", "1.00T". Empty for 0, for negative
// numbers, for what lies at or below 0.1, and from 10^15 on.
std::string ShortLargeNumberText(double value);

} // namespace zantroq
