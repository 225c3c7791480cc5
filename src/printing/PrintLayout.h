// The positions of a chart's panes on a printed page, in whole device pixels from the top left corner of the
// printable area. Pure functions, any thread.
#pragma once

#include <span>
#include <vector>

namespace zantroq {

struct sPrintPage
{
    int Width = 0, Height = 0; // printable area in device pixels
    int PixelsPerInchX = 0, PixelsPerInchY = 0;
};

struct sPaneSize // client size of a pane in its own pixels
{
    int Width = 0, Height = 0;
};

struct sPageBox
{
    int Left = 0, Top = 0, Width = 0, Height = 0;
    bool operator==(const sPageBox&) const = default;
};

enum class PageFit
{
    Height, // as high as the page, centred horizontally
    Width   // as wide as the page, centred vertically
};

// The picture is as wide as the first pane and as high as all panes together. It fits by height if page
// height * picture width < page width * picture height, otherwise by width, so it never exceeds the page.
PageFit FitOnPage(const sPrintPage& page, std::span<const sPaneSize> panes);

// A box for each pane, stacked without gaps in the given order. Each size is converted to device pixels
// separately and rounded to the nearest, halves up, so the stack may differ from the whole picture by half a
// pixel per pane. The offset is half of the remaining space, truncated to an integer. Empty if the picture
// has no size.
std::vector<sPageBox> PlacePanesOnPage(const sPrintPage& page, std::span<const sPaneSize> panes);

} // namespace zantroq
