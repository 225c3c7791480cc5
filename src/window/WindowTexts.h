// The texts of the window's messages, captions and questions. Pure functions, any thread.
#pragma once

#include "market/HistoryRecords.h"
#include "settings/ChartSettings.h"

#include <string>

namespace zantroq {

// "Tick" to "Monthly"; empty for any other number.
std::string DataTypeName(int dataType);
// The minutes of an interval index; 1 for an index outside the list.
int IntervalMinutesAt(int intervalIndex);

std::string RetrievingText(int dataType, int count);
// "5 - Minute" for intervals, otherwise the name of the type.
std::string ChartCaption(const sRequestSettings& request);
// "5 - SYMBOL" for intervals, otherwise the symbol.
std::string TitleLine(const sRequestSettings& request, const std::string& symbol);
std::string WindowTitle(const std::string& symbol);

std::string TickDeletionText(const sHIST_DATA& point, const std::string& minuteTime, const std::string& date);
std::string IntervalDeletionText(int dataType, const std::string& prices, const std::string& time,
                                 const std::string& date);

// Whether the symbol box has selected text when a character is typed.
enum class TypedOver
{
    Nothing,
    Selection
};

// The symbol box's form of typed text: upper case (ASCII), and at most 30 characters if nothing is selected.
std::string SymbolBoxText(const std::string& typed, TypedOver over = TypedOver::Nothing);
// The symbol box's text after a key was pressed over a pane; empty if the key does not start a symbol.
std::string SymbolFromKey(int code);

} // namespace zantroq
