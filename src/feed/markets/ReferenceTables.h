// The two reference tables of the lookup port as complete reply lines. Pure functions, any thread.
#pragma once

#include <string>

namespace zantroq::feed {

// symbols.csv may use ids 0 to 255. These are the ids of symbols that no symbols.csv lists.
inline constexpr int UnknownMarketId = 1, SimulatedMarketId = 9;
inline constexpr int UnknownSecurityTypeId = 1, SimulatedSecurityTypeId = 9;

// One line for each row, then the end marker. Fields: id, short name, long name; a market also has the id and
// the name of its group. Known readers of these tables lose the last row before the end marker, so the last
// row is id 0, which no symbol uses.
std::string ListedMarketsReply();
std::string SecurityTypesReply();

} // namespace zantroq::feed
