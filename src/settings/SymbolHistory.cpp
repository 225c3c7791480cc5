#include "settings/SymbolHistory.h"

#include "settings/SettingsStore.h"
#include "settings/WindowPosition.h"

namespace zantroq {
namespace {

std::string NameOf(std::size_t place)
{
    return "SQ" + std::to_string(place);
}

} // namespace

void CSymbolHistory::LoadSymbolHistory()
{
    m_items.clear();
    CSettingsStore store(m_key);
    for (std::size_t place = 0; place < MostSymbols; ++place)
        if (std::string symbol; store.ReadString(NameOf(place), symbol) && !symbol.empty())
            m_items.push_back(std::move(symbol));
}

void CSymbolHistory::AddSymbol(const std::string& symbol)
{
    if (symbol.empty())
        return;
    std::erase(m_items, symbol);
    CSettingsStore store(m_key);
    if (m_items.size() >= MostSymbols) {
        store.DeleteValue(WindowRectName(m_items.back()));
        store.DeleteValue(WindowMaximizedName(m_items.back()));
        m_items.pop_back();
    }
    m_items.insert(m_items.begin(), symbol);
    for (std::size_t place = 0; place < m_items.size(); ++place)
        store.WriteString(NameOf(place), m_items[place]);
}

} // namespace zantroq
