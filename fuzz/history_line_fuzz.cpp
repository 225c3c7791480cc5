// Arbitrary bytes as history lines: cutter, handler, series. The first byte selects the request's kind and
// switches. A line that begins with '@' gets the request's own identifier instead, so that the fuzzer need
// not guess the handle.
#include "market/HistoryReply.h"
#include "market/LineCutter.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

using namespace zantroq;

namespace {

void CheckAligned(const CChartHistRequest& request)
{
    const int count = request.GetCount(FieldTime);
    for (int field = FieldTime; field < FieldCount; ++field)
        if (request.GetCount(field) != count && request.GetCount(field) != 0)
            std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    CChartHistRequest request;
    request.SetRequestKind(data[0] % 10);
    request.SetExtendedTrades((data[0] & 0x10) != 0);
    request.SetPriceFormat((data[0] & 0x20) != 0 ? 0 : 14);
    if ((data[0] & 0x40) != 0) {
        request.SetBeginDate("20140102");
        request.SetEndFilterTime("16000");
    }
    BeginReply(request);
    CHistoryReply reply(nullptr);
    const std::string identifier = std::to_string(data[0] % 10) + std::to_string(request.Handle());
    CLineCutter cutter(CLineCutter::StreamCapacity);
    for (std::size_t at = 1; at < size;) {
        const auto room = cutter.Room();
        const std::size_t part = std::min({room.size(), size - at, std::size_t{1} + data[at] % 97});
        if (part == 0)
            break;
        std::memcpy(room.data(), data + at, part);
        at += part;
        cutter.Received(static_cast<int>(part), [&](std::string_view line) {
            try {
                if (!line.empty() && line.front() == '@')
                    reply.OnLineOfMany(identifier + std::string(line.substr(1)));
                else
                    reply.OnLineOfMany(line);
            } catch (const std::invalid_argument&) {
            }
        });
        reply.EndOfLines();
    }
    CheckAligned(request);
    return 0;
}
