// Arbitrary bytes as a pane file. Loading either gives a pane that saves and loads back the same, or leaves
// the pane unchanged; and it gives the same as a tree of JSON values, which the fast reader of long lists
// bypasses.
#include "scene/PaneFile.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace {

// The pane loaded through the JSON parser alone, as a text; empty if it is refused.
std::string LoadedAsTree(const std::string& text)
{
    zantroq::CChart2D pane;
    try {
        zantroq::PaneFromJson(nlohmann::json::parse(text), pane);
    } catch (const std::exception&) {
        return {};
    }
    return zantroq::PaneToText(pane);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace zantroq;
    static const std::string untouched = PaneToText(CChart2D());
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const std::string wanted = LoadedAsTree(text);
    CChart2D pane;
    try {
        PaneFromText(text, pane);
    } catch (const std::runtime_error& error) {
        // Errors of input that the parser alone would accept: any depth, and a NUL byte as the end of the
        // text.
        const std::string what = error.what();
        const bool stricter =
            what.find("deeper in one another") != what.npos || what.find("NUL") != what.npos;
        if (PaneToText(pane) != untouched || (!wanted.empty() && !stricter))
            std::abort();
        return 0;
    }
    const std::string saved = PaneToText(pane);
    if (saved != wanted)
        std::abort();
    CChart2D copy;
    PaneFromText(saved, copy);
    if (PaneToText(copy) != saved)
        std::abort();
    // Geometry must work for every loaded pane.
    int series = 0, point = 0, distance = 0, x = 0, y = 0;
    for (int group = 1; group <= 2; ++group) {
        const sPixelRect plot = pane.PlotRect();
        for (const int focus : {FocusAny, FocusX})
            pane.PaneGroups(group).PickPoint(plot.Left, plot.Top, focus, series, point, distance);
        pane.PaneGroups(group).PointToPixel(1, 1, x, y);
    }
    return 0;
}
