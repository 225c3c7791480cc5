// The two reference tables of the lookup port as whole reply lines. Pure functions.
#pragma once

#include <string>

namespace zantroq::feed {

// Ids 0 to 255 that symbols.csv may use; those of symbols that no symbols.csv names.
inline constexpr int UnknownMarketId = 1, SimulatedMarketId = 9;
inline constexpr int UnknownSecurityTypeId = 1, SimulatedSecurityTypeId = 9;

// A row a line and the end marker: id, short name, long name, and for the markets a group's id and name.
// Known readers of these tables lose the row in front of the end marker, so the last row is id 0, which names
// nothing.
std::string ListedMarketsReply();
std::string SecurityTypesReply();

} // namespace zantroq::feed
