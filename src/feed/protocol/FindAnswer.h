// FIND,<id>,<field>,<text>,<filter kind>,<filter ids>: the symbol search of the lookup port. Field "s" finds
// symbols that begin with the text, "d" descriptions that hold it, whatever its case; kind "e" keeps the
// markets, "t" the security types that the ids, separated by blanks, name. The text may hold commas, which
// count as blanks, as in the descriptions: the last two fields are the kind and the ids. Rows come in the
// order of their symbols. Used on the feed's thread.
#pragma once

#include "feed/markets/SymbolIndex.h"
#include "feed/protocol/FeedReply.h"

#include <memory>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// `fields` are those of the whole line, "FIND" included, and all views of that one line. What is wrong with
// the values is an error line under the identifier; null when there are too few fields or no identifier.
std::unique_ptr<IFeedReply> AnswerFind(std::shared_ptr<const CSymbolIndex> index,
                                       const std::vector<std::string_view>& fields);

} // namespace zantroq::feed
