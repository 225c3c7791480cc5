// The objects of a pane's tree. Each holds plain values under the name that the rest of the system uses for
// it and tells its scene of every change. All on the chart window's thread.
#pragma once

#include "drawing/SlidingArray.h"
#include "settings/ChartSettings.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zantroq {

class CChart2D;

enum LinePattern : int
{
    LineNone = 1,
    LineSolid = 2,
    LineLongDashes = 3,
    LineShortDashes = 5
};
enum SymbolShape : int
{
    SymbolNone = 1,
    SymbolMark = 3
};
enum ChartType : int
{
    ChartLines = 1,
    ChartBars = 2,
    ChartBarsFromOrigin = 5,
    ChartHiLoOpenClose = 7,
    ChartCandles = 8
};
enum AnchorSide : int
{
    AnchorAboveRight = 0x11,
    AnchorAboveLeft = 0x12,
    AnchorBelowRight = 0x21,
    AnchorBelowLeft = 0x22
};
enum AttachmentMethod : int
{
    AttachToPixel = 0,
    AttachToPaneTopLeft = 1,
    AttachToData = 2
};

inline constexpr int GeometryFound =
    -100;                                // the answer of PixelToData and PickPoint when they found something
inline constexpr int FarPixel = 1 << 20; // no pixel of a pane lies further out than this
inline constexpr int MaxSeries = 100000; // of a group
inline constexpr int FocusAny = 3;       // PickPoint: the nearest point of any series
inline constexpr int FocusX = 1;         // PickPoint: the nearest in x only

struct sPixelRect
{
    int Left = 0, Top = 0, Right = 0, Bottom = 0; // Right and Bottom are exclusive
    int Width() const { return Right - Left; }
    int Height() const { return Bottom - Top; }
};

// Whether writing b over a would change nothing. Numbers are compared bit by bit: a not-a-number equals
// itself, and a zero's sign counts.
template<class T> bool IsSame(const T& a, const T& b)
{
    if constexpr (std::is_same_v<T, double>)
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    else
        return a == b;
}

// A node that knows its scene.
class CPaneNode
{
public:
    explicit CPaneNode(CChart2D* chart) : m_chart(chart) {}

protected:
    void Touch();
    void TouchData(); // a change of points alone
    // Writes a member and tells the scene, unless the member held that value already.
    template<class T> void Assign(T& member, std::type_identity_t<T> value)
    {
        if (IsSame<T>(member, value))
            return;
        member = std::move(value);
        Touch();
    }
    CChart2D* m_chart;
};

class CPaneInterior : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetBackground(Colour colour)
    {
        if (m_set && m_background == colour)
            return;
        m_set = true;
        m_background = colour;
        Touch();
    }
    void SetForeground(Colour colour) { Assign(m_foreground, colour); } // also the colour of axis text
    Colour Background() const { return m_background; }
    Colour Foreground() const { return m_foreground; }
    // False until a background is given. An interior without one lets what lies around it through.
    bool HasBackground() const { return m_set; }
    void ClearBackground() { Assign(m_set, false); }

private:
    bool m_set = false;
    Colour m_background = 0xFFFFFF, m_foreground = 0x000000;
};

// A size or margin in pixels.
class CPixelValue : public CPaneNode
{
public:
    CPixelValue(CChart2D* chart, int value) : CPaneNode(chart), m_value(value) {}
    int Value() const { return m_value; }
    void SetValue(int pixels)
    {
        m_automatic = false;
        Assign(m_value, pixels);
    }
    void SetAutomatic(bool automatic) { m_automatic = automatic; }
    bool Automatic() const { return m_automatic; }

private:
    int m_value;
    bool m_automatic = true;
};

class CAreaBox : public CPaneNode
{
public:
    explicit CAreaBox(CChart2D* chart)
        : CPaneNode(chart), m_left(chart, 0), m_width(chart, 0), m_height(chart, 0)
    {
    }
    CPixelValue& Left() { return m_left; }
    CPixelValue& Width() { return m_width; }
    CPixelValue& Height() { return m_height; }
    const CPixelValue& Left() const { return m_left; }
    const CPixelValue& Width() const { return m_width; }
    const CPixelValue& Height() const { return m_height; }

private:
    CPixelValue m_left, m_width, m_height;
};

class CPlotFrame : public CPaneNode
{
public:
    explicit CPlotFrame(CChart2D* chart)
        : CPaneNode(chart),
          m_interior(chart),
          m_top(chart, 17),
          m_bottom(chart, 4),
          m_left(chart, 58),
          m_right(chart, 23)
    {
    }
    CPaneInterior& Interior() { return m_interior; }
    CPixelValue& TopMargin() { return m_top; }
    CPixelValue& BottomMargin() { return m_bottom; }
    CPixelValue& LeftMargin() { return m_left; }
    CPixelValue& RightMargin() { return m_right; }
    const CPaneInterior& Interior() const { return m_interior; }
    const CPixelValue& TopMargin() const { return m_top; }
    const CPixelValue& BottomMargin() const { return m_bottom; }
    const CPixelValue& LeftMargin() const { return m_left; }
    const CPixelValue& RightMargin() const { return m_right; }

private:
    CPaneInterior m_interior;
    CPixelValue m_top, m_bottom, m_left, m_right;
};

class CBarLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetBarWidth(int pixels) { Assign(m_width, pixels); }
    int BarWidth() const { return m_width; }

private:
    int m_width = 1;
};

class CCandleLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetFilled(bool filled) { Assign(m_filled, filled); }
    bool Filled() const { return m_filled; }

private:
    bool m_filled = false;
};

class CLineLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetPattern(int pattern) { Assign(m_pattern, pattern); }
    void SetColour(Colour colour) { Assign(m_colour, colour); }
    void SetWidth(int pixels) { Assign(m_width, pixels); }
    int Pattern() const { return m_pattern; }
    Colour LineColour() const { return m_colour; }
    int Width() const { return m_width; }

private:
    int m_pattern = LineSolid, m_width = 1;
    Colour m_colour = 0;
};

class CFillLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetPattern(int pattern) { Assign(m_pattern, pattern); }
    void SetColour(Colour colour) { Assign(m_colour, colour); }
    int Pattern() const { return m_pattern; }
    Colour FillColour() const { return m_colour; }

private:
    int m_pattern = 0;
    Colour m_colour = 0;
};

class CSymbolLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetShape(int shape) { Assign(m_shape, shape); }
    void SetColour(Colour colour) { Assign(m_colour, colour); }
    void SetSize(int pixels) { Assign(m_size, pixels); }
    int Shape() const { return m_shape; }
    Colour SymbolColour() const { return m_colour; }
    int Size() const { return m_size; }

private:
    int m_shape = SymbolNone, m_size = 1;
    Colour m_colour = 0;
};

class CSeriesStyle : public CPaneNode
{
public:
    explicit CSeriesStyle(CChart2D* chart) : CPaneNode(chart), m_line(chart), m_fill(chart), m_symbol(chart)
    {
    }
    CLineLook& LineLook() { return m_line; }
    CFillLook& FillLook() { return m_fill; }
    CSymbolLook& SymbolLook() { return m_symbol; }
    const CLineLook& LineLook() const { return m_line; }
    const CFillLook& FillLook() const { return m_fill; }
    const CSymbolLook& SymbolLook() const { return m_symbol; }

private:
    CLineLook m_line;
    CFillLook m_fill;
    CSymbolLook m_symbol;
};

// One end or spacing of an axis. Setting a value ends automatic mode.
class CAxisBound : public CPaneNode
{
public:
    CAxisBound(CChart2D* chart, double value) : CPaneNode(chart), m_value(value) {}
    double Value() const { return m_value; }
    void SetValue(double value)
    {
        Assign(m_automatic, false);
        Assign(m_value, value);
    }
    bool Automatic() const { return m_automatic; }
    void Restore(double value, bool automatic) // a saved state
    {
        Assign(m_automatic, automatic);
        Assign(m_value, value);
    }
    void SetKind(int kind) { m_kind = kind; } // kept with the scene, without effect of its own
    int Kind() const { return m_kind; }

private:
    double m_value;
    bool m_automatic = true;
    int m_kind = 0;
};

struct sTickLabel
{
    double Value = 0;
    std::string Text;
    bool operator==(const sTickLabel&) const = default;
};

class CTickLabels : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    int Count() const { return static_cast<int>(m_labels.size()); }
    const sTickLabel& Item(int number) const; // from 1; std::invalid_argument otherwise
    void Add(double value, std::string text)
    {
        m_labels.push_back({value, std::move(text)});
        Touch();
    }
    void RemoveAll()
    {
        if (m_labels.empty())
            return;
        m_labels.clear();
        Touch();
    }
    const std::vector<sTickLabel>& All() const { return m_labels; }

private:
    std::vector<sTickLabel> m_labels;
};

class CAxisGrid : public CPaneNode
{
public:
    explicit CAxisGrid(CChart2D* chart) : CPaneNode(chart), m_line(chart) {}
    void SetSpacing(double spacing) { Assign(m_spacing, spacing); } // 0 hides the grid
    double Spacing() const { return m_spacing; }
    CLineLook& LineLook() { return m_line; }
    const CLineLook& LineLook() const { return m_line; }

private:
    double m_spacing = 0;
    CLineLook m_line;
};

class CPaneAxis : public CPaneNode
{
public:
    explicit CPaneAxis(CChart2D* chart);
    CAxisBound& AxisOrigin() { return m_origin; } // automatic: bars start from 0
    CAxisBound& DataLow() { return m_dataLow; }
    CAxisBound& DataHigh() { return m_dataHigh; }
    CAxisBound& ViewLow() { return m_viewLow; }
    CAxisBound& ViewHigh() { return m_viewHigh; }
    CAxisBound& TickSpacing() { return m_tickSpacing; }
    CAxisBound& TickMarkSpacing() { return m_tickMarkSpacing; }
    CTickLabels& TickLabels() { return m_tickLabels; }
    CAxisGrid& AxisGrid() { return m_grid; }
    const CAxisBound& AxisOrigin() const { return m_origin; }
    const CAxisBound& DataLow() const { return m_dataLow; }
    const CAxisBound& DataHigh() const { return m_dataHigh; }
    const CAxisBound& ViewLow() const { return m_viewLow; }
    const CAxisBound& ViewHigh() const { return m_viewHigh; }
    const CAxisBound& TickSpacing() const { return m_tickSpacing; }
    const CAxisBound& TickMarkSpacing() const { return m_tickMarkSpacing; }
    const CTickLabels& TickLabels() const { return m_tickLabels; }
    const CAxisGrid& AxisGrid() const { return m_grid; }
    void SetLabelMethod(int method) { Assign(m_labelMethod, method); }
    int LabelMethod() const { return m_labelMethod; }
    void SetShown(bool shown) { Assign(m_shown, shown); }
    bool Shown() const { return m_shown; }
    // Settings 19, 21 and 22 and the multiplier of "y2": kept with the scene, without effect of their own.
    void SetSetting19(int value) { m_setting19 = value; }
    void SetSetting21(int value) { m_setting21 = value; }
    void SetSetting22(int value) { m_setting22 = value; }
    int Setting19() const { return m_setting19; }
    int Setting21() const { return m_setting21; }
    int Setting22() const { return m_setting22; }
    void SetMultiplier(double multiplier) { m_multiplier = multiplier; }
    double Multiplier() const { return m_multiplier; }

private:
    CAxisBound m_origin, m_dataLow, m_dataHigh, m_viewLow, m_viewHigh, m_tickSpacing, m_tickMarkSpacing;
    CTickLabels m_tickLabels;
    CAxisGrid m_grid;
    int m_labelMethod = 0, m_setting19 = 2, m_setting21 = 2, m_setting22 = 0;
    bool m_shown = true;
    double m_multiplier = 1.0;
};

class CPaneAxes : public CPaneNode
{
public:
    explicit CPaneAxes(CChart2D* chart) : CPaneNode(chart), m_x(chart), m_y(chart), m_y2(chart) {}
    CPaneAxis& Item(const std::string& name); // "x", "y" or "y2"; std::invalid_argument otherwise
    CPaneAxis& X() { return m_x; }
    CPaneAxis& Y() { return m_y; }
    CPaneAxis& Y2() { return m_y2; }
    const CPaneAxis& X() const { return m_x; }
    const CPaneAxis& Y() const { return m_y; }
    const CPaneAxis& Y2() const { return m_y2; }

private:
    CPaneAxis m_x, m_y, m_y2;
};

inline constexpr int NoPoint = -1000000; // a marker that stands nowhere

class CPaneMarker : public CPaneNode
{
public:
    explicit CPaneMarker(CChart2D* chart) : CPaneNode(chart), m_line(chart) {}
    void SetShown(bool shown) { Assign(m_shown, shown); }
    bool Shown() const { return m_shown; }
    void SetLock(int lock) { m_lock = lock; } // always 1: locked to a point
    int Lock() const { return m_lock; }
    CLineLook& LineLook() { return m_line; }
    const CLineLook& LineLook() const { return m_line; }
    void SetPoint(int point) { Assign(m_point, point); }
    int Point() const { return m_point; } // NoPoint: none

private:
    bool m_shown = false;
    int m_lock = 1, m_point = NoPoint;
    CLineLook m_line;
};

class CPaneArea : public CPaneNode
{
public:
    explicit CPaneArea(CChart2D* chart)
        : CPaneNode(chart),
          m_box(chart),
          m_interior(chart),
          m_frame(chart),
          m_bar(chart),
          m_candle(chart),
          m_marker(chart),
          m_axes(chart)
    {
    }
    CAreaBox& AreaBox() { return m_box; }
    CPaneInterior& Interior() { return m_interior; }
    CPlotFrame& PlotFrame() { return m_frame; }
    CBarLook& BarLook() { return m_bar; }
    CCandleLook& CandleLook() { return m_candle; }
    CPaneMarker& PaneMarkers(const std::string& name); // "x"; std::invalid_argument otherwise
    CPaneAxes& PaneAxes() { return m_axes; }
    const CAreaBox& AreaBox() const { return m_box; }
    const CPaneInterior& Interior() const { return m_interior; }
    const CPlotFrame& PlotFrame() const { return m_frame; }
    const CBarLook& BarLook() const { return m_bar; }
    const CCandleLook& CandleLook() const { return m_candle; }
    const CPaneMarker& Marker() const { return m_marker; }
    const CPaneAxes& PaneAxes() const { return m_axes; }
    // What lies around and behind the plot, given the pane's own colours.
    Colour Background(const CPaneInterior& pane) const
    {
        return (m_interior.HasBackground() ? m_interior : pane).Background();
    }
    Colour PlotBackground(const CPaneInterior& pane) const
    {
        return m_frame.Interior().HasBackground() ? m_frame.Interior().Background() : Background(pane);
    }

private:
    CAreaBox m_box;
    CPaneInterior m_interior;
    CPlotFrame m_frame;
    CBarLook m_bar;
    CCandleLook m_candle;
    CPaneMarker m_marker;
    CPaneAxes m_axes;
};

// Which points changed after a revision of a CPaneData. Empty (Last below First) when none did.
struct sPointChanges
{
    bool Whole = false;      // sizes or x values or a bulk load: everything has to be looked at again
    int First = 1, Last = 0; // else the points, from 1
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
    // How far the series is drawn, kept for who asks. A pane shows all its points whatever the marker says.
    int DrawnTo(int series) const;
    void SetDrawnTo(int series, int point);
    bool AdvanceDrawn(int series, int count); // moves the marker on; false past the end
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
    // x becomes 1 to PointCount, and every y of a series one value. Both cost nothing where it is so already,
    // since a pane remembers it: a whole draw of many points sets them again each time.
    void NumberPoints();
    void SetConstantY(int series, double y);
    bool GetXVector(int series, std::vector<double>& x) const;
    // The y values of a series for who writes all of them in place, which saves a copy of what may be long.
    // Inside a batch, or with CommitPaneData behind it. Empty for a number out of range.
    std::span<double> WholeY(int series);
    // A bulk load without a copy: the room of all PointCount values of a series, for the caller to write at
    // once and then to commit with CommitPaneData. Good until a count changes; empty for an unknown series.
    std::span<double> LoadY(int series);

    // For the painter and for whole-vector readers: no copies.
    std::span<const double> X() const { return m_x; }
    std::span<const double> Y(int series) const;
    // The series that a painter shows: FirstShownSeries to LastShownSeries as far as they exist; the last is
    // below the first when there are none.
    int FirstVisible() const;
    int LastVisible() const;
    // Whether no x is below the one before it, which lets a search for x halve its way. Worked out once per
    // change of x.
    bool XAscending() const;

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
    std::optional<double>& Constant(int series) { return m_constant[static_cast<std::size_t>(series - 1)]; }
    bool Has(int series) const { return series >= 1 && series <= SeriesCount(); }
    bool Has(int series, int point) const
    {
        return Has(series) && point >= 1 && point <= static_cast<int>(m_x.size());
    }

    int m_layout = 1, m_firstShown = 1, m_lastShown = 0;
    CSlidingArray m_x;
    std::vector<CSlidingArray> m_y;
    std::vector<int> m_firstPoint, m_drawnTo;
    std::vector<std::optional<double>> m_constant; // by series: the one value known to stand at every point
    bool m_numbered = true;                        // x is known to be 1, 2, 3, ...
    mutable signed char m_ascending = 1;           // -1: to be found out
    std::uint64_t m_revision = 0;
    std::uint64_t m_frameRevision = 0;         // the last change of what all series share
    std::vector<std::uint64_t> m_yRevision;    // the last change of each series' y values
    std::uint64_t m_wholeRevision = 0;         // before it single changes are not known
    mutable std::uint64_t m_askedRevision = 0; // the newest that anybody has been told of
    std::vector<sChange> m_changes;            // oldest first, a few
};

class CPaneGroup : public CPaneNode
{
public:
    explicit CPaneGroup(CChart2D* chart) : CPaneNode(chart), m_data(chart) {}
    void SetChartType(int type) { Assign(m_type, type); }
    int Type() const { return m_type; }
    CPaneData& PaneData() { return m_data; }
    const CPaneData& PaneData() const { return m_data; }
    void CommitPaneData()
    {
        TouchData();
    } // the data object put back: commits bulk loads of several vectors at once
    CSeriesStyle& SeriesStyles(int series);          // from 1; a style exists as soon as it is asked for
    const CSeriesStyle* FindStyle(int series) const; // null where none was ever asked for
    void RemoveStyles();
    int StyleCount() const { return static_cast<int>(m_styles.size()); }

    // The low end of an axis's view lies in the first pixel of the plot (y: the bottom one), the high end in
    // the last; between them a value goes to the nearest pixel, halves to the right and down. PixelToData
    // gives the value in the middle of the pixel, so DataToPixel leads back to the pixel it came from. An
    // axis whose view has no extent or is not finite maps every value to the middle of the plot, and every
    // pixel to its low end.
    //
    // GeometryFound when the pixel lies in the plot region, 0 when not; x and y are set in either case.
    int PixelToData(int pixelX, int pixelY, double& x, double& y) const;
    // Off the plot the pixels go on as far as FarPixel. An infinity gives the pane's edge, a not-a-number or
    // hole -1.
    void DataToPixel(double x, double y, int& pixelX, int& pixelY) const;
    // GeometryFound when a point was found, 0 when not: then series and point are 0 and distance is -1. Only
    // points inside the plot count. FocusAny takes the nearest point of the shown series in whole pixels, cut
    // to an integer; on a tie the earliest series, in it the earliest point; holes are not points. FocusX
    // takes the nearest in x of the first shown series, the earliest on a tie, whatever its y. Outside the
    // plot region nothing is found.
    int PickPoint(int pixelX, int pixelY, int focus, int& series, int& point, int& distance) const;
    // Pixel y is -1 where the point is a hole or off the plot; both are -1 where there is no such point.
    void PointToPixel(int series, int point, int& pixelX, int& pixelY) const;

private:
    friend class CChart2D;
    friend struct sSceneAccess;
    int m_type = ChartLines;
    CPaneData m_data;
    std::vector<std::unique_ptr<CSeriesStyle>> m_styles;
};

// A text in the pane.
class CPaneLabel : public CPaneNode
{
public:
    explicit CPaneLabel(CChart2D* chart) : CPaneNode(chart), m_interior(chart) {}
    void SetBoxAttachment(int kind) { m_boxAttachment = kind; }
    void SetBoxEdge(int kind) { m_boxEdge = kind; }
    int BoxAttachment() const { return m_boxAttachment; }
    int BoxEdge() const { return m_boxEdge; }
    CPaneInterior& Interior() { return m_interior; }
    const CPaneInterior& Interior() const { return m_interior; }
    void SetText(std::string text) { AssignOwn(m_text, std::move(text)); } // lines separated by newline
    const std::string& Text() const { return m_text; }
    void SetPixelAnchor(int x, int y)
    {
        AssignOwn(m_pixelX, x);
        AssignOwn(m_pixelY, y);
    }
    int PixelX() const { return m_pixelX; }
    int PixelY() const { return m_pixelY; }
    void SetDataAnchor(double x, double y)
    {
        AssignOwn(m_dataX, x);
        AssignOwn(m_dataY, y);
    }
    double DataX() const { return m_dataX; }
    double DataY() const { return m_dataY; }
    void SetShown(bool shown) { AssignOwn(m_shown, shown); }
    bool Shown() const { return m_shown; }
    void SetRepaintSuspended(bool suspended);
    bool RepaintSuspended() const { return m_suspended; }
    void SetAttachment(int method) { AssignOwn(m_attachment, method); }
    int Attachment() const { return m_attachment; }
    void SetAnchorSide(int side) { AssignOwn(m_anchorSide, side); }
    int Side() const { return m_anchorSide; }
    void SetBorder(int kind) { AssignOwn(m_border, kind); } // 1: a 1-pixel border
    int Border() const { return m_border; }

private:
    CPaneInterior m_interior;
    std::string m_text;
    // While suspended, changes wait; they are told once when the suspension ends.
    template<class T> void AssignOwn(T& member, std::type_identity_t<T> value)
    {
        if (IsSame<T>(member, value))
            return;
        member = std::move(value);
        TouchOwn();
    }
    void TouchOwn();

    bool m_suspended = false, m_waiting = false;
    int m_boxAttachment = 0, m_boxEdge = 4, m_pixelX = 0, m_pixelY = 0, m_attachment = AttachToPixel,
        m_anchorSide = AnchorBelowRight, m_border = 0;
    double m_dataX = 0, m_dataY = 0;
    bool m_shown = false;
};

class CPaneLabels : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    int Count() const { return static_cast<int>(m_labels.size()); }
    CPaneLabel& Item(int number); // from 1; std::invalid_argument otherwise
    const CPaneLabel& Item(int number) const;
    CPaneLabel& Add();
    void Remove(int number); // the ones behind it move down; std::invalid_argument out of range
    void RemoveAll();

private:
    std::vector<std::unique_ptr<CPaneLabel>> m_labels;
};

} // namespace zantroq
