// Numbers of headers and axis labels as text, the same in every locale.
#pragma once

#include <cstdint>
#include <string>

namespace zantroq {

// With that many decimals, as "%.*f". A not-a-number is "nan", an infinity "inf" or "-inf".
std::string FixedText(double value, int decimals);

// With "," every three digits from the right; a negative number gives an empty text.
std::string GroupedText(std::int64_t value);

} // namespace zantroq
