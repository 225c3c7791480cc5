#include "window/RangeBars.h"

#include "market/HistoryRecords.h"
#include "window/WindowCommands.h"

namespace zantroq {

namespace {

// The zoom-out button compares with this number instead of the last index of the list, so it stays enabled
// there.
constexpr int ZoomOutPlace = 59;

} // namespace

void EnableZoomButtons(ICommandBar& commands, int ptsIndex, int count)
{
    commands.Enable(CommandZoomIn, ptsIndex != 0 && count > DisplayMaxPoints.front());
    commands.Enable(CommandZoomOut, ptsIndex != ZoomOutPlace && PointsAtPlace(ptsIndex) <= count);
}

void CRangeBars::Follow(const sDrawnExtent& drawn, int ptsIndex)
{
    if (m_bar.Visible() != drawn.FillsWindow) {
        m_bar.SetVisible(drawn.FillsWindow);
        m_layout.SizePanes();
    }
    EnableZoomButtons(m_commands, ptsIndex, drawn.Count);
}

} // namespace zantroq
