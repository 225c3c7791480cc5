// Numbers computed by hand: the picture's size is scaled to the page by the same factor in both directions.
#include "printing/PrintLayout.h"

#include <gtest/gtest.h>

#include <array>
#include <numeric>

namespace zantroq {

void PrintTo(const sPageBox& box, std::ostream* out)
{
    *out << box.Left << "," << box.Top << " " << box.Width << "x" << box.Height;
}

namespace {

using Boxes = std::vector<sPageBox>;

TEST(PrintLayout, AFlatPictureIsAsWideAsThePageAndCentredDown)
{
    // 6600 * 800 is not below 4800 * 400; the scale is 6.
    const std::array<sPaneSize, 2> panes{{{800, 300}, {800, 100}}};
    const sPrintPage page{4800, 6600, 600, 600};
    EXPECT_EQ(FitOnPage(page, panes), PageFit::Width);
    EXPECT_EQ(PlacePanesOnPage(page, panes), (Boxes{{0, 2100, 4800, 1800}, {0, 3900, 4800, 600}}));
}

TEST(PrintLayout, ATallPictureIsAsHighAsThePageAndCentredAcross)
{
    // 4800 * 800 is below 6600 * 700; the scale is 48/7: 5485.7 wide, 3428.6 and 1371.4 high.
    const std::array<sPaneSize, 2> panes{{{800, 500}, {800, 200}}};
    const sPrintPage page{6600, 4800, 600, 600};
    EXPECT_EQ(FitOnPage(page, panes), PageFit::Height);
    EXPECT_EQ(PlacePanesOnPage(page, panes), (Boxes{{557, 0, 5486, 3429}, {557, 3429, 5486, 1371}}));
}

TEST(PrintLayout, APictureOfThePagesShapeFillsItByWidth)
{
    const std::array<sPaneSize, 1> panes{{{800, 600}}};
    const sPrintPage page{400, 300, 72, 72};
    EXPECT_EQ(FitOnPage(page, panes), PageFit::Width);
    EXPECT_EQ(PlacePanesOnPage(page, panes), (Boxes{{0, 0, 400, 300}}));
}

TEST(PrintLayout, OnePixelDecidesTheFit)
{
    const sPrintPage page{400, 300, 72, 72};
    EXPECT_EQ(FitOnPage(page, std::array<sPaneSize, 1>{{{800, 601}}}), PageFit::Height);
    EXPECT_EQ(FitOnPage(page, std::array<sPaneSize, 1>{{{801, 600}}}), PageFit::Width);
}

TEST(PrintLayout, HalfADevicePixelGoesUpAndHalfOfAnOddRestIsCut)
{
    // Each height is half a device pixel, the picture as a whole one: (10 - 1) / 2 above it.
    const std::array<sPaneSize, 2> panes{{{4, 1}, {4, 1}}};
    EXPECT_EQ(PlacePanesOnPage({2, 10, 72, 72}, panes), (Boxes{{0, 4, 2, 1}, {0, 5, 2, 1}}));
}

TEST(PrintLayout, TheFirstPaneGivesThePicturesWidth)
{
    const std::array<sPaneSize, 2> panes{{{100, 50}, {60, 50}}};
    EXPECT_EQ(PlacePanesOnPage({200, 400, 72, 72}, panes), (Boxes{{0, 100, 200, 100}, {0, 200, 120, 100}}));
}

TEST(PrintLayout, ElevenPanesFollowEachOtherWithoutGaps)
{
    std::vector<sPaneSize> panes{{1397, 231}};
    for (int study = 1; study <= 10; ++study)
        panes.push_back({1397, 16 + 7 * study});
    const Boxes boxes = PlacePanesOnPage({9921, 14031, 1200, 1200}, panes);
    ASSERT_EQ(boxes.size(), panes.size());
    for (std::size_t pane = 1; pane < boxes.size(); ++pane)
        EXPECT_EQ(boxes[pane].Top, boxes[pane - 1].Top + boxes[pane - 1].Height) << pane;
    EXPECT_EQ(boxes[0].Width, 9921);
}

TEST(PrintLayout, ALargePageDoesNotOverflow)
{
    const std::array<sPaneSize, 1> panes{{{30000, 20000}}};
    EXPECT_EQ(PlacePanesOnPage({300000, 400000, 9600, 9600}, panes), (Boxes{{0, 100000, 300000, 200000}}));
}

TEST(PrintLayout, AMinimisedPaneKeepsItsShare)
{
    const std::array<sPaneSize, 3> panes{{{600, 368}, {600, 16}, {600, 16}}};
    EXPECT_EQ(PlacePanesOnPage({1200, 1600, 150, 150}, panes),
              (Boxes{{0, 400, 1200, 736}, {0, 1136, 1200, 32}, {0, 1168, 1200, 32}}));
}

TEST(PrintLayout, APictureOrPageWithoutASizeHasNoBoxes)
{
    EXPECT_TRUE(PlacePanesOnPage({100, 100, 72, 72}, {}).empty());
    EXPECT_TRUE(PlacePanesOnPage({100, 100, 72, 72}, std::array<sPaneSize, 1>{{{0, 50}}}).empty());
    EXPECT_TRUE(PlacePanesOnPage({100, 100, 72, 72}, std::array<sPaneSize, 1>{{{50, 0}}}).empty());
    EXPECT_TRUE(PlacePanesOnPage({0, 100, 72, 72}, std::array<sPaneSize, 1>{{{50, 50}}}).empty());
    EXPECT_TRUE(PlacePanesOnPage({100, 0, 72, 72}, std::array<sPaneSize, 1>{{{50, 50}}}).empty());
}

} // namespace
} // namespace zantroq
