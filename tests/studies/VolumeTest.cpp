#include "StudyPane.h"

#include "studies/HistVOLChart.h"

#include <gmock/gmock.h>

namespace zantroq {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr double Hole = 1e+308;

class CVolumePane : public CStudyPane
{
public:
    explicit CVolumePane(std::initializer_list<std::int64_t> volumes = {}) : CStudyPane(StudyVolume)
    {
        for (const std::int64_t volume : volumes)
            Series.AddTick(10, volume);
    }
    void Add(int count, std::int64_t volume)
    {
        for (int i = 0; i < count; ++i)
            Series.AddTick(10, volume);
    }
    CHistVOLChart& Volume() { return As<CHistVOLChart>(); }
    void AverageLast(int period)
    {
        Settings().VolumeAverageAllData = 0;
        SetPeriod(period);
    }
};

TEST(Volume, BelowTenRunsTo1040)
{
    CVolumePane pane{1, 5, 9};
    pane.Draw(0, 3);
    EXPECT_THAT(pane.Values(), ElementsAre(1, 5, 9));
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), 1040);
    EXPECT_EQ(pane.Labels().back(), "1000");
}

TEST(Volume, FixedScaleTakesTheDefaultAtARedrawOfALongSeries)
{
    CVolumePane pane;
    pane.Window.AllSettings.FixedScale = true;
    pane.Add(31, 500000);
    pane.DrawEnd(120);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 1000);
    pane.Window.Reset = true;
    pane.Series.Greatest = 700000;
    pane.DrawEnd(120);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 700000);
}

TEST(Volume, FixedScaleFitsAShortSeries)
{
    CVolumePane pane;
    pane.Window.AllSettings.FixedScale = true;
    pane.Add(30, 500000);
    pane.DrawEnd(120);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 500000);
}

TEST(Volume, ThreeThousandMillionAreShownInTens)
{
    CVolumePane pane{1000, 3000000000};
    pane.Draw(0, 2);
    EXPECT_THAT(pane.Values(), ElementsAre(100, 300000000));
    EXPECT_EQ(pane.Volume().VolumeDivisor, 10);
    // (1,500,000,500 + 0.5) / 10
    EXPECT_EQ(pane.Header(), "Volume, average: 150,000,050 in 10s");
    pane.Marker().SetPoint(2);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "Volume, average: 150,000,050 in 10s Vol: 300,000,000 in 10s");
}

TEST(Volume, SecondRescalingShrinksEarlierPointsByTheWholeDivisor)
{
    CVolumePane pane{100000, 3000000000, 30000000000};
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Volume().VolumeDivisor, 100);
    // 100,000 / 10 / 100, and 300,000,000 / 100.
    EXPECT_THAT(pane.Values(), ElementsAre(100, 3000000, 300000000));
}

TEST(Volume, ThatNeedsSeveralDivisionsAtOnceIsDividedUntilItFits)
{
    CVolumePane pane{5, 9000000000000000000};
    pane.Draw(0, 2);
    EXPECT_EQ(pane.Volume().VolumeDivisor, 10000000000);
    EXPECT_THAT(pane.Values(), ElementsAre(0, 900000000));
}

TEST(Volume, DivisorStartsAgainAtEachDraw)
{
    CVolumePane pane{3000000000, 7, 8};
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Volume().VolumeDivisor, 10);
    pane.Draw(1, 2);
    EXPECT_EQ(pane.Volume().VolumeDivisor, 1);
    EXPECT_THAT(pane.Values(), ElementsAre(7, 8));
}

TEST(Volume, AverageOverAllDataCoversThePane)
{
    CVolumePane pane{10, 20, 30, 41};
    pane.Draw(2, 2);
    EXPECT_EQ(pane.Volume().VolumeAverage, 25); // 25.25 + 0.5
    EXPECT_THAT(pane.Values(1, 2), Each(25.0));
    EXPECT_EQ(pane.Header(), "Volume, average: 25");
}

TEST(Volume, AverageOfTheLastPointsLiesOverThoseAlone)
{
    CVolumePane pane{10, 20, 30, 40, 50, 60};
    pane.AverageLast(2);
    pane.Window.AllSettings.Request.DataType = 2;
    pane.Draw(0, 6);
    EXPECT_EQ(pane.Volume().VolumeAverage, 55);
    // From point 6 + 2 - 2 - 0 = 6, that is one to the right of where its points begin.
    EXPECT_THAT(pane.Values(1, 2), ElementsAre(Hole, Hole, Hole, Hole, Hole, 55));
}

TEST(Volume, MinuteChartPlacesTheAverageOnePointEarlier)
{
    CVolumePane pane{10, 20, 30, 40, 50, 60};
    pane.AverageLast(2);
    pane.Window.AllSettings.Request.DataType = 1;
    pane.Draw(0, 6);
    EXPECT_THAT(pane.Values(1, 2), ElementsAre(Hole, Hole, Hole, Hole, 55, 55));
}

TEST(Volume, ScrolledBackPaneHasTheAverageOffToItsRight)
{
    CVolumePane pane{10, 20, 30, 40, 50, 60};
    pane.AverageLast(2);
    pane.Draw(0, 3);
    EXPECT_THAT(pane.Values(1, 2), Each(Hole));
}

TEST(Volume, PeriodAboveTheNumberOfPointsAveragesThemAll)
{
    CVolumePane pane{10, 20, 30};
    pane.AverageLast(500);
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Volume().VolumeAverage, 20);
}

TEST(Volume, NoAveragePeriodGivesZero)
{
    CVolumePane pane{10, 20, 30};
    for (const int period : {0, -4}) {
        pane.AverageLast(period);
        pane.Draw(0, 3);
        EXPECT_EQ(pane.Volume().VolumeAverage, 0);
        EXPECT_THAT(pane.Values(1, 2), Each(Hole));
    }
}

TEST(Volume, AverageCanBeSwitchedOff)
{
    CVolumePane pane{10, 20, 30};
    pane.Draw(0, 3);
    pane.Settings().ShowVolumeAverage = 0;
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Data(2).PointCount(1), 0);
    EXPECT_EQ(pane.Header(), "Volume, average: 20");
}

TEST(Volume, EmptyPricePaneLeavesItUntouched)
{
    CVolumePane pane{10, 20, 30};
    pane.Window.Shown.shown = 3;
    pane.Study().DrawStudy();
    EXPECT_EQ(pane.Data().PointCount(1), 0);
}

TEST(Volume, BarsBecomeALineBelowAPixelAPoint)
{
    CVolumePane pane;
    pane.Add(240, 100);
    pane.Window.Width = 81 + 480;
    pane.Draw(0, 240);
    EXPECT_EQ(pane.Window.Study.PaneGroups(1).Type(), 2);
    EXPECT_EQ(pane.Window.Study.PaneArea().BarLook().BarWidth(), 2);
    pane.Window.Width = 81 + 200;
    pane.Study().AdjustStudyBars();
    EXPECT_EQ(pane.Window.Study.PaneGroups(1).Type(), 1);
}

TEST(Volume, LivePointsKeepTheDivisorAndRaiseTheAxis)
{
    CVolumePane pane{1000, 3000000000};
    pane.DrawEnd(120);
    pane.Series.AddTick(10, 60000000000);
    pane.Update(1);
    EXPECT_EQ(pane.Volume().VolumeDivisor, 10);
    EXPECT_EQ(pane.Y(1, 3), 6000000000.0);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 6000000000.0);
}

TEST(Volume, LivePointsNeverLowerTheAxis)
{
    CVolumePane pane{100, 5000};
    pane.DrawEnd(120);
    pane.Series.AddTick(10, 20);
    pane.Update(1);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 5000);
    EXPECT_EQ(pane.Data(2).PointCount(1), 3);
    EXPECT_THAT(pane.Values(1, 2), Each(1707.0)); // 5120 / 3 + 0.5
}

TEST(Volume, HeaderNamesThePeriodInTheChartsUnit)
{
    CVolumePane pane{10, 20, 30};
    pane.AverageLast(7);
    sRequestSettings& request = pane.Window.AllSettings.Request;
    request.IntervalIndex = 5; // 10 minutes
    const char* texts[] = {"7 ticks", "70 minutes", "7 days", "7 weeks", "7 months"};
    for (int type = 0; type < 5; ++type) {
        request.DataType = type;
        pane.Draw(0, 3);
        EXPECT_EQ(pane.Header(), std::string("Volume, average: 20, lookback period - ") + texts[type]);
    }
}

TEST(Volume, DataEndOfTheXAxisIsOfKindOne)
{
    CVolumePane pane{10, 20, 30};
    pane.Draw(0, 3);
    EXPECT_EQ(pane.XAxis().DataHigh().Kind(), 1);
    EXPECT_EQ(pane.YAxis().Setting21(), 0);
}

} // namespace
} // namespace zantroq
