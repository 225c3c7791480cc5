// The lookup object that ships: it speaks the FIND line on the feed's lookup port. Each search has a short
// connection of its own, read by a worker, so that the window goes on while the answer comes. A search whose
// connection closes, or brings no byte for five seconds, ends without an answer.
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

    // The thread must outlive what is made here. No function: the system's own connections.
    CFindLookupMaker(std::shared_ptr<ISettingsKey> feedKey, IWindowThread& thread,
                     TMakeConnection makeConnection = nullptr);

    // Connects, which is how a feed that is not there shows; the first search uses that connection.
    std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) override;

private:
    CZantroPorts m_ports;
    IWindowThread& m_thread;
    const TMakeConnection m_makeConnection;
};

} // namespace zantroq
