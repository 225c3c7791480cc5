// Places the labels of a pane: titles, readouts and texts at points.
#pragma once

#include "paint/Placement.h"

#include <optional>
#include <string_view>

namespace zantroq {

class CLabelPlacer
{
public:
    // Neither is owned. Labels are added to `out`.
    CLabelPlacer(const sPlacement& placement, sPaneDecorations& out) : m_placement(placement), m_out(out) {}

    void Place();
    // The lower end of the lowest title, 0 without one.
    int TitleBottom() const { return m_titleBottom; }

private:
    struct sPoint
    {
        int X, Y; // device pixels
    };

    void PlaceLabel(const CPaneLabel& label);
    std::optional<sPoint> Anchor(const CPaneLabel& label) const;
    sPoint Corner(const CPaneLabel& label, const sPoint& anchor, int width, int height) const;
    std::vector<std::string_view> Folded(const std::vector<std::string_view>& lines, int room) const;
    int Widest(const std::vector<std::string_view>& lines) const;

    const sPlacement& m_placement;
    sPaneDecorations& m_out;
    int m_titleBottom = 0;
};

} // namespace zantroq
