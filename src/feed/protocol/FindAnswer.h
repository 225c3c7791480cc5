// The symbol search of the lookup port: FIND,<id>,<field>,<text>,<filter kind>,<filter ids>. Field "s" finds
// symbols that begin with the text, "d" descriptions that contain it; case is ignored. Filter kind "e"
// restricts the search to markets, "t" to security types; the ids are separated by blanks. The text may
// contain commas (the last two fields are the kind and the ids), which count as blanks, as they do in
// descriptions. Rows are sorted by symbol. Feed thread only.
#pragma once

#include "feed/markets/SymbolIndex.h"
#include "feed/protocol/FeedReply.h"

#include <memory>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// `fields` are all fields of the line, "FIND" included, and must be views of that one line. A bad value is
// answered with an error line under the identifier. Returns null if there are too few fields or no
// identifier.
std::unique_ptr<IFeedReply> AnswerFind(std::shared_ptr<const CSymbolIndex> index,
                                       const std::vector<std::string_view>& fields);

} // namespace zantroq::feed
