// The requests that want the live updates of a symbol: a hash map of 23 buckets with the exact symbol as key.
// Window threads change it and the worker reads it; each operation takes the table's own lock, which is never
// held during a send. The table does not keep a request alive.
#pragma once

#include "market/RequestTable.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

class CWatchTable
{
public:
    static constexpr int Buckets = 23;

    // h = h * 33 + c over the bytes as signed characters.
    static std::uint32_t Hash(std::string_view symbol);

    // Adds the request to the symbol's requests. The same request may be added more than once.
    void Add(std::string_view symbol, const RequestPtr& request);

    enum class Removal
    {
        NotWatched,
        OthersRemain,
        LastOne
    };
    // Removes the first entry of the request, and the symbol with its last entry.
    Removal Remove(std::string_view symbol, const CChartHistRequest& request);

    // Sets `requests` to the requests of the symbol in the order of their addition, with null for each
    // request that no longer exists. Returns false if no request watches the symbol.
    bool Find(std::string_view symbol, std::vector<RequestPtr>& requests) const;

private:
    struct sWatch
    {
        std::string Symbol;
        std::vector<std::weak_ptr<CChartHistRequest>> Requests;
    };
    using Bucket = std::vector<sWatch>;

    Bucket& BucketOf(std::string_view symbol) REQUIRES(m_lock);
    static Bucket::iterator FindIn(Bucket& bucket, std::string_view symbol);

    mutable CLock m_lock;
    mutable std::array<Bucket, Buckets> m_buckets GUARDED_BY(m_lock);
};

} // namespace zantroq
