#include "conveniences/FeedSentences.h"

#include <array>

namespace zantroq {

namespace {

const char* PointsName(int dataType)
{
    static constexpr std::array<const char*, 5> Names{"ticks", "minutes", "days", "weeks", "months"};
    return dataType >= 0 && dataType < 5 ? Names[static_cast<std::size_t>(dataType)] : "points";
}

const char* ShowButton(int dataType)
{
    static constexpr std::array<const char*, 5> Texts{"Show ticks", "Show minutes", "Show daily",
                                                      "Show weekly", "Show monthly"};
    return dataType >= 0 && dataType < 5 ? Texts[static_cast<std::size_t>(dataType)] : "";
}

std::string Address(const sPortStatus& port)
{
    return "127.0.0.1:" + std::to_string(port.Port);
}

// The port that is the trouble: the one for history unless that one is fine.
const sPortStatus& BrokenPort(const sFeedStatus& feed)
{
    return feed.Lookup.State == PortState::Connected ? feed.Level1 : feed.Lookup;
}

} // namespace

sStrip NoFeedStrip(const sFeedStatus& feed, FeedOffer offer)
{
    const std::string sentence = "There is no feed on " + Address(BrokenPort(feed)) + '.';
    if (offer == FeedOffer::RecordedMarket)
        return {sentence, "Use the recorded market", StripAction::UseRecordedMarket};
    return {sentence, "Retry", StripAction::Connect};
}

sStrip FeedLostStrip(const std::string& time)
{
    return {"The feed was lost at " + time + "; prices stand.", "Reconnect", StripAction::Connect};
}

sStrip NoAnswerStrip(const sFeedStatus& feed, int seconds)
{
    return {"The feed on " + Address(feed.Lookup) + " has not answered for " + std::to_string(seconds) +
                " seconds.",
            "Retry", StripAction::Connect};
}

sStrip UnknownSymbolStrip(const std::string& symbol)
{
    return {"The feed knows no " + symbol + '.', "", StripAction::None};
}

sStrip NoDataStrip(const std::string& symbol, int dataType)
{
    return {symbol + " has no " + PointsName(dataType) + " here.", "", StripAction::None};
}

sStrip EmptyRangeStrip(const std::string& symbol, int dataType)
{
    return {symbol + " has no " + PointsName(dataType) + " in the range that was asked for.", "",
            StripAction::None};
}

sStrip OtherDataStrip(const std::string& symbol, int dataType, int otherType)
{
    return {symbol + " has no " + PointsName(dataType) + " here, it has " + PointsName(otherType) + '.',
            ShowButton(otherType), StripAction::ShowDataType, otherType};
}

sStrip SimulatedStrip(const std::string& symbol)
{
    return {symbol + ": simulated live trades, not a genuine market.", "", StripAction::None};
}

sStrip SettingsNotKeptStrip()
{
    return {"The settings could not be kept: the settings file cannot be written.", "", StripAction::None};
}

} // namespace zantroq
