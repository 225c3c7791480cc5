// A request and the handlers of both sockets, without sockets: lines go in, the series comes out.
#pragma once

#include "market/ChartHistRequest.h"
#include "market/HistoryReply.h"
#include "market/Level1Stream.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace zantroq::test {

// A level 1 line by wire position.
class CLevel1Line
{
public:
    explicit CLevel1Line(std::string type = "Q", std::string symbol = "SYM") : m_fields(23)
    {
        m_fields[0] = std::move(type);
        m_fields[1] = std::move(symbol);
    }
    CLevel1Line& Set(int position, std::string text)
    {
        m_fields.at(static_cast<std::size_t>(position)) = std::move(text);
        return *this;
    }
    std::string Text() const
    {
        std::string line = m_fields[0];
        for (std::size_t i = 1; i < m_fields.size(); ++i)
            line += ',' + m_fields[i];
        return line;
    }

private:
    std::vector<std::string> m_fields;
};

// A trade with the fields that the merge rules read.
inline CLevel1Line Trade(std::string date, std::string time, std::string price, std::string size = "100",
                         std::string contents = "C", std::string totalVolume = "5000")
{
    CLevel1Line line;
    line.Set(2, totalVolume).Set(3, size).Set(10, time).Set(14, date).Set(15, price).Set(21, contents);
    return line;
}

class CSeriesFixture
{
public:
    explicit CSeriesFixture(int kind, std::string symbol = "SYM")
        : m_request(std::make_unique<CChartHistRequest>()),
          m_level1(m_watches, [this](std::string_view removed) { Removed.emplace_back(removed); }),
          m_reply([this] { m_level1.ReplayPending(); })
    {
        m_request->SetSymbol(symbol);
        m_request->SetRequestKind(kind);
        m_watches.Add(symbol, EnterRequest(*m_request));
        BeginReply(*m_request);
    }

    CChartHistRequest& Request() { return *m_request; }
    int Count() const { return m_request->GetCount(0); }
    CWatchTable& Watches() { return m_watches; }
    std::unique_ptr<CChartHistRequest> TakeRequest() { return std::move(m_request); }

    std::string Identifier(int kind) const
    {
        return std::to_string(kind) + std::to_string(m_request->Handle());
    }

    // Feeds a line of this request, given without its identifier; parsed by the request's own kind.
    void Feed(const std::string& rest) { FeedAs(m_request->GetRequestKind(), rest); }
    void FeedAs(int kind, const std::string& rest) { RawLine(Identifier(kind) + ',' + rest); }
    void RawLine(const std::string& line) { m_reply.OnLine(line); }
    // Feeds a line as the socket does for the lines of one receive; EndOfLines must follow.
    void LineOfMany(const std::string& line) { m_reply.OnLineOfMany(line); }
    void Complete() { Feed("!ENDMSG!,"); }
    void EndOfLines() { m_reply.EndOfLines(); }
    void Live(const CLevel1Line& line) { m_level1.OnLine(line.Text()); }
    void LiveLine(const std::string& line) { m_level1.OnLine(line); }

    sHIST_POINT Point(int index) const
    {
        sHIST_POINT point;
        m_request->GetPoint(index, point);
        return point;
    }
    std::string TimeText(int index) const
    {
        return FormatTime(m_request->GetTimeAt(index), "%Y-%m-%d %H:%M:%S");
    }

    std::vector<std::string> Removed; // symbols whose updates the feed was asked to stop

private:
    std::unique_ptr<CChartHistRequest> m_request;
    CWatchTable m_watches;
    CLevel1Stream m_level1;
    CHistoryReply m_reply;
};

} // namespace zantroq::test
