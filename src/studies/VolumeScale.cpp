#include "studies/VolumeScale.h"

#include "studies/StudyArrays.h"

#include <algorithm>

namespace zantroq {

sScaledVolumes ScaleVolumes(const IPriceSource& prices, std::int64_t first, int count, VolumeMaximum rule)
{
    const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, first, first + std::max(count, 0));
    sScaledVolumes scaled;
    scaled.Values.resize(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        std::int64_t q = volume[first + i];
        if (scaled.Divisor != 1)
            q /= scaled.Divisor;
        while (q > GreatestPlottedVolume) {
            q /= 10;
            scaled.Divisor *= 10;
            // By the whole divisor, not by ten: a second step shrinks the points before it further than it
            // should, and the pane is known for it.
            for (int j = 0; j < i; ++j)
                scaled.Values[static_cast<std::size_t>(j)] /= scaled.Divisor;
            scaled.Maximum /= scaled.Divisor;
        }
        scaled.Values[static_cast<std::size_t>(i)] = q;
        if (rule == VolumeMaximum::OfThePoints)
            scaled.Maximum = std::max(scaled.Maximum, q);
        else if (rule == VolumeMaximum::OfTheWholeSeries)
            scaled.Maximum = prices.GreatestVolume();
    }
    return scaled;
}

std::int32_t AverageVolume(const IPriceSource& prices, std::int64_t points, std::int64_t divisor)
{
    const std::int64_t count = prices.Count(), m = std::min(points, count);
    if (m <= 0)
        return 0;
    const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, count - m, count);
    double sum = 0;
    for (std::int64_t j = count - m; j < count; ++j)
        sum += static_cast<double>(volume[j]);
    const double average = (sum / static_cast<double>(m) + 0.5) / static_cast<double>(divisor);
    constexpr double limit = 2147483647.0;
    return static_cast<std::int32_t>(std::clamp(average, -limit, limit));
}

} // namespace zantroq
