#include "paint/RasterCanvas.h"

#include "paint/PanePixels.h"
#include "paint/RuledLine.h"

#include <gtest/gtest.h>

#include <string>

namespace zantroq {
namespace {

constexpr PixelColor White = 0xffffffff, Black = 0xff000000, Red = 0xffff0000;

// A white picture of 24 by 8 pixels; a row as text: '.' white, '#' black, '+' any other color.
struct sSheet
{
    sSheet() : Picture(24, 8), Canvas(Font)
    {
        Canvas.SetPicture(Picture.Raster());
        Canvas.Fill({0, 0, 24, 8}, White);
    }
    std::string Row(int y) const
    {
        std::string row;
        for (int x = 0; x < Picture.Width; ++x)
            row += Picture.At(x, y) == White ? '.' : Picture.At(x, y) == Black ? '#' : '+';
        return row;
    }

    test::CFixedFont Font;
    test::sPixels Picture;
    CRasterCanvas Canvas;
};

sInkLine Level(int from, int to, int row, int pattern, int width = 1)
{
    const int height = row * sInkVertex::One;
    sInkLine line;
    line.Color = 0; // black
    line.Width = width;
    line.Pattern = pattern;
    line.Vertices = {{from, height, height, height, height, false, false},
                     {to, height, height, height, height, true, false}};
    return line;
}

TEST(RasterCanvas, AFillEndsAtTheClip)
{
    sSheet sheet;
    sheet.Canvas.SetClip({2, 1, 5, 3});
    sheet.Canvas.Fill({-10, -10, 4, 100}, Black);
    EXPECT_EQ(sheet.Row(0), "........................");
    EXPECT_EQ(sheet.Row(1), "..##....................");
    EXPECT_EQ(sheet.Row(2), "..##....................");
    EXPECT_EQ(sheet.Row(3), "........................");
}

TEST(RasterCanvas, AClipNeverReachesPastThePicture)
{
    sSheet sheet;
    sheet.Canvas.SetClip({-5, -5, 1000, 4});
    EXPECT_EQ(sheet.Canvas.Clip().Left, 0);
    EXPECT_EQ(sheet.Canvas.Clip().Top, 0);
    EXPECT_EQ(sheet.Canvas.Clip().Right, 24);
    EXPECT_EQ(sheet.Canvas.Clip().Bottom, 4);
}

TEST(RasterCanvas, ALevelLineCoversWholePixels)
{
    sSheet sheet;
    sheet.Canvas.Line(Level(3, 9, 4, LineSolid), {0, 0, 24, 8});
    EXPECT_EQ(sheet.Row(3), "........................");
    EXPECT_EQ(sheet.Row(4), "...#######..............");
    EXPECT_EQ(sheet.Row(5), "........................");
}

// Of columns 0 to 11 the first 8 have ink; of a short dash the first 3 of 6.
TEST(RasterCanvas, DashesOfALineStandOnFixedColumns)
{
    sSheet longDashes, shortDashes;
    longDashes.Canvas.Line(Level(5, 23, 4, LineLongDashes), {0, 0, 24, 8});
    EXPECT_EQ(longDashes.Row(4), ".....###....########....");
    shortDashes.Canvas.Line(Level(5, 23, 4, LineShortDashes), {0, 0, 24, 8});
    EXPECT_EQ(shortDashes.Row(4), "......###...###...###...");
}

TEST(RasterCanvas, ASlantedLineIsBlendedAtItsEdges)
{
    sSheet sheet;
    sInkLine line = Level(2, 4, 2, LineSolid);
    line.Vertices[1].First = line.Vertices[1].Last = line.Vertices[1].Top = line.Vertices[1].Bottom =
        3 * sInkVertex::One;
    sheet.Canvas.Line(line, {0, 0, 24, 8});
    // Halfway, the middle of the line lies between the rows 2 and 3: both are covered by a good half.
    const int upper = sheet.Picture.At(3, 2) & 0xff, lower = sheet.Picture.At(3, 3) & 0xff;
    EXPECT_EQ(upper, lower);
    EXPECT_GT(upper, 64);
    EXPECT_LT(upper, 128);
}

TEST(RasterCanvas, TextIsBlendedByItsCoverage)
{
    sSheet sheet;
    sheet.Canvas.SetClip({0, 0, 24, 2});
    sheet.Canvas.Text(4, 1, "a b", Black);
    EXPECT_EQ(sheet.Row(0), "........................");
    EXPECT_EQ(sheet.Row(1), "....#####+......#####+..");
    EXPECT_EQ(sheet.Row(2), "........................");
    EXPECT_NEAR(sheet.Picture.At(9, 1) & 0xff, 127, 1) << "half of white";
}

TEST(RasterCanvas, ARectangleInsideTheOneBeforeIsItsFilling)
{
    sSheet sheet;
    const sInkRect rects[] = {{2, 1, 8, 5, 0x000000}, {3, 2, 7, 4, 0x0000ff}};
    sheet.Canvas.Rects(rects);
    EXPECT_EQ(sheet.Row(1), "..######................");
    EXPECT_EQ(sheet.Row(2), "..#++++#................");
    EXPECT_EQ(sheet.Picture.At(3, 2), Red);
    EXPECT_EQ(sheet.Row(4), "..######................");
}

TEST(RasterCanvas, OnlyRecordedPaintingIsTaken)
{
    sSheet sheet;
    sheet.Canvas.SetRecording(CRasterCanvas::Recording::On);
    sheet.Canvas.Fill({2, 1, 8, 5}, Black);
    sheet.Canvas.SetRecording(CRasterCanvas::Recording::Off);
    sheet.Canvas.Fill({12, 1, 18, 5}, Black);
    const std::vector<sPixelRect> taken = sheet.Canvas.TakeRecord();
    ASSERT_EQ(taken.size(), 1u);
    EXPECT_EQ(taken[0].Left, 2);
    EXPECT_EQ(taken[0].Right, 8);
    EXPECT_TRUE(sheet.Canvas.TakeRecord().empty());
}

// The dashes of a ruled line count from its own start, 8 on and 4 off, whatever part of it is drawn.
TEST(RuledLine, PartsDrawnOneByOneFitTogether)
{
    const sRuledLine line{{1, 3, 24, 4}, RuleDirection::Horizontal, LineLongDashes, Black};
    sSheet whole, parts;
    DrawRuled(whole.Canvas, line, {0, 0, 24, 8});
    EXPECT_EQ(whole.Row(3), ".########....########...");
    for (int left = 0; left < 24; left += 5) {
        const sPixelRect part{left, 0, left + 5, 8};
        parts.Canvas.SetClip(part);
        DrawRuled(parts.Canvas, line, part);
    }
    EXPECT_EQ(parts.Row(3), whole.Row(3));
}

TEST(RuledLine, ShortDashesAreTwoOnAndTwoOff)
{
    sSheet sheet;
    DrawRuled(sheet.Canvas, {{0, 3, 24, 4}, RuleDirection::Horizontal, LineShortDashes, Black},
              {0, 0, 24, 8});
    EXPECT_EQ(sheet.Row(3), "##..##..##..##..##..##..");
}

} // namespace
} // namespace zantroq
