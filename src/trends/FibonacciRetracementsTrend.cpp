#include "trends/FibonacciRetracementsTrend.h"

namespace zantroq {

namespace {

struct sLevel
{
    double Ratio; // fraction of the range, downward from the higher price
    int Pattern;
    const char* Text;
};

constexpr std::array<sLevel, CFibonacciRetracementsTrend::Levels> LevelTable{{
    {0.0, LineSolid, "0%"},
    {0.236, LineLongDashes, "23.6%"},
    {0.382, LineLongDashes, "38.2%"},
    {0.5, LineLongDashes, "50%"},
    {0.618, LineLongDashes, "61.8%"},
    {1.0, LineSolid, "100%"},
    {1.618, LineLongDashes, "161.8%"},
    {2.618, LineLongDashes, "261.8%"},
    {4.236, LineLongDashes, "423.6%"},
}};
constexpr int LevelOfLow = 5;
constexpr int LabelRoom = 15; // smallest distance of two labels in pixels

} // namespace

CFibonacciRetracementsTrend::CFibonacciRetracementsTrend(int series,
                                                         const std::array<int, Levels>& levelSeries,
                                                         int startIndex, double value,
                                                         const sTrendStyle& style)
    : CBaseTrend(series, startIndex, value, style),
      CSlopingTrend(series, startIndex, value, style),
      m_levelSeries(levelSeries)
{
}

std::vector<int> CFibonacciRetracementsTrend::AllSeries() const
{
    std::vector<int> all{m_series};
    all.insert(all.end(), m_levelSeries.begin(), m_levelSeries.end());
    return all;
}

int CFibonacciRetracementsTrend::AddLabels(IPaneWindow& window)
{
    CPaneLabels& labels = window.Pane(0).PaneLabels();
    const int first = labels.Count() + 1;
    for (int level = 0; level < Levels; ++level) {
        CPaneLabel& label = labels.Add();
        label.SetShown(false);
        label.SetAttachment(AttachToPixel);
        label.SetBorder(1);
        label.SetBoxAttachment(0);
        label.SetBoxEdge(4);
        label.Interior().SetBackground(window.Settings().BackgroundColor);
        label.Interior().SetForeground(window.Settings().Trends[TrendFibonacciRetracements].Color);
    }
    return first;
}

double CFibonacciRetracementsTrend::LevelPrice(int level) const
{
    const double high = std::max(m_value, m_endValue), low = std::min(m_value, m_endValue);
    if (level == 0)
        return high;
    if (level == LevelOfLow)
        return low;
    return high - (high - low) * LevelTable[static_cast<std::size_t>(level)].Ratio;
}

void CFibonacciRetracementsTrend::Draw()
{
    const sSpan span = Span();
    DrawLine(m_series, XVector::Write, span.Right, span.Slope(), span.LeftValue, span.Left);
    int shownPixelY = 0;
    for (int level = 0; level < Levels; ++level) {
        DrawLevel(level, span);
        PlaceLabel(level, span, shownPixelY);
    }
}

void CFibonacciRetracementsTrend::DrawLevel(int level, const sSpan& span)
{
    const auto i = static_cast<std::size_t>(level);
    WriteTrendLevel(*m_owner, m_levelSeries[i], Look(LevelTable[i].Pattern), XVector::Keep, span.Left,
                    LevelPrice(level));
}

void CFibonacciRetracementsTrend::PlaceLabel(int level, const sSpan& span, int& shownPixelY)
{
    CPaneLabels& labels = m_owner->Pane(0).PaneLabels();
    if (m_firstLabel < 1 || m_firstLabel + level > labels.Count())
        return;
    CPaneLabel& label = labels.Item(m_firstLabel + level);
    const int base = AxisBase(*m_owner);
    int x = 0, y = 0;
    m_owner->Pane(0).PaneGroups(2).DataToPixel(span.Left < 1 ? base : span.Left + base - 1, LevelPrice(level),
                                               x, y);
    label.SetPixelAnchor(x, y);
    label.SetAnchorSide(AnchorAboveRight);
    label.Interior().SetBackground(m_owner->Settings().BackgroundColor);
    label.Interior().SetForeground(m_owner->Settings().Trends[TrendFibonacciRetracements].Color);
    label.SetText(LevelTable[static_cast<std::size_t>(level)].Text);
    const bool shown = level == 0 || y - shownPixelY >= LabelRoom;
    label.SetShown(shown);
    if (shown)
        shownPixelY = y;
}

void CFibonacciRetracementsTrend::Erase()
{
    CPriceBatch batch(*m_owner);
    CBaseTrend::Erase();
    CPaneLabels& labels = m_owner->Pane(0).PaneLabels();
    for (int number = m_firstLabel + Levels - 1; number >= m_firstLabel; --number) {
        if (number >= 1 && number <= labels.Count())
            labels.Remove(number);
    }
}

int CFibonacciRetracementsTrend::HitDistance(int x, int y) const
{
    int p1 = 0, p2 = 0;
    if (!RayRange(p1, p2) || p2 < 2) // a single point is no line
        return NotHittable;
    int best = SegmentDistance(*m_owner, m_series, p1, p2, x, y);
    for (int series : m_levelSeries)
        best = std::min(best, LevelDistance(*m_owner, series, p1, p2, x, y));
    return best;
}

} // namespace zantroq
