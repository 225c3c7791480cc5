#include "conveniences/FeedWatch.h"

namespace zantroq {

namespace {

bool IsAway(const sPortStatus& port)
{
    return port.State == PortState::Refused || port.State == PortState::Lost;
}

bool IsAway(const sFeedStatus& feed)
{
    return IsAway(feed.Lookup) || IsAway(feed.Level1);
}

} // namespace

sFeedView CFeedWatch::Observe(const sFeedObservation& seen)
{
    NoteConnection(seen);
    sFeedView view;
    view.Connect = IsConnectDue(seen);
    view.AskAgain = IsAskDue(seen);
    view.PricesStale = !m_lostAt.empty() && !seen.Symbol.empty();
    view.Probe = seen.Refused && seen.Feed.Connected();
    view.Strip = StripFor(seen);
    return view;
}

void CFeedWatch::NoteConnection(const sFeedObservation& seen)
{
    const bool isNew = m_seen && seen.Feed.Connection != m_connection;
    if (!m_seen)
        m_askedOn = seen.Feed.Connection;
    m_seen = true;
    m_connection = seen.Feed.Connection;
    if (seen.Feed.Connected()) {
        m_wasConnected = true;
        m_lostAt.clear();
        m_reconnection.Reset();
        return;
    }
    if (!IsAway(seen.Feed))
        return;
    if (isNew)
        m_reconnection.AttemptFailed(seen.Now);
    else
        m_reconnection.FeedAway(seen.Now);
    m_wasConnected = m_wasConnected || seen.Feed.Lookup.State == PortState::Lost ||
                     seen.Feed.Level1.State == PortState::Lost;
    if (m_wasConnected && m_lostAt.empty())
        m_lostAt = seen.TimeOfDay;
}

bool CFeedWatch::IsConnectDue(const sFeedObservation& seen) const
{
    return ReconnectByItself && m_reconnection.IsDue(seen.Now);
}

bool CFeedWatch::IsAskDue(const sFeedObservation& seen)
{
    if (!seen.Feed.Connected() || m_askedOn == m_connection)
        return false;
    m_askedOn = m_connection;
    return !seen.Symbol.empty();
}

bool CFeedWatch::IsSilent(const sFeedObservation& seen)
{
    if (!seen.Loading || !seen.Feed.Connected()) {
        m_waiting.reset();
        return false;
    }
    if (!m_waiting || seen.Points != m_waitingPoints) {
        m_waiting = seen.Now;
        m_waitingPoints = seen.Points;
    }
    return seen.Now - *m_waiting >= NoAnswerSeconds;
}

sStrip CFeedWatch::StripFor(const sFeedObservation& seen)
{
    const bool silent = IsSilent(seen);
    if (IsAway(seen.Feed))
        return AwayStrip(seen);
    if (seen.Refused && !seen.Symbol.empty())
        return RefusalStrip(seen);
    if (silent)
        return NoAnswerStrip(seen.Feed, NoAnswerSeconds);
    if (seen.SettingsWaiting)
        return SettingsNotKeptStrip();
    return seen.Simulated ? SimulatedStrip(seen.Symbol) : sStrip();
}

sStrip CFeedWatch::AwayStrip(const sFeedObservation& seen) const
{
    if (!m_lostAt.empty())
        return FeedLostStrip(m_lostAt);
    return NoFeedStrip(seen.Feed, CanUseRecordings ? FeedOffer::RecordedMarket : FeedOffer::Retry);
}

sStrip CFeedWatch::RefusalStrip(const sFeedObservation& seen) const
{
    if (seen.Probe == ProbeState::Nothing)
        return UnknownSymbolStrip(seen.Symbol);
    if (seen.Probe == ProbeState::Open)
        return NoDataStrip(seen.Symbol, seen.DataType);
    if (seen.ProbeType == seen.DataType)
        return EmptyRangeStrip(seen.Symbol, seen.DataType);
    return OtherDataStrip(seen.Symbol, seen.DataType, seen.ProbeType);
}

} // namespace zantroq
