// The initial styles of series: ten rows of line, fill and symbol. Settings replace their colors. Pure
// functions, any thread.
#pragma once

#include "scene/PaneLooks.h"
#include "settings/ChartSettings.h"

#include <array>

namespace zantroq {

struct sSeriesLook
{
    int LinePattern = LineSolid;
    int FillPattern = 2;
    ColorValue Color = 0;
    int Width = 1;
    int Shape = SymbolNone;
    ColorValue StoredSymbolColor = 0; // stored without effect: a symbol is drawn in Color
    int SymbolSize = 1;
    bool operator==(const sSeriesLook&) const = default;
};

enum StyleRow : int
{
    PriceStyle = 0,
    AverageStyle = 1,
    BandStyle = 4,
    StudyLineStyle = 5,
    StudyMainStyle = 7,
    GridShortDashes = 8,
    GridLine = 9,
    StyleRows = 10
};

using SeriesStyleTable = std::array<sSeriesLook, StyleRows>;

// The table without settings.
const SeriesStyleTable& DefaultSeriesStyles();

// The table with the colors of price, averages, bands and both grid rows from the settings.
SeriesStyleTable SeriesStyles(const sChartSettings& settings);

// Applies a style to a series, except the stored symbol color.
void ApplyLook(CSeriesStyle& style, const sSeriesLook& look);

// The row of the grid's style, selected by the setting "GRID STYLE".
inline int GridRow(const sChartSettings& settings)
{
    return settings.GridStyle == 1 ? GridLine : GridShortDashes;
}

} // namespace zantroq
