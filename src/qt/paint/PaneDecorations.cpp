#include "qt/paint/PaneDecorations.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zantroq {

namespace {

constexpr int MostGridLines = 400;

class CPlacer
{
public:
    CPlacer(const CChart2D& chart, const sPlotMap& map, double scale, int width, int height, CPaneText& text)
        : m_chart(chart),
          m_map(map),
          m_scale(scale),
          m_width(width),
          m_height(height),
          m_hair(Device(1)),
          m_text(text)
    {
        const CPaneArea& area = chart.PaneArea();
        Out.Background = ScreenColor(area.Background(chart.PaneInterior()));
        Out.PlotBackground = ScreenColor(area.PlotBackground(chart.PaneInterior()));
        m_foreground = ScreenColor(chart.PaneInterior().Foreground());
        m_quiet = Mixed(Out.Background, m_foreground, 96);
    }

    void Place()
    {
        const CPaneAxes& axes = m_chart.PaneArea().PaneAxes();
        for (int number = 1; number <= m_chart.PaneLabels().Count(); ++number)
            PlaceLabel(m_chart.PaneLabels().Item(number));
        if (!m_map.Empty()) {
            PlaceGrid(axes);
            PlaceFrame(axes);
            PlaceMarker();
            if (axes.Y().Shown())
                PlaceValueTexts(axes.Y(), true);
            if (axes.Y2().Shown())
                PlaceValueTexts(axes.Y2(), false);
            if (axes.X().Shown())
                PlaceXTexts(axes.X());
        }
    }

    sPaneDecorations Out;

private:
    int Device(int pixels) const
    {
        const int device =
            static_cast<int>(std::floor(std::clamp(pixels, -FarPixel, FarPixel) * m_scale + 0.5));
        return pixels > 0 ? std::max(1, device) : device;
    }

    // The places of values origin + k * spacing inside the plot.
    template<class F>
    void ForEachStep(const CAxisMap& axis, double origin, double spacing, int first, int last, F place) const
    {
        if (!(spacing > 0) || !std::isfinite(spacing) || !std::isfinite(origin))
            return;
        const double a = axis.Value(std::min(first, last)), b = axis.Value(std::max(first, last));
        const double slack = 1e-6;
        const double from = std::ceil((std::min(a, b) - origin) / spacing - slack);
        const double to = std::floor((std::max(a, b) - origin) / spacing + slack);
        if (!(to - from < MostGridLines)) // also when it is not a number
            return;
        for (double k = from; k <= to; ++k)
            place(std::clamp(axis.Pixel(origin + k * spacing), std::min(first, last), std::max(first, last)));
    }

    double ValueOrigin(const CPaneAxes& axes) const
    {
        // Grid lines run through the value labels, whichever side carries them.
        for (const CPaneAxis* axis : {&axes.Y(), &axes.Y2()})
            if (axis->TickLabels().Count() > 0)
                return axis->TickLabels().Item(1).Value;
        return axes.Y().ViewLow().Value();
    }

    // The labels stand at multiples of the spacing, counted from the point before the first one shown.
    static double PointOrigin(const CPaneAxes& axes) { return std::floor(axes.X().ViewLow().Value()) - 1; }

    sRuledLine Across(int y, const CLineLook& look) const
    {
        const int width = Device(std::clamp(look.Width(), 1, 20));
        return {{m_map.Plot.Left, y - width / 2, m_map.Plot.Right, y - width / 2 + width},
                false,
                look.Pattern(),
                ScreenColor(look.LineColor())};
    }
    sRuledLine Upright(int x, const CLineLook& look) const
    {
        const int width = Device(std::clamp(look.Width(), 1, 20));
        return {{x - width / 2, m_map.Plot.Top, x - width / 2 + width, m_map.Plot.Bottom},
                true,
                look.Pattern(),
                ScreenColor(look.LineColor())};
    }
    void AddCut(std::vector<sRuledLine>& lines, sRuledLine line) const
    {
        line.Rect = {std::max(line.Rect.Left, m_map.Plot.Left), std::max(line.Rect.Top, m_map.Plot.Top),
                     std::min(line.Rect.Right, m_map.Plot.Right),
                     std::min(line.Rect.Bottom, m_map.Plot.Bottom)};
        if (line.Pattern != LineNone && line.Rect.Width() > 0 && line.Rect.Height() > 0)
            lines.push_back(line);
    }

    void PlaceGrid(const CPaneAxes& axes)
    {
        const sPixelRect& plot = m_map.Plot;
        ForEachStep(m_map.X, PointOrigin(axes), axes.X().AxisGrid().Spacing(), plot.Left, plot.Right - 1,
                    [&](int x) {
                        if (x > plot.Left && x < plot.Right - 1)
                            AddCut(Out.Grid, Upright(x, axes.X().AxisGrid().LineLook()));
                    });
        const CAxisGrid& grid =
            axes.Y().AxisGrid().Spacing() > 0 ? axes.Y().AxisGrid() : axes.Y2().AxisGrid();
        ForEachStep(m_map.Y, ValueOrigin(axes), grid.Spacing(), plot.Top, plot.Bottom - 1, [&](int y) {
            if (y > plot.Top && y < plot.Bottom - 1)
                AddCut(Out.Grid, Across(y, grid.LineLook()));
        });
    }

    void PlaceFrame(const CPaneAxes& axes)
    {
        const sPixelRect& plot = m_map.Plot;
        const auto solid = [&](int left, int top, int right, int bottom) {
            Out.Frame.push_back(
                {{left, top, right, bottom}, right - left < bottom - top, LineSolid, m_quiet});
        };
        solid(plot.Left - m_hair, plot.Top - m_hair, plot.Right + m_hair, plot.Top);
        solid(plot.Left - m_hair, plot.Bottom, plot.Right + m_hair, plot.Bottom + m_hair);
        solid(plot.Left - m_hair, plot.Top, plot.Left, plot.Bottom);
        solid(plot.Right, plot.Top, plot.Right + m_hair, plot.Bottom);
        const int tick = Device(3), hair = m_hair;
        const auto valueTick = [&](const CPaneAxis& axis, bool left) {
            if (!axis.Shown())
                return;
            ForEachStep(
                m_map.Y, ValueOrigin(axes), axis.TickMarkSpacing().Value(), plot.Top, plot.Bottom - 1,
                [&](int y) {
                    if (left)
                        solid(plot.Left - hair - tick, y - hair / 2, plot.Left - hair, y - hair / 2 + hair);
                    else
                        solid(plot.Right + hair, y - hair / 2, plot.Right + hair + tick, y - hair / 2 + hair);
                });
        };
        valueTick(axes.Y(), true);
        valueTick(axes.Y2(), false);
        if (!axes.X().Shown())
            return;
        ForEachStep(m_map.X, PointOrigin(axes), axes.X().TickMarkSpacing().Value(), plot.Left, plot.Right - 1,
                    [&](int x) {
                        solid(x - hair / 2, plot.Bottom + hair, x - hair / 2 + hair,
                              plot.Bottom + hair + tick);
                    });
    }

    void PlaceMarker()
    {
        const CPaneMarker& marker = m_chart.PaneArea().Marker();
        const CPaneData& data = m_chart.PaneGroups(1).PaneData();
        if (!marker.Shown() || marker.Point() < 1)
            return;
        const double x =
            marker.Point() <= data.PointCount(1) ? data.PointX(1, marker.Point()) : marker.Point();
        if (IsDrawn(x))
            AddCut(Out.Marker, Upright(m_map.X.Pixel(x), marker.LineLook()));
    }

    void PlaceValueTexts(const CPaneAxis& axis, bool left)
    {
        const int gap = Device(6), line = m_text.LineHeight();
        std::vector<int> taken;
        for (const sTickLabel& label : axis.TickLabels().All()) {
            if (!IsDrawn(label.Value) || label.Text.empty())
                continue;
            const int y = m_map.Y.Pixel(label.Value);
            if (y < m_map.Plot.Top || y >= m_map.Plot.Bottom)
                continue;
            // Digits have no descents: the middle of the text is half its ascent above its base.
            const int middle = y - (m_text.Ascent() - m_text.Ascent() / 4) / 2 - m_text.Ascent() / 4;
            // The outermost labels give way to the title and the pane's end by a few pixels.
            const int top = std::clamp(middle, std::min(m_titleBottom, m_map.Plot.Top),
                                       std::max(m_map.Plot.Top, m_height - line));
            if (std::any_of(taken.begin(), taken.end(),
                            [&](int other) { return std::abs(other - top) < line - 1; }))
                continue;
            taken.push_back(top);
            // A text too long for its margin reaches into the plot: a price that lost a digit would be
            // another price.
            const int advance = m_text.Advance(label.Text), edge = Device(1);
            const int x = left ? std::max(edge, m_map.Plot.Left - m_hair - gap - advance)
                               : std::min(m_width - edge - advance, m_map.Plot.Right + m_hair + gap);
            const int marks = m_hair + Device(3); // frame and tick marks
            if (left ? x + advance > m_map.Plot.Left - marks : x < m_map.Plot.Right + marks)
                AddGround({x - edge, top, x + advance + edge, top + line});
            Out.AxisTexts.push_back({x, top, label.Text, m_foreground});
        }
    }

    // Nothing shows between the digits of a text that lies over the frame: a line there reads as a digit.
    void AddGround(const sPixelRect& box)
    {
        Out.Grounds.push_back({box, Out.Background});
        const sPixelRect& plot = m_map.Plot;
        const sPixelRect inside{std::max(box.Left, plot.Left), std::max(box.Top, plot.Top),
                                std::min(box.Right, plot.Right), std::min(box.Bottom, plot.Bottom)};
        if (inside.Width() > 0 && inside.Height() > 0)
            Out.Grounds.push_back({inside, Out.PlotBackground});
    }

    void PlaceXTexts(const CPaneAxis& axis)
    {
        const int gap = Device(6), room = Device(5);
        const int top = m_map.Plot.Bottom + m_hair + gap;
        if (top + m_text.LineHeight() > m_height + m_text.LineHeight() / 3)
            return;
        std::vector<const sTickLabel*> shown;
        for (const sTickLabel& label : axis.TickLabels().All())
            if (IsDrawn(label.Value) && !label.Text.empty() &&
                m_map.X.Pixel(label.Value) >= m_map.Plot.Left &&
                m_map.X.Pixel(label.Value) < m_map.Plot.Right)
                shown.push_back(&label);
        std::vector<std::pair<int, int>> taken;
        for (const sTickLabel* const next : shown) {
            const sTickLabel& label = *next;
            const int x = m_map.X.Pixel(label.Value), advance = m_text.Advance(label.Text);
            const int least = std::min(room, m_width - advance);
            const int left = std::clamp(x - advance / 2, least, std::max(least, m_width - advance - room));
            const auto meets = [&](const std::pair<int, int>& other) {
                return left < other.second + room && other.first < left + advance + room;
            };
            // A date with its time is wide. The first one, which stands by the pane's edge, gives way to the
            // second rather than drive it out.
            if (taken.size() == 1)
                if (const int by = taken[0].second - (left - room); by > 0 && taken[0].first - by >= room) {
                    taken[0] = {taken[0].first - by, taken[0].second - by};
                    Out.AxisTexts.back().Left -= by;
                }
            // The last one, the time of the last point, drives out what it meets.
            if (next == shown.back())
                while (!taken.empty() && meets(taken.back())) {
                    taken.pop_back();
                    Out.AxisTexts.pop_back();
                }
            if (std::any_of(taken.begin(), taken.end(), meets))
                continue;
            taken.emplace_back(left, left + advance);
            Out.AxisTexts.push_back({left, top, label.Text, m_foreground});
        }
    }

    static std::vector<std::string_view> LinesOf(std::string_view text)
    {
        std::vector<std::string_view> lines;
        for (std::size_t from = 0; from <= text.size();) {
            const std::size_t end = std::min(text.find('\n', from), text.size());
            lines.push_back(text.substr(from, end - from));
            from = end + 1;
        }
        while (!lines.empty() && lines.back().empty())
            lines.pop_back();
        return lines;
    }

    // Lines wider than the room go on in the next one where two blanks stand, as they do between the parts of
    // a title.
    std::vector<std::string_view> Folded(const std::vector<std::string_view>& lines, int room)
    {
        constexpr std::string_view blanks = "  ";
        std::vector<std::string_view> folded;
        for (std::string_view line : lines) {
            while (m_text.Advance(line) > room) {
                std::size_t cut = line.rfind(blanks);
                while (cut != line.npos && cut > 0 && m_text.Advance(line.substr(0, cut)) > room)
                    cut = line.rfind(blanks, cut - 1);
                if (cut == line.npos || cut == 0)
                    break;
                folded.push_back(line.substr(0, cut));
                line.remove_prefix(cut + blanks.size());
            }
            folded.push_back(line);
        }
        return folded;
    }

    // Where the label hangs, in device pixels; false when that is nowhere.
    bool Anchor(const CPaneLabel& label, int& x, int& y) const
    {
        if (label.Attachment() == AttachToPaneTopLeft) {
            x = Device(4);
            y = m_scale >= 1 ? Device(1) : 0;
            return true;
        }
        if (label.Attachment() != AttachToData) {
            x = Device(label.PixelX());
            y = Device(label.PixelY());
            return true;
        }
        if (m_map.Empty() || !IsDrawn(label.DataX()) || !IsDrawn(label.DataY()))
            return false;
        x = std::isinf(label.DataX()) ? (label.DataX() < 0 ? m_map.Plot.Left : m_map.Plot.Right - 1)
                                      : m_map.X.Pixel(label.DataX());
        y = std::isinf(label.DataY()) ? (label.DataY() < 0 ? m_map.Plot.Bottom - 1 : m_map.Plot.Top)
                                      : m_map.Y.Pixel(label.DataY());
        return true;
    }

    void PlaceLabel(const CPaneLabel& label)
    {
        int x = 0, y = 0;
        if (!label.Shown() || label.Text().empty() || !Anchor(label, x, y))
            return;
        std::vector<std::string_view> lines = LinesOf(label.Text());
        const bool title = label.Attachment() == AttachToPaneTopLeft;
        if (title && !m_map.Empty())
            lines = Folded(lines, m_width - 2 * x - 2 * (Device(4) + m_hair));
        const bool border = label.Border() == 1;
        const int edge = border ? m_hair : 0;
        const int padX = Device(4) + edge, padY = (title ? 0 : Device(lines.size() > 1 ? 3 : 1)) + edge;
        int widest = 0;
        for (const std::string_view line : lines)
            widest = std::max(widest, m_text.Advance(line));
        const int count = static_cast<int>(std::min<std::size_t>(lines.size(), 1000));
        const int width = widest + 2 * padX, height = count * m_text.LineHeight() + 2 * padY;
        // A title hangs from the corner whatever its side; the others stand beside their anchor.
        const bool above = !title && (label.Side() >> 4) == 1, toLeft = !title && (label.Side() & 15) == 2;
        int left = toLeft ? x - width : x, top = above ? y - height : y;
        if (label.Attachment() == AttachToData) { // a readout is to be read whole
            left = std::max(0, std::min(left, m_width - width));
            top = std::max(0, std::min(top, m_height - height));
        }
        if (left >= m_width || top >= m_height || left + width <= 0 || top + height <= 0)
            return;
        sPlacedLabel placed;
        placed.Box = {left, top, left + width, top + height};
        placed.Background = ScreenColor(label.Interior().Background());
        const QRgb foreground = ScreenColor(label.Interior().Foreground());
        placed.Border = Mixed(placed.Background, foreground, 128);
        placed.Edge = edge;
        for (int i = 0; i < count; ++i)
            placed.Lines.push_back({left + padX, top + padY + i * m_text.LineHeight(),
                                    std::string(lines[static_cast<std::size_t>(i)]), foreground});
        if (title)
            m_titleBottom = std::max(m_titleBottom, placed.Box.Bottom);
        Out.Labels.push_back(std::move(placed));
    }

    const CChart2D& m_chart;
    const sPlotMap& m_map;
    double m_scale;
    int m_width, m_height, m_hair, m_titleBottom = 0;
    CPaneText& m_text;
    QRgb m_foreground = 0, m_quiet = 0;
};

} // namespace

sPaneDecorations PlaceDecorations(const CChart2D& chart, const sPlotMap& map, double scale, int width,
                                  int height, CPaneText& text)
{
    CPlacer placer(chart, map, scale, width, height, text);
    placer.Place();
    return std::move(placer.Out);
}

void DrawRuled(IPaneCanvas& canvas, const sRuledLine& line, const sPixelRect& within)
{
    if (line.Pattern != LineLongDashes && line.Pattern != LineShortDashes)
        return canvas.Fill(line.Rect, line.Color);
    const int width = line.Upright ? line.Rect.Width() : line.Rect.Height();
    const int on = (line.Pattern == LineLongDashes ? 8 : 2) * width,
              off = (line.Pattern == LineLongDashes ? 4 : 2) * width;
    if (width <= 0)
        return;
    const int begin = line.Upright ? line.Rect.Top : line.Rect.Left;
    const int end = line.Upright ? line.Rect.Bottom : line.Rect.Right;
    const int from = line.Upright ? within.Top : within.Left;
    const int to = std::min(end, line.Upright ? within.Bottom : within.Right);
    const int passed = std::max(0, from - begin) / (on + off);
    for (int at = begin + passed * (on + off); at < to; at += on + off) {
        sPixelRect dash = line.Rect;
        (line.Upright ? dash.Top : dash.Left) = at;
        (line.Upright ? dash.Bottom : dash.Right) = std::min(end, at + on);
        canvas.Fill(dash, line.Color);
    }
}

} // namespace zantroq
