// Which requests want the live updates of which symbol. A hash map of 23 buckets keyed by the exact symbol.
// Changed on window threads and read on the worker: each operation holds a short lock of its own, never
// across a send. The table does not keep a request alive.
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

    // Appends to the symbol's requests; the same request may stand there more than once.
    void Add(std::string_view symbol, const RequestPtr& request);

    enum class Removal
    {
        NotWatched,
        OthersRemain,
        LastOne
    };
    // Removes the first entry of the request; the symbol goes with its last entry.
    Removal Remove(std::string_view symbol, const CChartHistRequest& request);

    // The symbol's requests in the order in which they were added, null for one that is gone; false for a
    // symbol that nobody watches. The vector is overwritten.
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
