#include "market/RequestTable.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace zantroq {

namespace {

// Deletes a request only after its window has given it up; before that, the window owns it. The flag is
// written while a pointer to the request is held, so the last holder sees it.
struct sFreeIfGiven
{
    std::shared_ptr<bool> Given;
    void operator()(CChartHistRequest* request) const
    {
        if (*Given)
            delete request;
    }
};

struct sEntry
{
    RequestPtr Request;
    std::shared_ptr<bool> Given = std::make_shared<bool>(false);
    bool Sent = false; // a command was sent, so lines may name the request
};

class CRequestTable
{
public:
    RequestPtr Enter(CChartHistRequest& request)
    {
        CLockGuard guard(m_lock);
        return EntryOf(request).Request;
    }

    RequestPtr Find(std::int32_t handle)
    {
        CLockGuard guard(m_lock);
        const auto found = m_entries.find(handle);
        return found == m_entries.end() ? nullptr : found->second.Request;
    }

    // Marking the request dead and reading Complete are one step under the lock, so that either this function
    // or End frees it, never both. The caller releases the result outside the lock.
    RequestPtr GiveUp(std::unique_ptr<CChartHistRequest> request)
    {
        CLockGuard guard(m_lock);
        request->MarkDead();
        sEntry& entry = EntryOf(*request);
        *entry.Given = true;
        const CChartHistRequest* const given = request.release();
        return entry.Sent && !given->IsComplete() ? nullptr : Take(given->Handle());
    }

    void Begin(CChartHistRequest& request)
    {
        CLockGuard guard(m_lock);
        request.SetComplete(false);
        EntryOf(request).Sent = true;
    }

    bool End(CChartHistRequest& request, RequestPtr& freed)
    {
        CLockGuard guard(m_lock);
        if (!request.IsAlive()) {
            freed = Take(request.Handle());
            return false;
        }
        request.SetComplete(true);
        return true;
    }

    // The caller releases the result outside the lock.
    std::vector<RequestPtr> TakeGivenUp()
    {
        CLockGuard guard(m_lock);
        std::vector<RequestPtr> taken;
        std::erase_if(m_entries, [&taken](const auto& item) {
            if (*item.second.Given)
                taken.push_back(item.second.Request);
            return *item.second.Given;
        });
        return taken;
    }

    RequestPtr Forget(std::int32_t handle)
    {
        CLockGuard guard(m_lock);
        return Take(handle);
    }

    int Count()
    {
        CLockGuard guard(m_lock);
        return static_cast<int>(m_entries.size());
    }

private:
    RequestPtr Take(std::int32_t handle) REQUIRES(m_lock)
    {
        const auto entry = m_entries.find(handle);
        if (entry == m_entries.end())
            return nullptr;
        RequestPtr request = std::move(entry->second.Request);
        m_entries.erase(entry);
        return request;
    }

    sEntry& EntryOf(CChartHistRequest& request) REQUIRES(m_lock)
    {
        sEntry& entry = m_entries[request.Handle()];
        if (!entry.Request)
            entry.Request = RequestPtr(&request, sFreeIfGiven{entry.Given});
        return entry;
    }

    CLock m_lock;
    std::unordered_map<std::int32_t, sEntry> m_entries GUARDED_BY(m_lock);
};

// Never destroyed: a worker may look up handles while the process exits.
CRequestTable& Table()
{
    static CRequestTable& table = *new CRequestTable;
    return table;
}

} // namespace

RequestPtr EnterRequest(CChartHistRequest& request)
{
    return Table().Enter(request);
}

RequestPtr FindRequest(std::int32_t handle)
{
    return Table().Find(handle);
}

void GiveUpRequest(std::unique_ptr<CChartHistRequest> request)
{
    if (request)
        Table().GiveUp(std::move(request));
}

void BeginReply(CChartHistRequest& request)
{
    Table().Begin(request);
}

void FreeGivenUpRequests()
{
    Table().TakeGivenUp();
}

bool EndReply(CChartHistRequest& request)
{
    RequestPtr freed;
    const bool complete = Table().End(request, freed);
    if (freed)
        freed->ClearSeries();
    return complete;
}

void ForgetRequest(std::int32_t handle)
{
    Table().Forget(handle);
}

int CountRequests()
{
    return Table().Count();
}

} // namespace zantroq
