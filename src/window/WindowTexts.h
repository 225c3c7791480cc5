// The words of the window's messages, captions and questions. Pure functions, any thread.
#pragma once

#include "market/HistoryRecords.h"
#include "settings/ChartSettings.h"

#include <string>

namespace zantroq {

// "Tick" to "Monthly"; empty for another number.
std::string DataTypeName(int dataType);
// The minutes of an interval place, 1 for a place outside the list.
int IntervalMinutesAt(int intervalIndex);

std::string RetrievingText(int dataType, int count);
// "5 - Minute" for intervals, else the type's name.
std::string ChartCaption(const sRequestSettings& request);
// "5 - SYMBOL" for intervals, else the symbol.
std::string TitleLine(const sRequestSettings& request, const std::string& symbol);
std::string WindowTitle(const std::string& symbol);

std::string TickDeletionText(const sHIST_DATA& point, const std::string& minuteTime, const std::string& date);
std::string IntervalDeletionText(int dataType, const std::string& prices, const std::string& time,
                                 const std::string& date);

// What the symbol box makes of a text as it comes: upper case (ASCII), and with nothing selected at most 30
// characters.
std::string SymbolBoxText(const std::string& typed, bool textSelected);
// The symbol box's text for a key pressed over a pane; empty for a key that does not start a symbol.
std::string SymbolFromKey(int code);

} // namespace zantroq
