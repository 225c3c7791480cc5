// The two reference tables of the lookup port: listed markets and security types. Each is fetched at its
// first use over a short connection, which blocks the caller until the reply is complete or no byte has
// arrived for five seconds. Window's thread, except the lookups, which take Lock and may be called on any
// thread.
#pragma once

#include "market/ZantroPorts.h"
#include "platform/BlockingConnection.h"
#include "platform/Lock.h"
#include "platform/WindowServices.h"
#include "search/LookupReply.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace zantroq {

struct sLookupSetup
{
    std::shared_ptr<ISettingsKey> FeedKey; // the feed's ports; null behaves like a key that cannot be opened
    std::unique_ptr<IBlockingConnection> Connection; // null: a connection of the system
    IMessageBox* Box = nullptr; // reports that the system has no sockets left; may be null
};

class CLookupSystemInfo
{
public:
    explicit CLookupSystemInfo(sLookupSetup setup);
    virtual ~CLookupSystemInfo();

    // A copy of the row's text; empty for an id outside 0 to 255 and for a row that the reply did not
    // contain. The last text of a row may end with a CR. Loads the table if it is not loaded; each call tries
    // once.
    std::string GetShortName(int id);
    std::string GetLongName(int id);
    // Number of rows in the reply, which may differ from the number of ids in use. Loads the table like the
    // lookups.
    int GetRowCount();
    // True once a reply has been read, even an empty one. False if the feed could not be reached.
    bool Loaded() const;

protected:
    static constexpr std::size_t ShortName = 0, LongName = 1;

    // Returns false if the connection could not be made.
    virtual bool SendCommand(std::string_view command, std::uint16_t port);
    // Receives until the reply ends, the peer closes or the time limit expires; then closes the connection.
    virtual void ReadReply();
    virtual void Load() REQUIRES(Lock) = 0;
    // For Load: fetches the reply to `command` and passes the tokens of each row to Store.
    void LoadWith(std::string_view command) REQUIRES(Lock);
    // Stores the tokens of a row.
    virtual void Store(unsigned id, CRowTokens& tokens) REQUIRES(Lock) = 0;
    virtual const std::string& Text(unsigned id, std::size_t place) const REQUIRES(Lock) = 0;

    mutable CLock Lock;

private:
    std::string TextOf(int id, std::size_t place);

    const std::unique_ptr<IBlockingConnection> m_socket;
    CLookupReply m_reply;
    CZantroPorts m_ports;
    bool m_loaded GUARDED_BY(Lock) = false;
    int m_rowCount GUARDED_BY(Lock) = 0;
};

// Command SLM. A row has a short name, a long name and two texts that are not used.
class CListedMarkets : public CLookupSystemInfo
{
public:
    using CLookupSystemInfo::CLookupSystemInfo;

protected:
    void Load() override REQUIRES(Lock) { LoadWith("SLM\r\n"); }
    void Store(unsigned id, CRowTokens& tokens) override REQUIRES(Lock);
    const std::string& Text(unsigned id, std::size_t place) const override REQUIRES(Lock)
    {
        return m_rows[id][place];
    }

private:
    std::array<std::array<std::string, 4>, LookupRows> m_rows GUARDED_BY(Lock);
};

// Command SST. A row has a short name and a long name.
class CSecurityTypes : public CLookupSystemInfo
{
public:
    using CLookupSystemInfo::CLookupSystemInfo;

protected:
    void Load() override REQUIRES(Lock) { LoadWith("SST\r\n"); }
    void Store(unsigned id, CRowTokens& tokens) override REQUIRES(Lock);
    const std::string& Text(unsigned id, std::size_t place) const override REQUIRES(Lock)
    {
        return m_rows[id][place];
    }

private:
    std::array<std::array<std::string, 2>, LookupRows> m_rows GUARDED_BY(Lock);
};

} // namespace zantroq
