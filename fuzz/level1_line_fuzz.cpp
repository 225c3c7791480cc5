// Arbitrary lines on the level 1 port, for one watched symbol "A" whose chart already has a bar. The first
// byte selects the request's kind and switches.
#include "market/Level1Stream.h"

#include <stdexcept>

using namespace zantroq;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    CChartHistRequest request;
    request.SetSymbol("A");
    request.SetRequestKind(data[0] % 10);
    request.SetIntervalSeconds(60);
    request.SetExtendedTrades((data[0] & 0x10) != 0);
    request.SetUseExchangeFormat((data[0] & 0x20) != 0);
    sHIST_POINT point;
    point.Time = MakeTime({2014, 1, 2, 9, 31, 0});
    request.AppendPoint(point);
    request.SetComplete((data[0] & 0x40) == 0);
    CWatchTable watches;
    watches.Add("A", EnterRequest(request));
    CLevel1Stream stream(watches, [](std::string_view) {});
    std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        try {
            stream.OnLine(text.substr(0, end));
        } catch (const std::invalid_argument&) {
        }
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
    }
    try {
        request.SetComplete(true);
        stream.ReplayPending();
    } catch (const std::invalid_argument&) {
    }
    return 0;
}
