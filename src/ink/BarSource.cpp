#include "ink/BarSource.h"

#include "ink/InkStyle.h"

#include <cmath>

namespace zantroq {

namespace {

constexpr int WidestBody = 41; // pane pixels: a handful of points would look like blocks otherwise

// Leaves a gap between neighbors: a fifth of the room of a point, and none up to three pixels of room.
int BodyWidth(int room)
{
    if (room <= 3)
        return std::max(1, room);
    const int body = room - std::max(1, room / 5);
    return body % 2 == 0 ? body - 1 : body; // odd, so that the wick is in the middle
}

} // namespace

sBarSource sBarSource::Of(const CPaneGroup& group, const sPlotMap& map, double scale, int barWidth)
{
    const CPaneData& data = group.PaneData();
    const int first = data.FirstVisible();
    sBarSource source;
    source.Type = group.Type();
    source.High = data.Y(first);
    const CSeriesStyle& main = StyleOf(group, first);
    source.Up =
        main.LineLook().Pattern() == LineNone ? main.FillLook().FillColor() : main.LineLook().LineColor();
    // A bar is never wider than the room of a point, so that a crowded pane stays readable.
    const int room =
        static_cast<int>(std::clamp(std::abs(map.X.PixelsPerUnit()), 1.0, WidestBody * std::max(1.0, scale)));
    // Widths are set in whole pane pixels, so the room is limited to whole pane pixels too: a width that
    // fills it then leaves its gap at every scale.
    const int wholeRoom =
        static_cast<int>(std::clamp(std::abs(map.X.PixelsPerUnit()) / scale, 1.0, 1.0 * WidestBody));
    const int widest = BodyWidth(std::min(room, DevicePixels(wholeRoom, scale)));
    if (IsBarType(source.Type)) {
        source.Bars = data.BlockedY(first);
        source.Width = std::min(DevicePixels(barWidth, scale), widest);
        return source;
    }
    source.Low = data.Y(first + 1);
    source.Open = data.Y(first + 2);
    source.Close = data.Y(first + 3);
    const int hair = std::max(1, static_cast<int>(scale));
    if (source.Type == ChartHiLoOpenClose) {
        source.Width = std::min(DevicePixels(main.LineLook().Width(), scale), std::max(1, room / 3));
        source.Wick = source.Width;
        source.Tick = room < 3 * source.Width ? 0 : std::min(room * 2 / 5, static_cast<int>(7 * scale));
        return source;
    }
    const CSeriesStyle& up = StyleOf(group, first + 1);
    const CSeriesStyle& down = StyleOf(group, first + 2);
    const CSeriesStyle& outline = StyleOf(group, first + 3);
    source.Up = up.FillLook().FillColor();
    source.Down = down.FillLook().FillColor();
    source.Outline = outline.FillLook().FillColor();
    source.Outlined = outline.LineLook().Pattern() != LineNone;
    const int width = std::max(up.LineLook().Width(), down.LineLook().Width());
    source.Width = width < 1 ? 1 : std::min(DevicePixels(width, scale), widest);
    source.Wick = std::min(hair, source.Width);
    return source;
}

} // namespace zantroq
