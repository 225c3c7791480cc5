// The recently used symbols, newest first, stored as "SQ0" to "SQ19". Window's thread.
#pragma once

#include "settings/RetryingKey.h"

#include <string>
#include <vector>

namespace zantroq {

class CSymbolHistory
{
public:
    static constexpr int MostSymbols = 20;

    explicit CSymbolHistory(CRetryingKey& key) : m_key(key) {} // the key must outlive the history

    // Loads the stored symbols in order and skips empty and missing ones. If they cannot be read now, they
    // are added after newer symbols once they can be read.
    void LoadSymbolHistory();

    // Moves or inserts the symbol at the top and stores the whole list; stored values after its end are
    // deleted. An empty symbol changes nothing. If the list is full, its last entry is dropped together with
    // the values "RectPosition." + entry and "RectPosition." + entry + ".Maximized". Window positions are
    // stored by title ("XYZ - Chart"), so these are not the position of the symbol's window, which stays;
    // this is intended.
    void AddSymbol(const std::string& symbol);

    const std::vector<std::string>& Items() const { return m_items; }

private:
    CRetryingKey& m_key;
    std::vector<std::string> m_items;
    bool m_isUnread = false; // the stored symbols could not be read yet
};

} // namespace zantroq
