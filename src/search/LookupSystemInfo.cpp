#include "search/LookupSystemInfo.h"

#include <vector>

namespace zantroq {

namespace {

constexpr int BlockSize = 65'535;

template<std::size_t TPlaces> void StoreTokens(std::array<std::string, TPlaces>& row, CRowTokens& tokens)
{
    // If a line has too few tokens, the rest of an earlier row with the same id stays.
    std::string_view token;
    for (std::string& text : row) {
        if (!tokens.Next(token))
            return;
        text = token;
    }
}

} // namespace

CLookupSystemInfo::CLookupSystemInfo(sLookupSetup setup)
    : m_socket(setup.Connection ? std::move(setup.Connection) : MakeBlockingConnection()),
      m_ports(std::move(setup.FeedKey))
{
    if (!m_socket->Initialise() && setup.Box != nullptr)
        setup.Box->Ask("Failed to Initialize Sockets", "AfxSocketInit", BoxButtons::Ok, BoxIcon::Error);
}

CLookupSystemInfo::~CLookupSystemInfo() = default;

bool CLookupSystemInfo::SendCommand(std::string_view command, std::uint16_t port)
{
    if (!m_socket->Connect(port))
        return false;
    // A connection that breaks here yields no reply, which counts as an empty table.
    m_socket->Send(command);
    return true;
}

void CLookupSystemInfo::ReadReply()
{
    std::vector<char> block(BlockSize);
    for (;;) {
        const int received = m_socket->Receive(block.data(), BlockSize);
        if (received <= 0 || !m_reply.Take({block.data(), static_cast<std::size_t>(received)}))
            break;
    }
    m_socket->Close();
}

void CLookupSystemInfo::LoadWith(std::string_view command)
{
    if (m_loaded)
        return;
    m_reply.Clear();
    if (!SendCommand(command, m_ports.LookupPort()))
        return;
    ReadReply();
    m_reply.ForEachRow([this](unsigned id, CRowTokens& tokens) NO_THREAD_SAFETY_ANALYSIS {
        Store(id, tokens);
        ++m_rowCount;
    });
    m_loaded = true;
}

std::string CLookupSystemInfo::TextOf(int id, std::size_t place)
{
    const CLockGuard guard(Lock);
    Load();
    const auto row = static_cast<unsigned>(id);
    return row < LookupRows ? Text(row, place) : std::string();
}

std::string CLookupSystemInfo::GetShortName(int id)
{
    return TextOf(id, ShortName);
}

std::string CLookupSystemInfo::GetLongName(int id)
{
    return TextOf(id, LongName);
}

int CLookupSystemInfo::GetRowCount()
{
    const CLockGuard guard(Lock);
    Load();
    return m_rowCount;
}

bool CLookupSystemInfo::Loaded() const
{
    const CLockGuard guard(Lock);
    return m_loaded;
}

void CListedMarkets::Store(unsigned id, CRowTokens& tokens)
{
    StoreTokens(m_rows[id], tokens);
}

void CSecurityTypes::Store(unsigned id, CRowTokens& tokens)
{
    StoreTokens(m_rows[id], tokens);
}

} // namespace zantroq
