// Conversion of those fields of a point that the arrays of a series store in another type. Pure functions,
// any thread.
#pragma once

#include <cstdint>
#include <string>

namespace zantroq {

// Unsigned fields are stored in signed arrays with the same bits.
inline std::int32_t StoredInteger(std::uint32_t value)
{
    return static_cast<std::int32_t>(value);
}

// The first character of the basis code; 0 if it is empty.
inline char StoredBasis(const std::string& basis)
{
    return basis.empty() ? '\0' : basis.front();
}

} // namespace zantroq
