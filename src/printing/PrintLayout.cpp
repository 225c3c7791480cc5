#include "printing/PrintLayout.h"

#include <algorithm>
#include <cstdint>

namespace zantroq {

namespace {

std::int64_t PictureHeight(std::span<const sPaneSize> panes)
{
    std::int64_t height = 0;
    for (const sPaneSize& pane : panes)
        height += std::max(0, pane.Height);
    return height;
}

// The same scale in both directions, so that the picture keeps its proportions.
struct sMapping
{
    std::int64_t Window = 1, Viewport = 0;

    int ToDevice(std::int64_t size) const
    {
        return static_cast<int>((2 * std::max<std::int64_t>(0, size) * Viewport + Window) / (2 * Window));
    }
};

} // namespace

PageFit FitOnPage(const sPrintPage& page, std::span<const sPaneSize> panes)
{
    const std::int64_t pictureWidth = panes.empty() ? 0 : panes.front().Width;
    return page.Height * pictureWidth < page.Width * PictureHeight(panes) ? PageFit::Height : PageFit::Width;
}

std::vector<sPageBox> PlacePanesOnPage(const sPrintPage& page, std::span<const sPaneSize> panes)
{
    const std::int64_t pictureWidth = panes.empty() ? 0 : panes.front().Width;
    const std::int64_t pictureHeight = PictureHeight(panes);
    if (pictureWidth <= 0 || pictureHeight <= 0 || page.Width <= 0 || page.Height <= 0)
        return {};
    const bool byHeight = FitOnPage(page, panes) == PageFit::Height;
    const sMapping mapping =
        byHeight ? sMapping{pictureHeight, page.Height} : sMapping{pictureWidth, page.Width};
    const int left = byHeight ? (page.Width - mapping.ToDevice(pictureWidth)) / 2 : 0;
    int top = byHeight ? 0 : (page.Height - mapping.ToDevice(pictureHeight)) / 2;
    std::vector<sPageBox> boxes;
    for (const sPaneSize& pane : panes) {
        boxes.push_back({left, top, mapping.ToDevice(pane.Width), mapping.ToDevice(pane.Height)});
        top += boxes.back().Height;
    }
    return boxes;
}

} // namespace zantroq
