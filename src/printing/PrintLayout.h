// Where the panes of a chart stand on a printed page. Whole device pixels from the top left corner of the
// printable area. Pure functions, any thread.
#pragma once

#include <span>
#include <vector>

namespace zantroq {

struct sPrintPage
{
    int Width = 0, Height = 0; // of the printable area, in device pixels
    int PixelsPerInchX = 0, PixelsPerInchY = 0;
};

struct sPaneSize // client size of a pane, in its own pixels
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
    Height, // the picture is as high as the page and centred across
    Width   // the picture is as wide as the page and centred down
};

// The picture is as wide as the first pane and as high as all of them. It fits by height when
// page height * picture width < page width * picture height, else by width: it never leaves the page.
PageFit FitOnPage(const sPrintPage& page, std::span<const sPaneSize> panes);

// A box for each pane, stacked without gaps in the order given. Every size goes to device pixels on its own,
// to the nearest with halves up, so that a stack may be half a pixel a pane longer than the picture as a
// whole. The picture's place is half of what the page has left, cut to an integer. Empty for a picture
// without a size.
std::vector<sPageBox> PlacePanesOnPage(const sPrintPage& page, std::span<const sPaneSize> panes);

} // namespace zantroq
