// The base of all trendlines, and the horizontal trendline itself. An anchor is a data index (from 0) and a
// price, so neither scrolling nor new points move a line. A line owns series numbers of group 2 of the price
// pane; drawing the line writes one value per displayed point into these series. Chart window's thread.
#pragma once

#include "drawing/ChartWindow.h"
#include "settings/ChartSettings.h"
#include "trends/TrendGeometry.h"
#include "trends/TrendRecord.h"

#include <vector>

namespace zantroq {

class CBaseTrend
{
public:
    CBaseTrend(int series, int startIndex, double value, const sTrendStyle& style);
    virtual ~CBaseTrend() = default;
    CBaseTrend(const CBaseTrend&) = delete;
    CBaseTrend& operator=(const CBaseTrend&) = delete;

    virtual TrendKind Kind() const { return TrendHorizontal; }
    // All series of the line, the first series first, in the order in which they are released.
    virtual std::vector<int> AllSeries() const { return {m_series}; }

    // Writes m_value from the left anchor to the right one, or to the last displayed point if the line is
    // extendable. One pass over the displayed points.
    virtual void Draw();
    // Writes the hole value at every displayed point of every series.
    virtual void Erase();
    // Distance in pixels from (x, y), in pixels of the price pane, to the drawn line; NotHittable if it
    // cannot be hit.
    virtual int HitDistance(int x, int y) const;

    virtual void MapThirdPoint(int a, int b, int* outA, int* outB) const;
    virtual void GetIndexes(int* start, int* end) const;
    virtual void GetStartIndex(int* start) const { *start = m_startIndex; }
    virtual void GetIndexesForFork(int* start, int* end) const { GetIndexes(start, end); }
    virtual double GetEndValue() const { return 1000000.0; }
    virtual void SetEndValue(double) {}
    virtual double GetOffset() const { return 1000000.0; }
    virtual void SetOffset(double) {}
    virtual void SetThirdPoint(int /*index*/, double /*value*/) {}
    virtual int GetFirstLabel() const { return 0; }
    virtual void SetFirstLabel(int) {}
    // Adds the members that only this kind has to a record in which the common members are already set.
    virtual void DescribeKind(sTrendRecord&) const {}
    // Series number 2 to 10 of the kind; 0 if it has none.
    int GetSeries(int number) const;

    // Shows small grey marks on every point, as for a line that is being drawn or flashes.
    void SetMarkers(bool on);
    void ToggleMarkers();

    IPaneWindow* m_owner = nullptr; // set by CTrendList::Add
    int m_series = 0;
    int m_startIndex = 0;
    int m_endIndex = 0;
    double m_value = 0;
    ColorValue m_color = 0;
    int m_width = 1;
    int m_extendable = 0;

protected:
    // Both anchors as display positions, the left one first. If both have the same index, both have the price
    // of the first.
    struct sSpan
    {
        int Left = 0, Right = 0;
        double LeftValue = 0, RightValue = 0;
        double Slope() const { return Left == Right ? 0.0 : (RightValue - LeftValue) / (Right - Left); }
    };
    sSpan Span() const;
    sTrendLook Look(int pattern = LineSolid) const { return {m_color, pattern, m_width}; }
    int Shown() const { return m_owner->Range().shown; }
    // The range of a hit test between the anchors, clipped to the pane. Returns false if it is empty.
    bool AnchorRange(int& p1, int& p2) const;
    // The range of a hit test from the left anchor to the last displayed point. Returns false if it is empty.
    bool RayRange(int& p1, int& p2) const;
};

} // namespace zantroq
