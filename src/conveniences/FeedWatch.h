// Watches one chart's feed: what the strip has to say, whether the last price is stale, when to connect again,
// and when the chart must be asked for again. It only decides; the face observes and carries out. Chart
// window's thread.
#pragma once

#include "conveniences/FeedSentences.h"
#include "conveniences/Reconnection.h"
#include "market/FeedStatus.h"

#include <optional>
#include <string>

namespace zantroq {

// What a probe of the feed found out about a symbol whose data it refused.
enum class ProbeState
{
    Open,    // not asked, or not all answers have come
    Nothing, // the feed has no data of the symbol
    Found    // it has points of sFeedObservation::ProbeType
};

// One look at the chart and its feed.
struct sFeedObservation
{
    sFeedStatus Feed;
    double Now = 0;        // seconds of a clock that never goes back
    std::string TimeOfDay; // the user's local time, "14:03:10"
    std::string Symbol;    // of the chart that was asked for; empty: none was
    int DataType = 0;
    bool Loading = false;
    int Points = 0;       // of the series
    bool Refused = false; // the feed answered with an error, or with no point at all
    ProbeState Probe = ProbeState::Open;
    int ProbeType = 0;
    bool Simulated = false;       // the feed says so of the symbol, and nobody else tells the user
    bool SettingsWaiting = false; // a change could not be stored
};

struct sFeedView
{
    sStrip Strip;
    bool PricesStale = false; // the last price is not the market's
    bool Connect = false;     // to be done now
    bool AskAgain = false;    // the chart's data, on a new connection; to be done now
    bool Probe = false;       // ask the feed what it has of the symbol, unless that is under way
};

class CFeedWatch
{
public:
    static constexpr int NoAnswerSeconds = 10;

    bool ReconnectByItself = false;
    bool CanUseRecordings = false; // the host has a feed of its own to offer

    sFeedView Observe(const sFeedObservation& seen);

private:
    void NoteConnection(const sFeedObservation& seen);
    bool IsConnectDue(const sFeedObservation& seen) const;
    bool IsAskDue(const sFeedObservation& seen);
    bool IsSilent(const sFeedObservation& seen);
    sStrip StripFor(const sFeedObservation& seen);
    sStrip RefusalStrip(const sFeedObservation& seen) const;
    sStrip AwayStrip(const sFeedObservation& seen) const;

    CReconnection m_reconnection;
    bool m_seen = false;             // some connection was observed
    int m_connection = 0;            // observed last
    int m_askedOn = 0;               // the connection on which the chart was asked for
    bool m_wasConnected = false;     // to this feed, at some time
    std::string m_lostAt;            // time of day; empty: not lost
    std::optional<double> m_waiting; // since when the load has brought nothing
    int m_waitingPoints = 0;
};

} // namespace zantroq
