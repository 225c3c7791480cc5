#include "scene/PaneData.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace zantroq {

namespace {

constexpr std::size_t KeptChanges = 8;

// By blocks: the compiler vectorises a loop without an exit. Four kilobytes of doubles cost little where the
// first number differs already.
template<class T> bool SameNumbers(const double* held, const T* given, std::size_t count)
{
    constexpr std::size_t block = 512;
    for (std::size_t from = 0; from < count; from += block) {
        const std::size_t to = std::min(from + block, count);
        int different = 0;
        for (std::size_t i = from; i < to; ++i)
            different |= held[i] != static_cast<double>(given[i]);
        if (different)
            return false;
    }
    return true;
}

} // namespace

void CPaneData::NoteWhole(int series)
{
    m_wholeRevision = ++m_revision;
    (series == 0 ? m_frameRevision : m_yRevision[static_cast<std::size_t>(series - 1)]) = m_revision;
    m_changes.clear();
    TouchData();
}

bool CPaneData::SeriesChangedSince(int series, std::uint64_t revision) const
{
    return FrameChangedSince(revision) ||
           (Has(series) && revision < m_yRevision[static_cast<std::size_t>(series - 1)]);
}

void CPaneData::NotePoints(int series, int first, int last)
{
    m_yRevision[static_cast<std::size_t>(series - 1)] = ++m_revision;
    if (!m_changes.empty() && m_changes.back().Revision > m_askedRevision) {
        sChange& change = m_changes.back(); // nobody has asked since: one record is enough
        change = {m_revision, std::min(change.First, first), std::max(change.Last, last)};
    } else {
        if (m_changes.size() == KeptChanges) {
            m_wholeRevision = m_changes.front().Revision;
            m_changes.erase(m_changes.begin());
        }
        m_changes.push_back({m_revision, first, last});
    }
    TouchData();
}

sPointChanges CPaneData::ChangesSince(std::uint64_t revision) const
{
    m_askedRevision = m_revision;
    sPointChanges changes;
    if (revision < m_wholeRevision || revision > m_revision) {
        changes.Whole = true;
        return changes;
    }
    for (const sChange& change : m_changes) {
        if (change.Revision <= revision)
            continue;
        const bool any = changes.Last >= changes.First;
        changes.First = any ? std::min(changes.First, change.First) : change.First;
        changes.Last = any ? std::max(changes.Last, change.Last) : change.Last;
    }
    return changes;
}

int CPaneData::FirstVisible() const
{
    return std::max(m_firstShown, 1);
}

int CPaneData::LastVisible() const
{
    return m_lastShown <= 0 ? SeriesCount() : std::min(m_lastShown, SeriesCount());
}

bool CPaneData::XAscending() const
{
    if (m_counted.Covers(m_x.size()))
        return true;
    if (m_ascending < 0) {
        m_ascending = 1;
        for (std::size_t i = 0; i < m_x.size() && m_ascending == 1; ++i) // no order holds a not-a-number
            m_ascending = i == 0 ? m_x[0] == m_x[0] : m_x[i - 1] <= m_x[i];
    }
    return m_ascending == 1;
}

void CPaneData::SetSeriesCount(int count)
{
    const auto n = static_cast<std::size_t>(std::clamp(count, 0, MaxSeries));
    if (n == m_y.size())
        return;
    if (n == 0) {
        m_x.clear();
        m_counted.Forget();
        m_ascending = 1;
    }
    m_y.resize(n, CSlidingArray(m_x.size(), HoleValue));
    m_blocks.resize(n);
    m_yRevision.resize(n, 0);
    m_steps.resize(n);
    m_firstPoint.resize(n, 1);
    m_drawn.resize(n);
    NoteWhole();
}

int CPaneData::PointCount(int series) const
{
    return Has(series) ? static_cast<int>(m_x.size()) : 0;
}

void CPaneData::SetPointCount(int series, int count)
{
    if (!Has(series))
        return;
    const auto n = static_cast<std::size_t>(std::max(count, 0));
    const std::size_t had = m_x.size();
    if (n == had)
        return;
    const bool numbered = had == 0 || ConsecutiveXFrom() == 1;
    if (!numbered)
        m_ascending = -1;
    m_x.resize(n);
    m_counted.Cut(n);
    if (numbered)
        m_counted.Set(1, n);
    if (n > had)
        std::iota(m_x.begin() + static_cast<std::ptrdiff_t>(had), m_x.end(), static_cast<double>(had + 1));
    for (int i = 1; i <= SeriesCount(); ++i) {
        ForgetBlocks(i, std::min(n, had));
        m_y[static_cast<std::size_t>(i - 1)].resize(n, HoleValue);
    }
    if (n > had)
        std::fill(m_steps.begin(), m_steps.end(), std::nullopt);
    NoteWhole();
}

void CPaneData::SetFirstPoint(int series, int point)
{
    if (!Has(series) || FirstPoint(series) == point)
        return;
    m_firstPoint[static_cast<std::size_t>(series - 1)] = point;
    NoteWhole();
}

int CPaneData::FirstPoint(int series) const
{
    return Has(series) ? m_firstPoint[static_cast<std::size_t>(series - 1)] : 0;
}

int CPaneData::DrawnTo(int series) const
{
    return Has(series) ? m_drawn[static_cast<std::size_t>(series - 1)].To : 0;
}

void CPaneData::SetDrawnTo(int series, int point)
{
    if (!Has(series))
        return;
    SetUndrawn(series, 0);
    sDrawn& drawn = m_drawn[static_cast<std::size_t>(series - 1)];
    drawn.To = point;
    drawn.Set = true;
}

bool CPaneData::AdvanceDrawn(int series, int count)
{
    if (!Has(series) || count < 0 || static_cast<std::int64_t>(DrawnTo(series)) + count > PointCount(series))
        return false;
    sDrawn& drawn = m_drawn[static_cast<std::size_t>(series - 1)];
    if (std::exchange(drawn.Set, false))
        SetUndrawn(series, drawn.To);
    drawn.To += count;
    return true;
}

int CPaneData::Undrawn(int series) const
{
    return Has(series) ? m_drawn[static_cast<std::size_t>(series - 1)].Undrawn : 0;
}

void CPaneData::SetUndrawn(int series, int points)
{
    if (!Has(series))
        return;
    sDrawn& drawn = m_drawn[static_cast<std::size_t>(series - 1)];
    drawn.Set = false;
    if (drawn.Undrawn == std::max(points, 0))
        return;
    drawn.Undrawn = std::max(points, 0);
    NoteWhole(series);
}

std::size_t CPaneData::FirstDrawn(int series) const
{
    return static_cast<std::size_t>(std::max({0, FirstPoint(series) - 1, Undrawn(series)}));
}

double CPaneData::PointX(int series, int point) const
{
    return Has(series, point) ? m_x[static_cast<std::size_t>(point - 1)] : 0.0;
}

void CPaneData::SetPointX(int series, int point, double x)
{
    if (!Has(series, point))
        return;
    const auto i = static_cast<std::size_t>(point - 1);
    m_counted.Wrote(i, x);
    if (IsSame(m_x[i], x))
        return;
    // A value between its neighbors leaves the order unchanged.
    if (m_ascending == 1 &&
        !(x == x && (i == 0 || m_x[i - 1] <= x) && (i + 1 == m_x.size() || x <= m_x[i + 1])))
        m_ascending = -1;
    else if (m_ascending == 0)
        m_ascending = -1;
    m_x[i] = x;
    NoteWhole();
}

double CPaneData::PointY(int series, int point) const
{
    return Has(series, point) ? m_y[static_cast<std::size_t>(series - 1)][static_cast<std::size_t>(point - 1)]
                              : HoleValue;
}

void CPaneData::SetPointY(int series, int point, double y)
{
    if (!Has(series, point))
        return;
    double& held = m_y[static_cast<std::size_t>(series - 1)][static_cast<std::size_t>(point - 1)];
    if (IsSame(held, y))
        return;
    held = y;
    Step(series).reset();
    ForgetBlocks(series, static_cast<std::size_t>(point - 1));
    NotePoints(series, point, point);
}

bool CPaneData::ShiftPoints(int series, int count, int firstSource)
{
    if (!Has(series) || count < 0 || firstSource < 1 ||
        static_cast<std::int64_t>(firstSource) - 1 + count > PointCount(series))
        return false;
    auto& y = m_y[static_cast<std::size_t>(series - 1)];
    if (Step(series) && Step(series)->Holes > 0) // else all values are equal
        Step(series).reset();
    const auto moved = static_cast<std::size_t>(count), from = static_cast<std::size_t>(firstSource - 1);
    m_blocks[static_cast<std::size_t>(series - 1)].ForgetFrom(y.MoveToFront(moved, from));
    if (series == 1) {
        m_x.MoveToFront(moved, from);
        m_counted.Moved(moved, from);
        m_ascending = -1;
    }
    NoteWhole();
    return true;
}

template<class T> bool CPaneData::LoadX(int series, std::span<const T> x)
{
    if (!Has(series) || x.size() < m_x.size())
        return false;
    if (SameNumbers(m_x.data(), x.data(), m_x.size()))
        return true;
    std::copy_n(x.begin(), m_x.size(), m_x.begin());
    ForgetX();
    NoteWhole();
    return true;
}

bool CPaneData::SetXVector(int series, std::span<const double> x)
{
    return LoadX(series, x);
}

bool CPaneData::SetXVector(int series, std::span<const int> x)
{
    return LoadX(series, x);
}

void CPaneData::ForgetX()
{
    m_ascending = -1;
    m_counted.Forget();
}

void CPaneData::NumberPoints(double first)
{
    const std::size_t points = m_x.size();
    if (points == 0 || ConsecutiveXFrom() == first)
        return;
    const std::size_t known = m_counted.First() == first ? m_counted.Count() : 0;
    std::iota(m_x.begin() + known, m_x.end(), first + static_cast<double>(known));
    m_counted.Set(first, points);
    m_ascending = m_counted.Covers(points) ? 1 : -1;
    NoteWhole();
}

bool CPaneData::TakeX(const CPaneData& other)
{
    if (!Has(1) || other.m_x.size() < m_x.size())
        return false;
    if (const std::optional<double> first = other.ConsecutiveXFrom()) {
        NumberPoints(*first);
        return true;
    }
    return SetXVector(1, other.X());
}

void CPaneData::SetConstantY(int series, double y)
{
    SetStepY(series, 1, y);
}

void CPaneData::SetStepY(int series, int firstPoint, double y)
{
    if (!Has(series))
        return;
    auto& values = m_y[static_cast<std::size_t>(series - 1)];
    const std::size_t points = values.size();
    const auto holes =
        static_cast<std::size_t>(std::clamp(firstPoint - 1LL, 0LL, static_cast<long long>(points)));
    const std::optional<sStep> held = Step(series);
    const bool sameValue = held && IsSame(held->Value, y);
    const std::size_t heldHoles = held ? std::min(held->Holes, points) : 0;
    if (sameValue && heldHoles == holes)
        return;
    if (heldHoles < holes)
        std::fill(values.begin() + heldHoles, values.begin() + holes, HoleValue);
    std::fill(values.begin() + holes, sameValue ? values.begin() + std::max(holes, heldHoles) : values.end(),
              y);
    Step(series) = sStep{holes, y};
    ForgetBlocks(series);
    NoteWhole(series);
}

bool CPaneData::SetYVector(int series, std::span<const double> y)
{
    if (!Has(series) || y.size() < m_x.size())
        return false;
    std::copy_n(y.begin(), m_x.size(), m_y[static_cast<std::size_t>(series - 1)].begin());
    Step(series).reset();
    ForgetBlocks(series);
    NoteWhole(series);
    return true;
}

bool CPaneData::GetXVector(int series, std::vector<double>& x) const
{
    if (!Has(series))
        return false;
    x.assign(m_x.begin(), m_x.end());
    return true;
}

std::span<double> CPaneData::YForOverwrite(int series)
{
    if (!Has(series))
        return {};
    Step(series).reset();
    ForgetBlocks(series);
    NoteWhole(series);
    auto& y = m_y[static_cast<std::size_t>(series - 1)];
    return {y.data(), y.size()};
}

void CPaneData::ForgetBlocks(int series, std::size_t from)
{
    const auto at = static_cast<std::size_t>(series - 1);
    m_blocks[at].ForgetFrom(m_y[at].Begin() + from);
}

sBlockedValues CPaneData::BlockedY(int series) const
{
    if (!Has(series))
        return {};
    const auto at = static_cast<std::size_t>(series - 1);
    return m_blocks[at].Of(m_y[at].Places(), m_y[at].Begin());
}

void CPaneData::UpdateBlockMinMax(int series) const
{
    UpdateBlockMinMax(series, m_x.size());
}

void CPaneData::UpdateBlockMinMax(int series, std::size_t written) const
{
    if (!Has(series))
        return;
    const auto at = static_cast<std::size_t>(series - 1);
    const CSlidingArray& y = m_y[at];
    m_blocks[at].Learn(y.Places().first(y.Begin() + std::min(written, y.size())), y.Begin());
}

std::span<const double> CPaneData::Y(int series) const
{
    if (!Has(series))
        return {};
    return m_y[static_cast<std::size_t>(series - 1)];
}

} // namespace zantroq
