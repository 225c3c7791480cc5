// The points of a group, and a record of what changed. Chart window's thread.
#pragma once

#include "scene/BlockMinMax.h"
#include "scene/ConsecutiveRun.h"
#include "scene/HoleValue.h"
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
    bool Whole = false;      // sizes, x values or whole vectors changed: any point may have
    int First = 1, Last = 0; // otherwise the changed points, from 1
};

// A series that has holes up to some point and one value from there on.
struct sStep
{
    std::size_t Holes; // points at the beginning that hold the hole value
    double Value;      // of all other points
};

// The vectors of a group. The layout is always 1: one x vector, and with it one point count, shared by all
// series of the group. Setting the point count of any series resizes all of them; new points hold the hole
// value. Numbers out of range are allowed: a getter then returns 0 (PointY the hole value), a setter does
// nothing.
class CPaneData : public CPaneNode
{
public:
    explicit CPaneData(CChart2D* chart) : CPaneNode(chart) {}

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
    // How far the series is drawn. SetDrawnTo sets the position, AdvanceDrawn draws `count` points after it
    // and moves it, or returns false past the last point. Points before a position set this way are not
    // drawn: they are a curve's warm-up, whose values remain readable. Until the next AdvanceDrawn a set
    // position has no effect; points after it are always drawn.
    int DrawnTo(int series) const;
    void SetDrawnTo(int series, int point);
    bool AdvanceDrawn(int series, int count);
    // The number of points at the beginning that are not drawn for that reason. SetUndrawn restores a saved
    // pane; AdvanceDrawn then continues from the position.
    int Undrawn(int series) const;
    void SetUndrawn(int series, int points);
    double PointX(int series, int point) const;
    void SetPointX(int series, int point, double x);
    double PointY(int series, int point) const;
    void SetPointY(int series, int point, double y);
    // Copies `count` points from firstSource on to the beginning of the series. x moves with series 1 only.
    bool ShiftPoints(int series, int count, int firstSource);
    // Bulk loads. False, with nothing changed, when there are fewer values than PointCount.
    bool SetXVector(int series, std::span<const double> x);
    bool SetXVector(int series, std::span<const int> x);
    bool SetYVector(int series, std::span<const double> y);
    // NumberPoints sets x to first, first + 1 and so on; SetConstantY sets all y values of a series to one
    // value. Both return at once when that is already so, which the pane remembers: a whole draw of many
    // points calls them again each time.
    void NumberPoints(double first = 1);
    void SetConstantY(int series, double y);
    // The hole value before firstPoint and y from there on. Writes only the points that change.
    void SetStepY(int series, int firstPoint, double y);
    bool GetXVector(int series, std::vector<double>& x) const;
    // Copies the x values of another group; at once when they are consecutive. False when it has fewer
    // points.
    bool TakeX(const CPaneData& other);
    // Write access to all y values, without a copy. Call inside a batch, or call CommitPaneData afterwards.
    // Overwrite every value before anyone reads; valid until a count changes. Empty for a number out of
    // range.
    std::span<double> YForOverwrite(int series);

    // Without a copy. Valid until a count changes.
    std::span<const double> X() const { return m_x; }
    std::span<const double> Y(int series) const;
    // The first drawn point, from 0; it may lie past the last one.
    std::size_t FirstDrawn(int series) const;
    // The y values with the least and greatest of their blocks. UpdateBlockMinMax reads the values that
    // changed since the last update; blocks that changed without an update are missing. It pays where many
    // values are looked at together. Valid until the values change.
    sBlockedValues BlockedY(int series) const;
    void UpdateBlockMinMax(int series) const;
    // Likewise for the first `written` values alone, for a caller that fills YForOverwrite and has them in
    // the cache.
    void UpdateBlockMinMax(int series, std::size_t written) const;
    // The step that the series is known to be, without looking at its values.
    std::optional<sStep> KnownStep(int series) const
    {
        return Has(series) ? m_steps[static_cast<std::size_t>(series - 1)] : std::nullopt;
    }
    // The series to paint: FirstShownSeries to LastShownSeries, as far as they exist. The last is below the
    // first when there are none.
    int FirstVisible() const;
    int LastVisible() const;
    // Whether no x is below the one before it, so that x can be searched by bisection. Computed once per
    // change of x.
    bool XAscending() const;
    // The first x if x is known to count up by one from it: after NumberPoints, and while a live chart
    // appends the next number at the right and drops points at the left. Empty otherwise, and without points.
    std::optional<double> ConsecutiveXFrom() const
    {
        return m_x.size() > 0 && m_counted.Covers(m_x.size()) ? std::optional(m_counted.First())
                                                              : std::nullopt;
    }

    // For readers that keep a picture of the points: remember Revision(), and later ask what changed since.
    std::uint64_t Revision() const { return m_revision; }
    sPointChanges ChangesSince(std::uint64_t revision) const;
    // Whether the y values of a series changed since, or what all series share.
    bool SeriesChangedSince(int series, std::uint64_t revision) const;
    // Whether what all series share changed since: sizes and x values.
    bool FrameChangedSince(std::uint64_t revision) const { return revision < m_frameRevision; }

private:
    struct sChange
    {
        std::uint64_t Revision;
        int First, Last;
    };
    template<class T> bool LoadX(int series, std::span<const T> x);
    void NoteWhole(int series = 0); // 0: all series
    void NotePoints(int series, int first, int last);
    void ForgetX();
    void ForgetBlocks(int series, std::size_t from = 0); // from the value at `from` on
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
        bool Set = false; // since the last AdvanceDrawn
    };
    std::vector<int> m_firstPoint;
    std::vector<sDrawn> m_drawn;               // by series
    std::vector<std::optional<sStep>> m_steps; // by series, if known
    CConsecutiveRun m_counted;                 // of x
    mutable signed char m_ascending = 1;       // -1: unknown
    std::uint64_t m_revision = 0;
    std::uint64_t m_frameRevision = 0;         // the last change of what all series share
    std::vector<std::uint64_t> m_yRevision;    // the last change of each series' y values
    std::uint64_t m_wholeRevision = 0;         // changes of single points before it are not recorded
    mutable std::uint64_t m_askedRevision = 0; // the newest revision that ChangesSince has answered
    std::vector<sChange> m_changes;            // oldest first, a few
};

} // namespace zantroq
