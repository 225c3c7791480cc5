#include "paint/RuledLine.h"

#include "paint/DashPattern.h"

#include <algorithm>

namespace zantroq {

void DrawRuled(IPaneCanvas& canvas, const sRuledLine& line, const sPixelRect& within)
{
    const std::optional<sDashPattern> dashes = RuleDashes(line.Pattern);
    if (!dashes)
        return canvas.Fill(line.Rect, line.Color);
    const bool vertical = line.IsVertical();
    const int width = vertical ? line.Rect.Width() : line.Rect.Height();
    if (width <= 0)
        return;
    const int on = dashes->On * width, period = dashes->Period() * width;
    const int begin = vertical ? line.Rect.Top : line.Rect.Left;
    const int end = vertical ? line.Rect.Bottom : line.Rect.Right;
    const int from = vertical ? within.Top : within.Left;
    const int to = std::min(end, vertical ? within.Bottom : within.Right);
    const int passed = std::max(0, from - begin) / period;
    for (int at = begin + passed * period; at < to; at += period) {
        sPixelRect dash = line.Rect;
        (vertical ? dash.Top : dash.Left) = at;
        (vertical ? dash.Bottom : dash.Right) = std::min(end, at + on);
        canvas.Fill(dash, line.Color);
    }
}

} // namespace zantroq
