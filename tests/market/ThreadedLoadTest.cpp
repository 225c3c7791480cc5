// The worker and one series under load: a feed sends a long reply and live trades together while the window's
// thread reads, sends and watches. Meant for ThreadSanitizer; checks the counts in every build.
#include "market/ManagerThreadHolder.h"
#include "market/SeriesFixture.h"
#include "support/ScriptedFeed.h"

#include <atomic>
#include <gtest/gtest.h>

using namespace zantroq;
using namespace zantroq::test;

namespace {

constexpr int Lines = 2000000;
constexpr int LiveTrades = 20000;

} // namespace

TEST(ThreadedLoad, TwoMillionLinesAndLiveTradesTogether)
{
    CScriptedFeed feed;
    CManagerThreadHolder holder;
    holder.StartManagerThread(feed.Key());
    auto loading = std::make_unique<CChartHistRequest>(), live = std::make_unique<CChartHistRequest>();
    for (CChartHistRequest* request : {loading.get(), live.get()}) {
        request->SetSymbol("SYM");
        request->SetRequestKind(TicksByDatapoints);
        request->SetDataDirection("1");
        holder.WatchSymbol(*request);
        holder.SendHistoryRequest(*request);
    }
    ASSERT_TRUE(feed.Lookup.AwaitReceived("0" + std::to_string(live->Handle()) + "\n"));
    ASSERT_TRUE(feed.Level1.AwaitReceived("wSYM\r\nwSYM\r\n"));
    feed.Lookup.Send("0" + std::to_string(live->Handle()) + ",!ENDMSG!,\r\n");
    ASSERT_TRUE(AwaitTrue([&] { return live->IsComplete(); }));

    std::thread history([&] {
        const std::string identifier = "0" + std::to_string(loading->Handle());
        const std::string line = identifier + ",2014-01-02 09:30:01.250,1.5,1,2,1,2,3,C\n";
        std::string block;
        for (int i = 0; i < 1000; ++i)
            block += line;
        for (int i = 0; i < Lines / 1000; ++i)
            feed.Lookup.Send(block);
        feed.Lookup.Send(identifier + ",!ENDMSG!,\r\n");
    });
    std::thread trades([&] {
        const std::string line = Trade("01/02/2014", "09:30:01.250", "1.5").Text() + "\r\n";
        for (int i = 0; i < LiveTrades; ++i)
            feed.Level1.Send(line);
    });

    CChartHistRequest other;
    other.SetSymbol("OTHER");
    sHIST_DATA point;
    while (!loading->IsComplete() || live->GetCount(FieldTime) < LiveTrades) {
        for (CChartHistRequest* request : {loading.get(), live.get()}) {
            const int count = request->GetCount(FieldTime);
            ASSERT_LE(count, request == live.get() ? LiveTrades + 1 : Lines + LiveTrades);
            if (count > 0)
                request->GetChartPoint(count - 1, point);
            double prices[16];
            request->CopyDoubles(FieldLast, count - 16, 16, prices);
            request->GetTimeAt(count / 2);
        }
        holder.WatchSymbol(other);
        holder.UnwatchSymbol(other);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    history.join();
    trades.join();
    // The line kept for the loading chart is replayed to every chart of its symbol, so this one may have it
    // twice.
    EXPECT_GE(live->GetCount(FieldTime), LiveTrades);
    EXPECT_LE(live->GetCount(FieldTime), LiveTrades + 1);
    EXPECT_GE(loading->GetCount(FieldTime), Lines); // live trades follow once it is complete
    EXPECT_EQ(loading->GetCount(FieldConditions), loading->GetCount(FieldTime));
    holder.UnwatchSymbol(*loading);
    GiveUpRequest(std::move(loading));
    holder.UnwatchSymbol(*live);
    holder.StopManagerThread();
}

TEST(ThreadedLoad, ARequestGivenUpInTheMiddleOfItsReplyIsFreedWhenTheWorkerStops)
{
    CScriptedFeed feed; // never answers
    const int before = CountRequests();
    CManagerThreadHolder holder;
    holder.StartManagerThread(feed.Key());
    auto request = std::make_unique<CChartHistRequest>();
    request->SetSymbol("SYM");
    request->SetRequestKind(TicksByDatapoints);
    holder.SendHistoryRequest(*request);
    GiveUpRequest(std::move(request));
    EXPECT_EQ(CountRequests(), before + 1) << "its reply may still end";
    holder.StopManagerThread();
    EXPECT_EQ(CountRequests(), before);
}

TEST(ThreadedLoad, WindowsComeAndGoWhileTheirRepliesArrive)
{
    CScriptedFeed feed;
    feed.Lookup.SetResponder([](std::string_view line) -> std::string {
        if (line.substr(0, 3) != "HTX")
            return {};
        const std::string identifier(line.substr(line.rfind(',') + 1));
        std::string reply;
        for (int i = 0; i < 200; ++i)
            reply += identifier + ",2014-01-02 09:30:01.250,1.5,1,2,1,2,3,C\r\n";
        return reply + identifier + ",!ENDMSG!,\r\n";
    });
    const int before = CountRequests();
    CManagerThreadHolder holder;
    holder.StartManagerThread(feed.Key());
    for (int i = 0; i < 300; ++i) {
        auto request = std::make_unique<CChartHistRequest>();
        request->SetSymbol("SYM");
        request->SetRequestKind(TicksByDatapoints);
        holder.WatchSymbol(*request);
        holder.SendHistoryRequest(*request);
        if (i % 3 == 0)
            AwaitTrue([&] { return request->IsComplete(); });
        else if (i % 3 == 1)
            AwaitTrue([&] { return request->GetCount(FieldTime) > 0; });
        holder.UnwatchSymbol(*request);
        GiveUpRequest(std::move(request));
    }
    EXPECT_TRUE(AwaitTrue([&] { return CountRequests() == before; })) << "each request is freed by one side";
    holder.StopManagerThread();
}
