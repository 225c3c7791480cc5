// Numbers as the settings keep them: decimal text. Nothing here depends on the process's locale. Pure
// functions, any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq {

// Of a stored number only this many characters are read, so the range of a stored integer is -99999999 to
// 999999999.
inline constexpr std::size_t StoredNumberLength = 9;
inline constexpr std::int32_t LeastStoredInt = -99999999;
inline constexpr std::int32_t GreatestStoredInt = 999999999;

// The number at the front of the first nine characters, read as atoi and atof read it.
std::int32_t ParseStoredInt(std::string_view text);
double ParseStoredDouble(std::string_view text);

std::string TextFromInt(std::int32_t value);
// The form "%f": six decimals.
std::string TextFromDouble(double value);

// A whole text that is one number and nothing else; false otherwise. For what people type.
bool ParseWholeInt(std::string_view text, std::int64_t& value);
bool ParseWholeDouble(std::string_view text, double& value);

} // namespace zantroq
