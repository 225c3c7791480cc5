// Any bytes as a pane file: loading either gives a pane that saves and loads back the same, or leaves the
// pane as it was.
#include "drawing/PaneFile.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace zantroq;
    static const std::string untouched = PaneToText(CChart2D());
    CChart2D pane;
    try {
        PaneFromText(std::string(reinterpret_cast<const char*>(bytes), size), pane);
    } catch (const std::runtime_error&) {
        if (PaneToText(pane) != untouched)
            std::abort();
        return 0;
    }
    const std::string saved = PaneToText(pane);
    CChart2D copy;
    PaneFromText(saved, copy);
    if (PaneToText(copy) != saved)
        std::abort();
    // Geometry has an answer for whatever was loaded.
    int series = 0, point = 0, distance = 0, x = 0, y = 0;
    for (int group = 1; group <= 2; ++group) {
        const sPixelRect plot = pane.PlotRect();
        for (const int focus : {FocusAny, FocusX})
            pane.PaneGroups(group).PickPoint(plot.Left, plot.Top, focus, series, point, distance);
        pane.PaneGroups(group).PointToPixel(1, 1, x, y);
    }
    return 0;
}
