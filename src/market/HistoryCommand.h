// The text that asks the feed's lookup port for history. Pure, on the thread that owns the request's
// parameters.
#pragma once

#include <string>

namespace zantroq {

class CChartHistRequest;

inline constexpr const char* SetClientNameLine = "S,SET CLIENT NAME,Zantroq Chart\n";
inline constexpr const char* SetProtocolLine = "S,SET PROTOCOL,5.0\n";

// The one command line of the request, ended by a line feed; empty for a kind outside 0 to 9. Its identifier
// is the kind's digit followed by the request's handle.
std::string HistoryCommand(const CChartHistRequest& request);

// What goes out in one send: the protocol line and the command.
std::string HistoryRequestText(const CChartHistRequest& request);

} // namespace zantroq
