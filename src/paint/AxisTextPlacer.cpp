#include "paint/AxisTextPlacer.h"

#include <cstdlib>

namespace zantroq {

void CAxisTextPlacer::Place()
{
    const CPaneAxes& axes = m_placement.Chart.PaneArea().PaneAxes();
    if (axes.Y().Shown())
        PlaceValueTexts(axes.Y(), PlotSide::Left);
    if (axes.Y2().Shown())
        PlaceValueTexts(axes.Y2(), PlotSide::Right);
    if (axes.X().Shown())
        PlacePointTexts(axes.X());
}

void CAxisTextPlacer::PlaceValueTexts(const CPaneAxis& axis, PlotSide side)
{
    const int line = m_placement.Text.LineHeight();
    std::vector<int> taken; // tops
    for (const sTickLabel& label : axis.TickLabels().All()) {
        if (!IsDrawn(label.Value) || label.Text.empty())
            continue;
        const int y = m_placement.Map.Y.Pixel(label.Value);
        if (y < m_plot.Top || y >= m_plot.Bottom)
            continue;
        const int top = ValueTop(y);
        const auto overlaps = [&](int other) { return std::abs(other - top) < line - 1; };
        if (std::any_of(taken.begin(), taken.end(), overlaps))
            continue;
        taken.push_back(top);
        AddValueText(label.Text, top, side);
    }
}

// The top of a text beside pixel row y.
int CAxisTextPlacer::ValueTop(int y) const
{
    // Digits have no descents: the middle of the text is half its ascent above its base.
    const int ascent = m_placement.Text.Ascent(), line = m_placement.Text.LineHeight();
    const int middle = y - (ascent - ascent / 4) / 2 - ascent / 4;
    // The outermost texts move away from the title and the pane's end by a few pixels.
    return std::clamp(middle, std::min(m_titleBottom, m_plot.Top),
                      std::max(m_plot.Top, m_placement.Height - line));
}

void CAxisTextPlacer::AddValueText(const std::string& text, int top, PlotSide side)
{
    const int hair = m_placement.Hair(), gap = m_placement.Device(6), edge = m_placement.Device(1);
    const int advance = m_placement.Text.Advance(text);
    const bool left = side == PlotSide::Left;
    // A text too long for its margin reaches into the plot: a price that lost a digit would be another price.
    const int x = left ? std::max(edge, m_plot.Left - hair - gap - advance)
                       : std::min(m_placement.Width - edge - advance, m_plot.Right + hair + gap);
    const int marks = hair + m_placement.Device(3); // frame and tick marks
    if (left ? x + advance > m_plot.Left - marks : x < m_plot.Right + marks)
        AddGround({x - edge, top, x + advance + edge, top + m_placement.Text.LineHeight()});
    m_out.AxisTexts.push_back({x, top, text, m_placement.Foreground()});
}

// Hides the frame below a text: a line between two digits reads as a digit.
void CAxisTextPlacer::AddGround(const sPixelRect& box)
{
    m_out.Grounds.push_back({box, m_out.Background});
    const sPixelRect inside = CommonPart(box, m_plot);
    if (inside.Width() > 0 && inside.Height() > 0)
        m_out.Grounds.push_back({inside, m_out.PlotBackground});
}

std::vector<const sTickLabel*> CAxisTextPlacer::PointLabelsInPlot(const CPaneAxis& axis) const
{
    std::vector<const sTickLabel*> labels;
    for (const sTickLabel& label : axis.TickLabels().All()) {
        if (!IsDrawn(label.Value) || label.Text.empty())
            continue;
        const int x = m_placement.Map.X.Pixel(label.Value);
        if (x >= m_plot.Left && x < m_plot.Right)
            labels.push_back(&label);
    }
    return labels;
}

CAxisTextPlacer::sExtent CAxisTextPlacer::PointTextExtent(const sTickLabel& label) const
{
    const int room = m_placement.Device(5), width = m_placement.Width;
    const int x = m_placement.Map.X.Pixel(label.Value), advance = m_placement.Text.Advance(label.Text);
    const int least = std::min(room, width - advance);
    const int left = std::clamp(x - advance / 2, least, std::max(least, width - advance - room));
    return {left, left + advance};
}

void CAxisTextPlacer::PlacePointTexts(const CPaneAxis& axis)
{
    const int room = m_placement.Device(5), line = m_placement.Text.LineHeight();
    const int top = m_plot.Bottom + m_placement.Hair() + m_placement.Device(6);
    if (top + line > m_placement.Height + line / 3)
        return;
    const std::vector<const sTickLabel*> shown = PointLabelsInPlot(axis);
    std::vector<sExtent> taken;
    for (const sTickLabel* const label : shown) {
        const sExtent extent = PointTextExtent(*label);
        const auto overlaps = [&](const sExtent& other) {
            return extent.Left < other.Right + room && other.Left < extent.Right + room;
        };
        // A date with its time is wide. The first text, which stands by the pane's edge, makes room for the
        // second by moving to the left.
        if (taken.size() == 1)
            if (const int by = taken[0].Right - (extent.Left - room); by > 0 && taken[0].Left - by >= room) {
                taken[0] = {taken[0].Left - by, taken[0].Right - by};
                m_out.AxisTexts.back().Left -= by;
            }
        // The last text, the time of the last point, replaces those it overlaps.
        if (label == shown.back())
            while (!taken.empty() && overlaps(taken.back())) {
                taken.pop_back();
                m_out.AxisTexts.pop_back();
            }
        if (std::any_of(taken.begin(), taken.end(), overlaps))
            continue;
        taken.push_back(extent);
        m_out.AxisTexts.push_back({extent.Left, top, label->Text, m_placement.Foreground()});
    }
}

} // namespace zantroq
