#include "paint/LabelPlacer.h"

namespace zantroq {

namespace {

constexpr std::size_t MostLines = 1000;

bool IsTitle(const CPaneLabel& label)
{
    return label.Attachment() == AttachToPaneTopLeft;
}

// The text of a trendline stands above a pixel; the header of a study hangs below one.
bool IsLineText(const CPaneLabel& label)
{
    return label.Attachment() == AttachToPixel && (label.Side() >> 4) == 1;
}

std::vector<std::string_view> LinesOf(std::string_view text)
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

} // namespace

void CLabelPlacer::Place()
{
    const CPaneLabels& labels = m_placement.Chart.PaneLabels();
    const sPixelRect& plot = m_placement.Map.Plot;
    for (int number = 1; number <= labels.Count(); ++number) {
        const CPaneLabel& label = labels.Item(number);
        // The text of a line that is out of sight would stand at the edge as if the line were there.
        const bool outOfSight = m_placement.Manner == PaneManner::Convenient && IsLineText(label) &&
                                !m_placement.Map.Empty() &&
                                (m_placement.Device(label.PixelY()) < plot.Top ||
                                 m_placement.Device(label.PixelY()) >= plot.Bottom);
        if (!outOfSight)
            PlaceLabel(label);
    }
}

// Breaks lines wider than `room` where two blanks stand, as they do between the parts of a title.
std::vector<std::string_view> CLabelPlacer::Folded(const std::vector<std::string_view>& lines, int room) const
{
    constexpr std::string_view blanks = "  ";
    std::vector<std::string_view> folded;
    for (std::string_view line : lines) {
        while (m_placement.Text.Advance(line) > room) {
            std::size_t cut = line.rfind(blanks);
            while (cut != line.npos && cut > 0 && m_placement.Text.Advance(line.substr(0, cut)) > room)
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

// Where the label is attached; nothing when its point has no place.
std::optional<CLabelPlacer::sPoint> CLabelPlacer::Anchor(const CPaneLabel& label) const
{
    const sPlotMap& map = m_placement.Map;
    if (IsTitle(label))
        return sPoint{m_placement.Device(4), m_placement.Scale >= 1 ? m_placement.Device(1) : 0};
    if (label.Attachment() != AttachToData)
        return sPoint{m_placement.Device(label.PixelX()), m_placement.Device(label.PixelY())};
    const double x = label.DataX(), y = label.DataY();
    if (map.Empty() || !IsDrawn(x) || !IsDrawn(y))
        return std::nullopt;
    return sPoint{
        std::isinf(x) ? (x < 0 ? map.Plot.Left : map.Plot.Right - 1) : map.X.Pixel(x),
        std::isinf(y) ? (y < 0 ? map.Plot.Bottom - 1 : map.Plot.Top) : map.Y.Pixel(y),
    };
}

int CLabelPlacer::Widest(const std::vector<std::string_view>& lines) const
{
    int widest = 0;
    for (const std::string_view line : lines)
        widest = std::max(widest, m_placement.Text.Advance(line));
    return widest;
}

// The top left corner of the label's box.
CLabelPlacer::sPoint CLabelPlacer::Corner(const CPaneLabel& label, const sPoint& anchor, int width,
                                          int height) const
{
    if (IsTitle(label)) // whatever its side
        return anchor;
    const bool above = (label.Side() >> 4) == 1, toLeft = (label.Side() & 15) == 2;
    sPoint corner{toLeft ? anchor.X - width : anchor.X, above ? anchor.Y - height : anchor.Y};
    if (label.Attachment() == AttachToData) { // a readout must be readable whole
        corner.X = std::max(0, std::min(corner.X, m_placement.Width - width));
        corner.Y = std::max(0, std::min(corner.Y, m_placement.Height - height));
    } else if (m_placement.Manner == PaneManner::Convenient && IsLineText(label) &&
               !m_placement.Map.Empty()) {
        const sPixelRect& plot = m_placement.Map.Plot;
        corner.X = std::max(plot.Left, std::min(corner.X, plot.Right - width));
        corner.Y = std::max(std::max(plot.Top, m_titleBottom), std::min(corner.Y, plot.Bottom - height));
    }
    return corner;
}

void CLabelPlacer::PlaceLabel(const CPaneLabel& label)
{
    if (!label.Shown() || label.Text().empty())
        return;
    const std::optional<sPoint> anchor = Anchor(label);
    if (!anchor)
        return;
    const int hair = m_placement.Hair(), edge = label.Border() == 1 ? hair : 0;
    std::vector<std::string_view> lines = LinesOf(label.Text());
    if (IsTitle(label) && !m_placement.Map.Empty())
        lines = Folded(lines, m_placement.Width - 2 * anchor->X - 2 * (m_placement.Device(4) + hair));
    const int padX = m_placement.Device(4) + edge;
    const int padY = (IsTitle(label) ? 0 : m_placement.Device(lines.size() > 1 ? 3 : 1)) + edge;
    const int lineHeight = m_placement.Text.LineHeight();
    const int count = static_cast<int>(std::min(lines.size(), MostLines));
    const int width = Widest(lines) + 2 * padX, height = count * lineHeight + 2 * padY;
    const sPoint corner = Corner(label, *anchor, width, height);
    sPlacedLabel placed;
    placed.Box = {corner.X, corner.Y, corner.X + width, corner.Y + height};
    if (placed.Box.Left >= m_placement.Width || placed.Box.Top >= m_placement.Height ||
        placed.Box.Right <= 0 || placed.Box.Bottom <= 0)
        return;
    const PixelColor foreground = PixelOf(label.Interior().Foreground());
    placed.Background = PixelOf(label.Interior().Background());
    placed.Border = Mixed(placed.Background, foreground, 128);
    placed.Edge = edge;
    for (int i = 0; i < count; ++i)
        placed.Lines.push_back({corner.X + padX, corner.Y + padY + i * lineHeight,
                                std::string(lines[static_cast<std::size_t>(i)]), foreground});
    if (IsTitle(label))
        m_titleBottom = std::max(m_titleBottom, placed.Box.Bottom);
    m_out.Labels.push_back(std::move(placed));
}

} // namespace zantroq
