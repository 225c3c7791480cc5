// Arbitrary text read as a recording of each kind and as a symbol list; the result is built into longer bars
// and requested. The first byte selects the kind of recording.
#include "feed/markets/BarBuilder.h"
#include "feed/markets/RecordedMarket.h"
#include "feed/markets/Recording.h"
#include "feed/protocol/HistoryReplyWriter.h"

#include <cstdlib>

using namespace zantroq::feed;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    CTextLines lines(text), listLines(text);
    sRECORDING_REPORT report;
    std::vector<sFEED_TICK> ticks;
    std::vector<sFEED_BAR> minutes, daily;
    if (data[0] % 3 == 0)
        ticks = ReadTicks(lines, "fuzz", report);
    else
        (data[0] % 3 == 1 ? minutes : daily) =
            ReadBars(data[0] % 3 == 1 ? RecordingKind::Minutes : RecordingKind::Daily, lines, "fuzz", report);
    if (report.Problems.size() > report.SkippedRows ||
        report.Problems.size() > sRECORDING_REPORT::MaxProblems)
        std::abort();
    sRECORDING_REPORT listReport;
    for (const sLISTED_SYMBOL& listed : ReadSymbols(listLines, "fuzz", listReport))
        if (listed.Symbol.empty() || listed.MarketId < 0 || listed.MarketId > 255 ||
            (listed.Symbol + listed.Description).find(',') != std::string::npos)
            std::abort();
    const CRecordedMarket market(std::move(ticks), std::move(minutes), std::move(daily));
    for (const HistoryData kind : {HistoryData::Ticks, HistoryData::Intervals, HistoryData::Daily,
                                   HistoryData::Weekly, HistoryData::Monthly}) {
        sHISTORY_COMMAND command;
        command.Data = kind;
        command.Id = "1";
        command.IntervalSeconds = 300;
        command.Datapoints = 5;
        std::string reason;
        auto points = MakeHistoryPoints(market, command, reason);
        if (!points)
            continue;
        CHistoryReplyWriter reply(std::move(points), command);
        CWorkSlice slice = CWorkSlice::Unlimited();
        CTextBlock block;
        while (reply.Write(block, 1000, slice) != WorkProgress::Ended)
            block.Clear();
    }
    return 0;
}
