// Arbitrary bytes as replies of the lookup port, in pieces of any size: replies of reference tables and of a
// search.
#include "search/FindReply.h"
#include "search/LookupReply.h"
#include "search/SymbolRequest.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace zantroq;

namespace {

struct sNotify : ISearchNotify
{
    int Ends = 0;
    void PostResults(int) override { ++Ends; }
    void OnNoAnswer() override {}
};

struct sMaker : ISymbolLookupMaker
{
    struct sNothing : ISymbolLookup
    {
        void Find(const std::string&, const std::string&, const std::string&, const std::string&,
                  const std::string&) override
        {
        }
        void Stop() override {}
    };
    ISymbolLookupEvents* Events = nullptr;
    std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) override
    {
        Events = &events;
        return std::make_unique<sNothing>();
    }
};

void ReadTable(const CLookupReply& reply)
{
    reply.ForEachRow([](unsigned id, CRowTokens& tokens) {
        if (id >= LookupRows)
            std::abort();
        for (std::string_view token; tokens.Next(token);)
            if (token.empty() || token.find_first_of(",\n") != std::string_view::npos)
                std::abort();
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CLookupReply table;
    sNotify notify;
    sMaker maker;
    CSymbolRequest request(notify, maker);
    request.Connect();
    CFindReply find(7, *maker.Events);
    bool tableOpen = true, findOpen = true;
    for (std::size_t at = 0; at < size && (tableOpen || findOpen);) {
        const std::size_t part = std::min(size - at, std::size_t{1} + data[at] % 97);
        const std::string_view piece = bytes.substr(at, part);
        tableOpen = tableOpen && table.Take(piece);
        findOpen = findOpen && find.Take(piece);
        at += part;
    }
    ReadTable(table);
    if (notify.Ends != (findOpen ? 0 : 1))
        std::abort();
    for (int row = 0; row < request.GetCount(); ++row)
        if (request.GetColumn(row, 0).find(',') != std::string::npos)
            std::abort();
    return 0;
}
