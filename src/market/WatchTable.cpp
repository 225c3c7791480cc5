#include "market/WatchTable.h"

#include <algorithm>

namespace zantroq {

std::uint32_t CWatchTable::Hash(std::string_view symbol)
{
    std::uint32_t hash = 0;
    for (const char c : symbol)
        hash = hash * 33 + static_cast<std::uint32_t>(static_cast<signed char>(c));
    return hash;
}

CWatchTable::Bucket& CWatchTable::BucketOf(std::string_view symbol)
{
    return m_buckets[Hash(symbol) % Buckets];
}

CWatchTable::Bucket::iterator CWatchTable::FindIn(Bucket& bucket, std::string_view symbol)
{
    return std::find_if(bucket.begin(), bucket.end(),
                        [&](const sWatch& watch) { return watch.Symbol == symbol; });
}

void CWatchTable::Add(std::string_view symbol, const RequestPtr& request)
{
    CLockGuard guard(m_lock);
    Bucket& bucket = BucketOf(symbol);
    auto watch = FindIn(bucket, symbol);
    if (watch == bucket.end())
        watch = bucket.insert(watch, sWatch{std::string(symbol), {}});
    watch->Requests.push_back(request);
}

CWatchTable::Removal CWatchTable::Remove(std::string_view symbol, const CChartHistRequest& request)
{
    CLockGuard guard(m_lock);
    Bucket& bucket = BucketOf(symbol);
    const auto watch = FindIn(bucket, symbol);
    if (watch == bucket.end())
        return Removal::NotWatched;
    auto& requests = watch->Requests;
    const auto found =
        std::find_if(requests.begin(), requests.end(), [&](const std::weak_ptr<CChartHistRequest>& entry) {
            return entry.lock().get() == &request;
        });
    if (found != requests.end())
        requests.erase(found);
    if (!requests.empty())
        return Removal::OthersRemain;
    bucket.erase(watch);
    return Removal::LastOne;
}

bool CWatchTable::Find(std::string_view symbol, std::vector<RequestPtr>& requests) const
{
    requests.clear();
    CLockGuard guard(m_lock);
    Bucket& bucket = m_buckets[Hash(symbol) % Buckets];
    const auto watch = FindIn(bucket, symbol);
    if (watch == bucket.end())
        return false;
    for (const auto& request : watch->Requests)
        requests.push_back(request.lock());
    return true;
}

} // namespace zantroq
