// Asks the feed what it has of a symbol: one tick, one minute bar and one daily bar. For a chart whose data the
// feed refused, so that the user learns what the feed would show. Chart window's thread.
#pragma once

#include "conveniences/FeedWatch.h"
#include "window/ChartFeed.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace zantroq {

class CChartHistRequest;

class CDataProbe
{
public:
    // Whether the feed answered a request with an error.
    using RefusalCheck = std::function<bool(const CChartHistRequest&)>;

    CDataProbe(IChartFeed& feed, RefusalCheck isRefused);
    ~CDataProbe();
    CDataProbe(const CDataProbe&) = delete;
    CDataProbe& operator=(const CDataProbe&) = delete;

    // Asks, unless it has asked for this symbol and type since the last Forget.
    void Ask(const std::string& symbol, int dataType);
    void Forget();

    // Found once every answer has come: the type that was asked for if the feed has it, else the finest that
    // it has.
    ProbeState State();
    int FoundType() const { return m_foundType; }

private:
    enum class Answer
    {
        Open,
        Has,
        HasNot
    };

    struct sQuestion
    {
        std::unique_ptr<CChartHistRequest> Request;
        Answer Known = Answer::Open;
    };

    void Send(sQuestion& question, int kind);
    void Look(sQuestion& question);

    IChartFeed& m_feed;
    const RefusalCheck m_isRefused;
    std::string m_symbol;
    int m_dataType = 0, m_foundType = 0;
    std::array<sQuestion, 3> m_questions; // by data type: ticks, minutes, days
};

} // namespace zantroq
