// The recently used symbols, newest first, kept under "SQ0" to "SQ19". Chart window's thread.
#pragma once

#include "platform/SettingsKey.h"

#include <string>
#include <vector>

namespace zantroq {

inline constexpr int SymbolHistoryLength = 20;

std::vector<std::string> LoadSymbolHistory(ISettingsKey& key);

// Puts a symbol on top and stores the list, which is the answer. A symbol already listed moves up; the last
// of twenty others falls out, and with it the window position stored under its bare name (positions stand
// under window titles, so that of a dropped symbol stays). An empty symbol changes nothing.
std::vector<std::string> AddSymbol(ISettingsKey& key, std::vector<std::string> symbols,
                                   const std::string& symbol);

} // namespace zantroq
