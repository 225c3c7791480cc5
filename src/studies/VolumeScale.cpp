#include "studies/VolumeScale.h"

#include "studies/StudyArrays.h"

#include <algorithm>

namespace zantroq {

sVolumeScale ScaleVolumes(const IPriceSource& prices, std::int64_t first, int count, VolumeMaximum rule,
                          std::int64_t* scaled)
{
    sVolumeScale scale;
    const std::int64_t wholeSeries = prices.GreatestVolume();
    InPieces(count, 0, [&](int offset, int length) {
        const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, first + offset, first + offset + length);
        for (int i = offset; i < offset + length; ++i) {
            std::int64_t q = volume[first + i];
            if (scale.Divisor != 1)
                q /= scale.Divisor;
            while (q > GreatestPlottedVolume) {
                q /= 10;
                scale.Divisor *= 10;
                // By the whole divisor, not by ten: a second step shrinks the points before it further than
                // it should, and the pane is known for it.
                for (int j = 0; j < i; ++j)
                    scaled[j] /= scale.Divisor;
                scale.Maximum /= scale.Divisor;
            }
            scaled[i] = q;
            if (rule == VolumeMaximum::OfThePoints)
                scale.Maximum = std::max(scale.Maximum, q);
            else if (rule == VolumeMaximum::OfTheWholeSeries)
                scale.Maximum = wholeSeries;
        }
    });
    return scale;
}

std::int32_t AverageVolume(const IPriceSource& prices, std::int64_t points, std::int64_t divisor)
{
    const std::int64_t count = prices.Count(), m = std::min(points, count);
    if (m <= 0)
        return 0;
    double sum = 0;
    InPieces(static_cast<int>(m), 0, [&](int offset, int length) {
        const std::int64_t from = count - m + offset;
        const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, from, from + length);
        for (std::int64_t j = from; j < from + length; ++j)
            sum += static_cast<double>(volume[j]);
    });
    const double average = (sum / static_cast<double>(m) + 0.5) / static_cast<double>(divisor);
    constexpr double limit = 2147483647.0;
    return static_cast<std::int32_t>(std::clamp(average, -limit, limit));
}

} // namespace zantroq
