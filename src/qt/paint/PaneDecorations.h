// Everything of a pane but its data, placed in device pixels: grid, frame, tick marks, axis texts, marker and
// labels. Worked out once per painting and walked by every canvas.
#pragma once

#include "qt/paint/PaneCanvas.h"
#include "qt/paint/PaneText.h"
#include "scene/PaneGeometry.h"

#include <string>
#include <vector>

namespace zantroq {

// A straight line one or more device pixels wide, in dashes of Pattern.
struct sRuledLine
{
    sPixelRect Rect;
    bool Upright = false;
    int Pattern = LineSolid;
    QRgb Color = 0;
};

struct sPlacedText
{
    int Left = 0, Top = 0;
    std::string Text; // its own: that of a label whose repaint is suspended may be another by now
    QRgb Color = 0;
};

struct sGround
{
    sPixelRect Rect;
    QRgb Color = 0;
};

struct sPlacedLabel
{
    sPixelRect Box;
    QRgb Background = 0, Border = 0;
    int Edge = 0; // width of the border, 0 for none
    std::vector<sPlacedText> Lines;
};

struct sPaneDecorations
{
    QRgb Background = 0, PlotBackground = 0;
    std::vector<sRuledLine> Grid;  // below the data
    std::vector<sRuledLine> Frame; // above it: the plot's edge and the tick marks
    std::vector<sRuledLine> Marker;
    std::vector<sGround> Grounds; // below the axis texts, which else stood in the frame
    std::vector<sPlacedText> AxisTexts;
    std::vector<sPlacedLabel> Labels;
};

// `width` and `height` are the picture's device pixels.
sPaneDecorations PlaceDecorations(const CChart2D& chart, const sPlotMap& map, double scale, int width,
                                  int height, CPaneText& text);

// Draws the part of a ruled line inside a rectangle, the dashes as those of the whole; more may be painted.
void DrawRuled(IPaneCanvas& canvas, const sRuledLine& line, const sPixelRect& within);

} // namespace zantroq
