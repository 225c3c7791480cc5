#include "printing/PrintHeading.h"

#include "window/PrintFakes.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using test::sFakeHeadingFont;

const sTIME_W_MILLISECONDS Printed = MakeTime({2024, 3, 1, 14, 5, 9});

TEST(PrintHeading, NamesSymbolTypeAndMoment)
{
    sRequestSettings request;
    const char* const names[] = {"Tick", nullptr, "Daily", "Weekly", "Monthly"};
    for (const int type : {0, 2, 3, 4}) {
        request.DataType = type;
        EXPECT_EQ(HeadingText("MSFT", request, Printed),
                  std::string("MSFT ") + names[type] + "\t\t14:05:09 on 2024/03/01");
    }
}

TEST(PrintHeading, TellsTheMinutesOfAnInterval)
{
    sRequestSettings request;
    request.DataType = MinuteData;
    EXPECT_EQ(HeadingText("MSFT", request, Printed), "MSFT 1-Minute Chart\t\t14:05:09 on 2024/03/01");
    request.IntervalIndex = 10;
    EXPECT_EQ(HeadingText("MSFT", request, Printed), "MSFT 120-Minute Chart\t\t14:05:09 on 2024/03/01");
}

TEST(PrintHeading, WithoutASymbolBeginsWithTheBlank)
{
    EXPECT_EQ(HeadingText("", {}, Printed), " Tick\t\t14:05:09 on 2024/03/01");
}

// 100 a character, tab stops every 8 * 90: 800 of text, stops at 1440 and 2160, 2200 of time.
TEST(PrintHeading, IsCentredAroundTenPixelsPerInchTwips)
{
    const sHeading heading = PlaceHeading("AB Daily\t\t14:05:09 on 2024/03/01", sFakeHeadingFont(), 600);
    EXPECT_EQ(heading.Width, 4360);
    EXPECT_EQ(heading.Left, 3820);
    ASSERT_EQ(heading.Runs.size(), 2u);
    EXPECT_EQ(heading.Runs[0], (sHeadingRun{3820, "AB Daily"}));
    EXPECT_EQ(heading.Runs[1], (sHeadingRun{3820 + 2160, "14:05:09 on 2024/03/01"}));
}

TEST(PrintHeading, BeginsLeftOfThePageWhereTheResolutionIsLow)
{
    EXPECT_EQ(PlaceHeading("AB Daily\t\t14:05:09 on 2024/03/01", sFakeHeadingFont(), 72).Left, -1460);
}

TEST(PrintHeading, HalfAUnitIsCut)
{
    sFakeHeadingFont font;
    font.Character = 101;
    EXPECT_EQ(PlaceHeading("A", font, 600).Left, 5949); // 5949.5
}

TEST(PrintHeading, ATabAtAStopGoesOnToTheNextOne)
{
    sFakeHeadingFont font;
    font.Average = 100;
    EXPECT_EQ(PlaceHeading("12345678\tA", font, 600).Width, 1700);
    EXPECT_EQ(PlaceHeading("\tA", font, 600).Width, 900);
}

TEST(PrintHeading, AFontWithoutWidthsIsHarmless)
{
    sFakeHeadingFont font;
    font.Character = font.Average = 0;
    EXPECT_EQ(PlaceHeading("A\t\tB", font, 600).Runs.size(), 2u);
    EXPECT_TRUE(PlaceHeading("", font, 600).Runs.empty());
}

} // namespace
} // namespace zantroq
