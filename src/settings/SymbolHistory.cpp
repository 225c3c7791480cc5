#include "settings/SymbolHistory.h"

#include "settings/SettingsStore.h"
#include "settings/WindowPosition.h"

#include <algorithm>
#include <optional>

namespace zantroq {
namespace {

std::string NameOf(std::size_t place)
{
    return "SQ" + std::to_string(place);
}

using Symbols = std::vector<std::string>;

// Returns nothing if they cannot be read.
std::optional<Symbols> StoredSymbols(ISettingsKey& key)
{
    Symbols symbols;
    CSettingsStore store(key);
    for (std::size_t place = 0; place < CSymbolHistory::MostSymbols; ++place) {
        std::string symbol;
        if (store.ReadString(NameOf(place), symbol) == ReadResult::Unreadable)
            return std::nullopt;
        if (!symbol.empty())
            symbols.push_back(std::move(symbol));
    }
    return symbols;
}

void Append(Symbols& symbols, Symbols older)
{
    for (std::string& symbol : older)
        if (std::ranges::find(symbols, symbol) == symbols.end())
            symbols.push_back(std::move(symbol));
}

void DropLast(ISettingsKey& key, Symbols& symbols)
{
    key.Delete(WindowRectName(symbols.back()));
    key.Delete(WindowMaximizedName(symbols.back()));
    symbols.pop_back();
}

bool Forget(ISettingsKey& key, const std::string& name)
{
    return key.Read(name).Result() == ReadResult::Missing || key.Delete(name);
}

// Stores the list and deletes all entries after it. Without that, a longer list of another window, gaps or
// duplicates in the store would leave entries that are already in the list.
bool StoreAll(ISettingsKey& key, const Symbols& symbols)
{
    bool isStored = true;
    for (std::size_t place = 0; place < symbols.size(); ++place)
        isStored = key.Write(NameOf(place), symbols[place]) && isStored;
    for (std::size_t place = symbols.size(); place < CSymbolHistory::MostSymbols; ++place)
        isStored = Forget(key, NameOf(place)) && isStored;
    return isStored;
}

} // namespace

void CSymbolHistory::LoadSymbolHistory()
{
    auto stored = StoredSymbols(m_key);
    m_isUnread = !stored;
    m_items = stored ? std::move(*stored) : Symbols();
}

void CSymbolHistory::AddSymbol(const std::string& symbol)
{
    if (symbol.empty())
        return;
    std::erase(m_items, symbol);
    m_items.insert(m_items.begin(), symbol);
    if (m_isUnread) {
        if (auto stored = StoredSymbols(m_key)) {
            Append(m_items, std::move(*stored));
            m_isUnread = false;
        }
    }
    while (m_items.size() > MostSymbols)
        DropLast(m_key, m_items);
    if (!m_isUnread) {
        StoreAll(m_key, m_items);
        return;
    }
    m_key.Make(NameOf(0), [items = m_items](ISettingsKey& key) {
        auto stored = StoredSymbols(key);
        if (!stored)
            return false;
        Symbols all = items;
        Append(all, std::move(*stored));
        while (all.size() > MostSymbols)
            DropLast(key, all);
        return StoreAll(key, all);
    });
}

} // namespace zantroq
