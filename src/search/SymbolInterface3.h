// A client of the symbol lookup. Window's thread.
#pragma once

#include "search/SymbolLookup.h"

namespace zantroq {

class CSymbolInterface3 : private ISymbolLookupEvents
{
public:
    explicit CSymbolInterface3(ISymbolLookupMaker& maker) : m_maker(maker) {}
    ~CSymbolInterface3() override = default;

    // Creates the lookup once and keeps it for the life of this client. Returns false if the feed cannot be
    // reached.
    bool Connect()
    {
        if (m_lookup == nullptr)
            m_lookup = m_maker.Make(*this);
        return m_lookup != nullptr;
    }

protected:
    void OnResultLine(std::string_view) override {}
    void OnEvent2() override {}
    void OnEvent3() override {}
    void OnErrorLine(std::string_view) override {}
    void OnNoAnswer() override {}

    ISymbolLookup* Lookup() const { return m_lookup.get(); } // null before a successful Connect
    void DropLookup() { m_lookup.reset(); }                  // for destructors: no event follows

private:
    ISymbolLookupMaker& m_maker;
    std::unique_ptr<ISymbolLookup> m_lookup;
};

} // namespace zantroq
