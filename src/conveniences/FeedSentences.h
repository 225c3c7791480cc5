// The strip that tells a user what is wrong with the feed or the chart, and the words of its sentences. Pure
// functions, any thread.
#pragma once

#include "market/FeedStatus.h"

#include <string>

namespace zantroq {

enum class StripAction
{
    None,
    Connect,           // to the feed again
    UseRecordedMarket, // the host starts a feed of its own
    ShowDataType       // sStrip::DataType of the same symbol
};

// One sentence and at most one button. An empty sentence: no strip.
struct sStrip
{
    std::string Sentence, Button;
    StripAction Action = StripAction::None;
    int DataType = 0;
    bool operator==(const sStrip&) const = default;
};

// Offered where a feed was never reached.
enum class FeedOffer
{
    Retry,
    RecordedMarket
};

sStrip NoFeedStrip(const sFeedStatus& feed, FeedOffer offer);
sStrip FeedLostStrip(const std::string& time); // "14:03:10"
sStrip NoAnswerStrip(const sFeedStatus& feed, int seconds);
sStrip UnknownSymbolStrip(const std::string& symbol);
// The feed refused the data type or has no point of it in the range that was asked for; what else it has is
// not known.
sStrip NoDataStrip(const std::string& symbol, int dataType);
// The feed has points of this type, but none in the range that was asked for.
sStrip EmptyRangeStrip(const std::string& symbol, int dataType);
sStrip OtherDataStrip(const std::string& symbol, int dataType, int otherType);
sStrip SettingsNotKeptStrip();
sStrip SimulatedStrip(const std::string& symbol);

} // namespace zantroq
