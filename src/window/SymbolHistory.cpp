#include "window/SymbolHistory.h"

#include <algorithm>

namespace zantroq {

namespace {

std::string EntryName(std::size_t place)
{
    return "SQ" + std::to_string(place);
}

} // namespace

std::vector<std::string> LoadSymbolHistory(ISettingsKey& key)
{
    std::vector<std::string> symbols;
    for (std::size_t place = 0; place < SymbolHistoryLength; ++place) {
        const auto value = key.Read(EntryName(place));
        const auto* text = value ? std::get_if<std::string>(&*value) : nullptr;
        if (text != nullptr && !text->empty())
            symbols.push_back(*text);
    }
    return symbols;
}

std::vector<std::string> AddSymbol(ISettingsKey& key, std::vector<std::string> symbols,
                                   const std::string& symbol)
{
    if (symbol.empty())
        return symbols;
    std::erase(symbols, symbol);
    if (symbols.size() >= SymbolHistoryLength) {
        key.Delete("RectPosition." + symbols.back());
        key.Delete("RectPosition." + symbols.back() + ".Maximized");
        symbols.pop_back();
    }
    symbols.insert(symbols.begin(), symbol);
    for (std::size_t place = 0; place < symbols.size(); ++place)
        key.Write(EntryName(place), symbols[place]);
    return symbols;
}

} // namespace zantroq
