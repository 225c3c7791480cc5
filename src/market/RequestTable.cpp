#include "market/RequestTable.h"

#include <unordered_map>
#include <utility>

namespace zantroq {

namespace {

struct sEntry
{
    RequestPtr Request;
    bool Sent = false; // a command has gone out, so that lines may name it
};

class CRequestTable
{
public:
    void Add(const RequestPtr& request)
    {
        CLockGuard guard(m_lock);
        m_entries[request->Handle()].Request = request;
    }

    RequestPtr Find(std::int32_t handle)
    {
        CLockGuard guard(m_lock);
        const auto found = m_entries.find(handle);
        return found == m_entries.end() ? nullptr : found->second.Request;
    }

    // Marking dead and looking at Complete is one step against End, so that exactly one side frees.
    RequestPtr GiveUp(CChartHistRequest& request)
    {
        CLockGuard guard(m_lock);
        request.MarkDead();
        const auto found = m_entries.find(request.Handle());
        if (found == m_entries.end() || (found->second.Sent && !request.IsComplete()))
            return nullptr;
        return Take(found);
    }

    void Begin(CChartHistRequest& request)
    {
        CLockGuard guard(m_lock);
        request.SetComplete(false);
        const auto found = m_entries.find(request.Handle());
        if (found != m_entries.end())
            found->second.Sent = true;
    }

    bool End(CChartHistRequest& request, RequestPtr& freed)
    {
        CLockGuard guard(m_lock);
        if (request.IsAlive()) {
            request.SetComplete(true);
            return true;
        }
        const auto found = m_entries.find(request.Handle());
        if (found != m_entries.end())
            freed = Take(found);
        return false;
    }

    int Count()
    {
        CLockGuard guard(m_lock);
        return static_cast<int>(m_entries.size());
    }

private:
    using Entries = std::unordered_map<std::int32_t, sEntry>;

    RequestPtr Take(Entries::iterator entry) REQUIRES(m_lock)
    {
        RequestPtr request = std::move(entry->second.Request);
        m_entries.erase(entry);
        return request;
    }

    CLock m_lock;
    Entries m_entries GUARDED_BY(m_lock);
};

// Never destroyed: a worker may still look up handles while the process ends.
CRequestTable& Table()
{
    static CRequestTable& table = *new CRequestTable;
    return table;
}

} // namespace

RequestPtr CreateRequest()
{
    RequestPtr request = std::make_shared<CChartHistRequest>();
    Table().Add(request);
    return request;
}

RequestPtr FindRequest(std::int32_t handle)
{
    return Table().Find(handle);
}

void GiveUpRequest(RequestPtr& request)
{
    if (!request)
        return;
    // Freed here, outside the table's lock.
    const RequestPtr freed = Table().GiveUp(*request);
    request.reset();
}

void BeginReply(CChartHistRequest& request)
{
    Table().Begin(request);
}

bool EndReply(CChartHistRequest& request)
{
    RequestPtr freed;
    const bool complete = Table().End(request, freed);
    if (freed)
        freed->ClearSeries();
    return complete;
}

int CountRequests()
{
    return Table().Count();
}

} // namespace zantroq
