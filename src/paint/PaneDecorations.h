// Everything of a pane except its data, placed in device pixels: grid, frame, tick marks, axis texts, marker
// and labels. Computed once per painting, then painted on any canvas. Chart window's thread.
#pragma once

#include "paint/PixelColor.h"
#include "paint/RuledLine.h"
#include "paint/TextMeasure.h"
#include "scene/PaneGeometry.h"

#include <string>
#include <vector>

namespace zantroq {

// How a pane is painted where two ways are open. The scene is the same either way.
enum class PaneManner
{
    Plain,
    // Level lines lie under the curves of their group, and the text of a trendline, a label above a pixel, stays
    // inside the plot, below the titles.
    Convenient
};

struct sPlacedText
{
    int Left = 0, Top = 0; // of the line box
    std::string Text;      // a copy: the label may change before the next painting
    PixelColor Color = 0;
};

// A filled background below a text.
struct sTextGround
{
    sPixelRect Rect;
    PixelColor Color = 0;
};

struct sPlacedLabel
{
    sPixelRect Box; // border included
    PixelColor Background = 0, Border = 0;
    int Edge = 0; // width of the border, 0 for none
    std::vector<sPlacedText> Lines;
};

struct sPaneDecorations
{
    PixelColor Background = 0, PlotBackground = 0;
    std::vector<sRuledLine> Grid;     // below the data
    std::vector<sRuledLine> Frame;    // above the data: edges of the plot and tick marks
    std::vector<sRuledLine> Marker;   // above the data; at most one line
    std::vector<sTextGround> Grounds; // below axis texts that overlap the frame
    std::vector<sPlacedText> AxisTexts;
    std::vector<sPlacedLabel> Labels;
};

// `scale` is device pixels per pane pixel; `width` and `height` are the picture's size in device pixels.
sPaneDecorations PlaceDecorations(const CChart2D& chart, const sPlotMap& map, double scale, int width,
                                  int height, ITextMeasure& text, PaneManner manner = PaneManner::Plain);

} // namespace zantroq
