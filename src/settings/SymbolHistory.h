// The recently used symbols, newest first, kept as "SQ0" to "SQ19". Lives on the chart window's thread.
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

    // Takes the stored symbols in order; empty and missing ones are left out. What cannot be read stands
    // behind the symbols added since, as soon as it can be read.
    void LoadSymbolHistory();

    // Puts the symbol at the top, takes it away from where it stood, and writes the whole list; values behind
    // its end go. An empty symbol changes nothing. When the list is full the last entry goes, and with it the
    // two values "RectPosition." + the entry and the same +
    // ".Maximized". Window positions are stored by title ("XYZ - Chart"), so these are not the values of that
    // symbol's window: its position stays, and is meant to.
    void AddSymbol(const std::string& symbol);

    const std::vector<std::string>& Items() const { return m_items; }

private:
    CRetryingKey& m_key;
    std::vector<std::string> m_items;
    bool m_isUnread = false; // the stored symbols could not be read yet
};

} // namespace zantroq
