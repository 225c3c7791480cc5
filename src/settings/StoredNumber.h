// Numbers as the settings store them: decimal text, independent of the process's locale. Pure functions, any
// thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq {

// Only this many characters of a stored number are read, so a stored integer is -99999999 to 999999999.
inline constexpr std::size_t StoredNumberLength = 9;
inline constexpr std::int32_t LeastStoredInt = -99999999;
inline constexpr std::int32_t GreatestStoredInt = 999999999;

// The number at the start of the first nine characters, converted like atoi and atof.
std::int32_t ParseStoredInt(std::string_view text);
double ParseStoredDouble(std::string_view text);

std::string TextFromInt(std::int32_t value);
// Format "%f": six decimals.
std::string TextFromDouble(double value);

// Reads typed text: returns false unless the whole text is one number.
bool ParseWholeInt(std::string_view text, std::int64_t& value);
bool ParseWholeDouble(std::string_view text, double& value);

} // namespace zantroq
