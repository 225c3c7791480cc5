// Writes text and numbers into a buffer that the caller knows to be large enough. Each function returns the
// end. Pure functions, any thread.
#pragma once

#include <charconv>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zantroq::feed {

inline char* WriteText(char* at, std::string_view text)
{
    std::memcpy(at, text.data(), text.size());
    return at + text.size();
}

inline char* WriteTwoDigits(char* at, unsigned number)
{
    static constexpr char digits[] =
        "0001020304050607080910111213141516171819202122232425262728293031323334353637383940414243"
        "4445464748495051525354555657585960616263646566676869707172737475767778798081828384858687"
        "888990919293949596979899";
    std::memcpy(at, digits + 2 * number, 2);
    return at + 2;
}

// Writes at most 20 characters.
template<class TInteger> char* WriteInteger(char* at, TInteger number)
{
    return std::to_chars(at, at + 20, number).ptr;
}

} // namespace zantroq::feed
