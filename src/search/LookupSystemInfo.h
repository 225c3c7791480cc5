// The two reference tables of the lookup port: listed markets and security types. Each is fetched once, on
// first use, over a short connection of its own. That blocks the caller until the reply has come, for at most
// five seconds without a byte. Window's thread; the lookups take Lock and may come from any thread.
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
    std::shared_ptr<ISettingsKey> FeedKey; // the feed's ports; null reads like a key that cannot be opened
    std::unique_ptr<IBlockingConnection> Connection; // null: the system's own
    IMessageBox* Box = nullptr; // says when the system has no sockets to give; may be missing
};

class CLookupSystemInfo
{
public:
    explicit CLookupSystemInfo(sLookupSetup setup);
    virtual ~CLookupSystemInfo();

    // A copy of the row's text; empty for an id of 256 or more, a negative one, and a row that no line
    // filled. The last text of a row may end with a CR. Loads the table where it has not been loaded: one
    // attempt for each call.
    std::string GetShortName(int id);
    std::string GetLongName(int id);
    // The rows taken from the reply, which may be more or fewer than the ids in use. Loads the table like the
    // lookups, so that the first to ask for the count gets that of a table with rows.
    int GetRowCount();
    // Whether a reply has been taken, be it an empty one. False: the feed could not be reached.
    bool Loaded() const;

protected:
    static constexpr std::size_t ShortName = 0, LongName = 1;

    // Whether the connection was made.
    virtual bool SendCommand(std::string_view command, std::uint16_t port);
    // Receives until the reply ends, the peer closes, or nothing comes any more; closes the connection.
    virtual void ReadReply();
    virtual void Load() REQUIRES(Lock) = 0;
    // For Load: fetches the reply to `command` and hands each row's tokens to Store.
    void LoadWith(std::string_view command) REQUIRES(Lock);
    // Takes what the row keeps of its tokens.
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

// Command SLM. A row: short name, long name, and two texts that are kept and read by nothing.
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

// Command SST. A row: short name and long name.
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
