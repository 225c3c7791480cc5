// How the fields of a point stand in the arrays of a series where the two differ.
#pragma once

#include <cstdint>
#include <string>

namespace zantroq {

// Unsigned fields lie in signed arrays, bit for bit.
inline std::int32_t StoredInteger(std::uint32_t value)
{
    return static_cast<std::int32_t>(value);
}

// Of the basis code the first character; 0 for none.
inline char StoredBasis(const std::string& basis)
{
    return basis.empty() ? '\0' : basis.front();
}

} // namespace zantroq
