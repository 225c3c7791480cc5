#include "drawing/SeriesScan.h"

#include <algorithm>

namespace zantroq {

void ScanPrices(sPriceRange& range, const IPriceSource& prices, int count, const ReadMarks& readMarks)
{
    std::vector<double> highs, lows;
    std::vector<std::uint8_t> deleted;
    for (int first = 0; first < count; first += ScanBlock) {
        const int length = std::min(ScanBlock, count - first);
        highs.resize(static_cast<std::size_t>(length));
        lows.resize(highs.size());
        prices.ReadHigh(first, length, highs.data());
        prices.ReadLow(first, length, lows.data());
        readMarks(first, length, deleted);
        IncludePrices(range, highs, lows, deleted);
    }
}

void ScanVolumes(sPriceRange& range, const IPriceSource& prices, int first, int count,
                 const ReadMarks& readMarks)
{
    std::vector<std::int64_t> volumes;
    std::vector<std::uint8_t> deleted;
    for (const int end = first + count; first < end; first += ScanBlock) {
        const int length = std::min(ScanBlock, end - first);
        volumes.resize(static_cast<std::size_t>(length));
        prices.ReadVolume(first, length, volumes.data());
        readMarks(first, length, deleted);
        IncludeVolumes(range, volumes, deleted);
    }
}

} // namespace zantroq
