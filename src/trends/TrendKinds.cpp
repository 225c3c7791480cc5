#include "trends/TrendKinds.h"

#include "trends/FibonacciFanTrend.h"
#include "trends/FibonacciRetracementsTrend.h"
#include "trends/ParallelTrend.h"
#include "trends/PitchforkTrend.h"
#include "trends/SlopingTrend.h"
#include "trends/SpeedResistanceTrend.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zantroq {

namespace {

// Creates a line of a kind whose constructor takes the series numbers one by one.
template<class Trend, std::size_t... Places>
std::unique_ptr<CBaseTrend> MakeFrom(std::index_sequence<Places...>, std::span<const int> series, int index,
                                     double value, const sTrendStyle& style)
{
    return std::make_unique<Trend>(series[Places]..., index, value, style);
}

template<class Trend, std::size_t Count>
std::unique_ptr<CBaseTrend> Make(std::span<const int> series, int index, double value,
                                 const sTrendStyle& style)
{
    return MakeFrom<Trend>(std::make_index_sequence<Count>(), series, index, value, style);
}

constexpr int LevelCount = CFibonacciRetracementsTrend::Levels;

std::unique_ptr<CBaseTrend> MakeRetracements(std::span<const int> series, int index, double value,
                                             const sTrendStyle& style)
{
    std::array<int, LevelCount> levels{};
    std::copy_n(series.begin() + 1, LevelCount, levels.begin());
    return std::make_unique<CFibonacciRetracementsTrend>(series.front(), levels, index, value, style);
}

// In the order of TrendKind.
constexpr std::array<sTrendKindRow, TrendKinds> Rows{{
    {TrendHorizontal, "horizontal", 1, 0, Make<CBaseTrend, 1>},
    {TrendSloping, "sloping", 1, 0, Make<CSlopingTrend, 1>},
    {TrendParallel, "parallel", 2, 0, Make<CParallelTrend, 2>},
    {TrendPitchfork, "pitchfork", 4, 0, Make<CPitchforkTrend, 4>},
    {TrendFibonacciFan, "fibonacci-fan", 4, 0, Make<CFibonacciFanTrend, 4>},
    {TrendFibonacciRetracements, "fibonacci-retracements", 1 + LevelCount, LevelCount, MakeRetracements},
    {TrendSpeedResistance, "speed-resistance", 3, 0, Make<CSpeedResistanceTrend, 3>},
}};

} // namespace

const sTrendKindRow& TrendKindRow(TrendKind kind)
{
    return Rows.at(static_cast<std::size_t>(kind));
}

} // namespace zantroq
