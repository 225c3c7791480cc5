// The two reference tables of the lookup port, and the symbol search. Each writes whole reply lines. Pure
// functions.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

struct sLISTED_SYMBOL;

// Ids 0 to 255 that symbols.csv may use; those of symbols that no symbols.csv names.
inline constexpr int UnknownMarketId = 1, SimulatedMarketId = 9;
inline constexpr int UnknownSecurityTypeId = 1, SimulatedSecurityTypeId = 9;

// A row a line and the end marker: id, short name, long name, and for the markets a group's id and name.
// Known readers of these tables lose the row in front of the end marker, so the last row is id 0, which names
// nothing.
std::string ListedMarketsReply();
std::string SecurityTypesReply();

// FIND,<id>,<field>,<text>,<filter kind>,<filter ids>: field "s" finds symbols that begin with the text, "d"
// descriptions that hold it, in either case of letters; kind "e" keeps the markets, "t" the security types
// that the ids, parted by blanks, name. The text may hold commas, which count as blanks: the last two fields
// are the kind and the ids. Rows come in the order of their symbols. `fields` are those of the whole line;
// false when there are too few.
bool FindReply(const std::map<std::string, sLISTED_SYMBOL>& listed,
               const std::vector<std::string_view>& fields, std::string& reply);

} // namespace zantroq::feed
