// The commands that request history from the feed's lookup port. Pure functions; on the thread that owns the
// request's parameters.
#pragma once

#include <string>

namespace zantroq {

class CChartHistRequest;

inline constexpr const char* SetClientNameLine = "S,SET CLIENT NAME,Zantroq Chart\n";
inline constexpr const char* SetProtocolLine = "S,SET PROTOCOL,5.0\n";

// The command line of the request, ending in a line feed; empty for a kind outside 0 to 9. Its identifier is
// the digit of the kind followed by the request's handle.
std::string HistoryCommand(const CChartHistRequest& request);

// The text of one send: the protocol line and the command.
std::string HistoryRequestText(const CChartHistRequest& request);

} // namespace zantroq
