// The symbol lookup that ships: it sends FIND lines to the feed's lookup port. Each search has its own short
// connection, which a worker thread reads, so that the window stays responsive. A search ends without an
// answer if its connection closes or receives no byte for five seconds.
#pragma once

#include "market/ZantroPorts.h"
#include "platform/BlockingConnection.h"
#include "platform/WindowThread.h"
#include "search/SymbolLookup.h"

#include <functional>
#include <memory>

namespace zantroq {

// Window's thread.
class CFindLookupMaker : public ISymbolLookupMaker
{
public:
    using TMakeConnection = std::function<std::unique_ptr<IBlockingConnection>()>;

    // `thread` must outlive the lookups made here. Without `makeConnection`, the system's connections are
    // used.
    CFindLookupMaker(std::shared_ptr<ISettingsKey> feedKey, IWindowThread& thread,
                     TMakeConnection makeConnection = nullptr);

    // Connects at once, which shows whether the feed is running; the first search uses that connection.
    std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) override;

private:
    CZantroPorts m_ports;
    IWindowThread& m_thread;
    const TMakeConnection m_makeConnection;
};

} // namespace zantroq
