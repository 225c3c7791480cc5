// The points of a group and what is known of their changes. Chart window's thread.
#pragma once

#include "scene/BlockMinMax.h"
#include "scene/ConsecutiveRun.h"
#include "scene/PaneNode.h"
#include "scene/SlidingArray.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zantroq {

inline constexpr int MaxSeries = 100000; // of a group

// Which points changed after a revision of a CPaneData. Empty (Last below First) when none did.
struct sPointChanges
{
    bool Whole = false;      // sizes or x values or a bulk load: everything has to be looked at again
    int First = 1, Last = 0; // else the points, from 1
};

// A series of one value from some point on, with the hole value at the points before it.
struct sStep
{
    std::size_t Holes; // points without a value at the beginning
    double Value;      // that of all points behind them
};

// The vectors of a group. The layout is always 1: one x vector, and with it one point count, shared by all
// series of the group. Setting the point count of any series sizes all of them; points that come into being
// so hold the hole value. Numbers out of range are not examined by callers: a getter then gives 0 (PointY the
// hole value), a setter does nothing.
class CPaneData : public CPaneNode
{
public:
    explicit CPaneData(CChart2D* chart) : CPaneNode(chart) {}
    static constexpr double HoleValue() { return 1e+308; }

    void SetLayout(int layout) { m_layout = layout; }
    int Layout() const { return m_layout; }
    int SeriesCount() const { return static_cast<int>(m_y.size()); }
    void SetSeriesCount(int count);
    void SetFirstShownSeries(int series) { Assign(m_firstShown, series); }
    int FirstShownSeries() const { return m_firstShown; }
    void SetLastShownSeries(int series) { Assign(m_lastShown, series); } // 0: no limit
    int LastShownSeries() const { return m_lastShown; }
    int PointCount(int series) const;
    void SetPointCount(int series, int count);
    void SetFirstPoint(int series, int point);
    int FirstPoint(int series) const;
    // How far the series is drawn: SetDrawnTo puts the marker, AdvanceDrawn draws `count` points behind it
    // and moves it on, or tells false past the last point. What lies before a marker that was put so is not
    // drawn: a curve has its warm-up there, whose values stay for who reads them. Without AdvanceDrawn behind
    // it, a marker says nothing and all points are drawn; points behind the marker are drawn in any case.
    int DrawnTo(int series) const;
    void SetDrawnTo(int series, int point);
    bool AdvanceDrawn(int series, int count);
    // The points at the series' beginning that are not drawn for that reason. Setting them is for who
    // restores a pane: AdvanceDrawn then goes on from the marker.
    int Undrawn(int series) const;
    void SetUndrawn(int series, int points);
    double PointX(int series, int point) const;
    void SetPointX(int series, int point, double x);
    double PointY(int series, int point) const;
    void SetPointY(int series, int point, double y);
    // Moves count points that begin at firstSource to the series' beginning. x moves with series 1 only.
    bool ShiftPoints(int series, int count, int firstSource);
    // Bulk loads: fewer values than PointCount are refused with false.
    bool SetXVector(int series, std::span<const double> x);
    bool SetXVector(int series, std::span<const int> x);
    bool SetYVector(int series, std::span<const double> y);
    // x becomes `first`, the number behind it, and so on, and every y of a series one value. Both cost
    // nothing where it is so already, since a pane remembers it: a whole draw of many points sets them again
    // each time.
    void NumberPoints(double first = 1);
    void SetConstantY(int series, double y);
    // One value from a point on and the hole value before it. Writes only what is not so already.
    void SetStepY(int series, int firstPoint, double y);
    bool GetXVector(int series, std::vector<double>& x) const;
    // x becomes that of another group, which costs next to nothing where that counts up; false when it has
    // fewer points.
    bool TakeX(const CPaneData& other);
    // The y values of a series for who writes all of them in place, which saves a copy of what may be long.
    // Inside a batch, or with CommitPaneData behind it, and before anybody reads them again. Good until a
    // count changes; empty for a number out of range.
    std::span<double> YForOverwrite(int series);

    // For the painter and for whole-vector readers: no copies.
    std::span<const double> X() const { return m_x; }
    std::span<const double> Y(int series) const;
    // The first of them that is drawn, from 0; it may lie past the last one.
    std::size_t FirstDrawn(int series) const;
    // The same with what is known of blocks of the values: of all of them after UpdateBlockMinMax, which
    // costs a look at those that changed since and is worth it where many are looked at together. Good until
    // the values change.
    sBlockedValues BlockedY(int series) const;
    void UpdateBlockMinMax(int series) const;
    // The same for the first so many values alone, by who is filling YForOverwrite and has them at hand.
    void UpdateBlockMinMax(int series, std::size_t written) const;
    // What is known of a series without looking at its values; nothing where they may be anything.
    std::optional<sStep> KnownStep(int series) const
    {
        return Has(series) ? m_steps[static_cast<std::size_t>(series - 1)] : std::nullopt;
    }
    // The series that a painter shows: FirstShownSeries to LastShownSeries as far as they exist; the last is
    // below the first when there are none.
    int FirstVisible() const;
    int LastVisible() const;
    // Whether no x is below the one before it, which lets a search for x halve its way. Worked out once per
    // change of x.
    bool XAscending() const;
    // The first x when x is known to count up by one from it, as NumberPoints leaves it; a live chart goes on
    // counting at the right while points leave at the left. Nothing where x may be anything, and without
    // points.
    std::optional<double> ConsecutiveXFrom() const
    {
        return m_x.size() > 0 && m_counted.Covers(m_x.size()) ? std::optional(m_counted.First())
                                                              : std::nullopt;
    }

    // Change tracking for who keeps a picture of the points: remember Revision(), later ask what changed
    // since.
    std::uint64_t Revision() const { return m_revision; }
    sPointChanges ChangesSince(std::uint64_t revision) const;
    // Whether a series has to be looked at again: its own y values changed since, or what all series share.
    bool SeriesChangedSince(int series, std::uint64_t revision) const;
    // Whether what all series share changed since: sizes or x values.
    bool FrameChangedSince(std::uint64_t revision) const { return revision < m_frameRevision; }

private:
    struct sChange
    {
        std::uint64_t Revision;
        int First, Last;
    };
    void NoteWhole(int series = 0); // 0: of all series
    void NotePoints(int series, int first, int last);
    void ForgetX();
    void ForgetBlocks(int series, std::size_t from = 0); // of the values from there on
    std::optional<sStep>& Step(int series) { return m_steps[static_cast<std::size_t>(series - 1)]; }
    bool Has(int series) const { return series >= 1 && series <= SeriesCount(); }
    bool Has(int series, int point) const
    {
        return Has(series) && point >= 1 && point <= static_cast<int>(m_x.size());
    }

    int m_layout = 1, m_firstShown = 1, m_lastShown = 0;
    CSlidingArray m_x;
    std::vector<CSlidingArray> m_y;
    mutable std::vector<CBlockMinMax> m_blocks; // by series
    struct sDrawn
    {
        int To = 0, Undrawn = 0;
        bool Put = false; // since the last AdvanceDrawn
    };
    std::vector<int> m_firstPoint;
    std::vector<sDrawn> m_drawn;               // by series
    std::vector<std::optional<sStep>> m_steps; // by series: what is known to stand at every point
    CConsecutiveRun m_counted;                 // of x
    mutable signed char m_ascending = 1;       // -1: to be found out
    std::uint64_t m_revision = 0;
    std::uint64_t m_frameRevision = 0;         // the last change of what all series share
    std::vector<std::uint64_t> m_yRevision;    // the last change of each series' y values
    std::uint64_t m_wholeRevision = 0;         // before it single changes are not known
    mutable std::uint64_t m_askedRevision = 0; // the newest that anybody has been told of
    std::vector<sChange> m_changes;            // oldest first, a few
};

} // namespace zantroq
