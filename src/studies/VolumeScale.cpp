#include "studies/VolumeScale.h"

#include "studies/StudyArrays.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

// Half of the range in which a double represents every integer.
constexpr double Half = 4503599627370496.0;

sVolumeScale ScaleLargeVolumes(const IPriceSource& prices, std::int64_t first, int count, VolumeMaximum rule,
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
                // By the whole divisor and not by ten: a second step makes earlier points smaller than it
                // should. Intended (see HistVOLChart.h).
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

// Adds the volumes to `sum` in order. While no partial sum can exceed the integers that a double represents
// exactly, integers give the same result faster; that is so if no volume is above `exact`, which is Half
// divided by the number of volumes.
double SumVolumes(const std::int64_t* volume, int count, double sum, double exact)
{
    std::int64_t total = 0, least = 0, greatest = 0;
    for (int i = 0; i < count; ++i) {
        least = std::min(least, volume[i]);
        greatest = std::max(greatest, volume[i]);
        total = static_cast<std::int64_t>(static_cast<std::uint64_t>(total) +
                                          static_cast<std::uint64_t>(volume[i]));
    }
    if (static_cast<double>(greatest) <= exact && static_cast<double>(least) >= -exact &&
        std::fabs(sum) <= Half)
        return sum + static_cast<double>(total);
    for (int i = 0; i < count; ++i)
        sum += static_cast<double>(volume[i]);
    return sum;
}

// Returns false if a volume needs a divisor; the output is invalid then.
bool CopyVolumes(const IPriceSource& prices, std::int64_t first, int count, std::int64_t& greatest,
                 double* plotted)
{
    bool fits = true;
    InPieces(count, 0, [&](int offset, int length) {
        if (!fits)
            return;
        const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, first + offset, first + offset + length);
        const std::int64_t* v = volume.At(first + offset);
        for (int i = 0; i < length; ++i) {
            greatest = std::max(greatest, v[i]);
            plotted[offset + i] = static_cast<double>(v[i]);
        }
        fits = greatest <= GreatestPlottedVolume;
    });
    return fits;
}

} // namespace

sVolumeScale ScaleVolumes(const IPriceSource& prices, std::int64_t first, int count, VolumeMaximum rule,
                          double* scaled)
{
    std::int64_t greatest = 0;
    if (CopyVolumes(prices, first, count, greatest, scaled)) {
        sVolumeScale scale;
        if (rule == VolumeMaximum::OfThePoints)
            scale.Maximum = greatest;
        else if (rule == VolumeMaximum::OfTheWholeSeries && count > 0)
            scale.Maximum = prices.GreatestVolume();
        return scale;
    }
    CStudyArray<std::int64_t> whole(count);
    const sVolumeScale scale = ScaleLargeVolumes(prices, first, count, rule, whole.Data());
    std::copy_n(whole.Data(), count, scaled);
    return scale;
}

std::int32_t AverageVolume(const IPriceSource& prices, std::int64_t points, std::int64_t divisor)
{
    const std::int64_t count = prices.Count(), m = std::min(points, count);
    if (m <= 0)
        return 0;
    const double exact = Half / static_cast<double>(m);
    double sum = 0;
    InPieces(static_cast<int>(m), 0, [&](int offset, int length) {
        const std::int64_t from = count - m + offset;
        const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, from, from + length);
        sum = SumVolumes(volume.At(from), length, sum, exact);
    });
    const double average = (sum / static_cast<double>(m) + 0.5) / static_cast<double>(divisor);
    constexpr double limit = 2147483647.0;
    return static_cast<std::int32_t>(std::clamp(average, -limit, limit));
}

} // namespace zantroq
