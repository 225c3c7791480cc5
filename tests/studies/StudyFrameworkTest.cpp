#include "StudyPane.h"

#include <gmock/gmock.h>

#include <cmath>

namespace zantroq {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr double Hole = 1e+308;

void AddRisingCloses(CStudyPane& pane, int count, double from = 100)
{
    for (int i = 0; i < count; ++i)
        pane.Series.AddTick(from + i);
}

TEST(StudyPane, FactoryMakesAllTenAndNothingElse)
{
    CStudyFactory factory;
    for (int kind = 0; kind < StudyKinds; ++kind) {
        const std::unique_ptr<CStudyChart> study(factory.Create(kind));
        ASSERT_TRUE(study) << kind;
        EXPECT_EQ(study->kind, kind);
    }
    EXPECT_EQ(factory.Create(-1), nullptr);
    EXPECT_EQ(factory.Create(10), nullptr);
}

TEST(StudyPane, NothingShownLeavesThePaneUntouched)
{
    for (int kind = 0; kind < StudyKinds; ++kind) {
        CStudyPane pane(kind);
        AddRisingCloses(pane, 50);
        pane.Draw(0, 20);
        const auto before = pane.Values();
        const double high = pane.XAxis().ViewHigh().Value();
        pane.Draw(20, 0);
        EXPECT_EQ(pane.Values(), before) << kind;
        EXPECT_EQ(pane.XAxis().ViewHigh().Value(), high);
    }
}

// A range keeps its number of points over an empty series.
TEST(StudyPane, AnEmptySeriesHasNoPointsOnlyWhatSetUpMade)
{
    for (int kind = 0; kind < StudyKinds; ++kind) {
        CStudyPane pane(kind);
        const double high = pane.YAxis().ViewHigh().Value(), last = pane.XAxis().ViewHigh().Value();
        pane.Window.Shown.shown = 120;
        pane.Study().DrawStudy();
        for (const int group : {1, 2})
            EXPECT_EQ(pane.Data(group).PointCount(1), 0) << kind << ", group " << group;
        EXPECT_EQ(pane.YAxis().ViewHigh().Value(), high) << kind;
        EXPECT_EQ(pane.XAxis().ViewHigh().Value(), last) << kind;
        EXPECT_TRUE(pane.Labels().empty()) << kind;
        EXPECT_EQ(pane.Header(), "") << kind;
    }
}

TEST(StudyPane, ASeriesThatLostItsLastPointTakesThoseOfThePaneAlong)
{
    for (int kind = 0; kind < StudyKinds; ++kind) {
        CStudyPane pane(kind);
        pane.SetPeriod(1);
        AddRisingCloses(pane, 10);
        pane.Draw(0, 10);
        pane.Marker().SetPoint(7);
        pane.Study().RefreshStudyHeader();
        pane.Series = CBarSeries();
        pane.Window.Price.PaneGroups(1).PaneData().SetPointCount(1, 0);
        pane.Study().DrawStudy();
        for (const int group : {1, 2})
            EXPECT_EQ(pane.Data(group).PointCount(1), 0) << kind << ", group " << group;
        const std::string unmarked = pane.Header();
        pane.Marker().SetPoint(NoPoint);
        EXPECT_EQ(unmarked, pane.Study().GetStudyInfoText()) << kind;
    }
}

TEST(StudyPane, OneToSixPointsHaveASpacingOfOne)
{
    for (int shown = 1; shown <= 7; ++shown) {
        CStudyPane pane(StudyOBV);
        AddRisingCloses(pane, shown);
        pane.Draw(0, shown);
        EXPECT_EQ(pane.XAxis().TickSpacing().Value(), shown == 7 ? 2 : 1) << shown;
        EXPECT_EQ(pane.XAxis().TickMarkSpacing().Value(), shown == 7 ? 2 : 1);
    }
}

TEST(StudyPane, XAxisRunsFromOneToHalfAPointPastTheLast)
{
    CStudyPane pane(StudyROC);
    pane.Window.AllSettings.Grid = 1;
    AddRisingCloses(pane, 120);
    pane.Draw(20, 100);
    EXPECT_EQ(pane.XAxis().ViewLow().Value(), 1);
    EXPECT_EQ(pane.XAxis().DataLow().Value(), 1);
    EXPECT_EQ(pane.XAxis().DataHigh().Value(), 100);
    EXPECT_EQ(pane.XAxis().ViewHigh().Value(), 100.5);
    EXPECT_EQ(pane.XAxis().TickSpacing().Value(), 98 / 5 + 1);
    EXPECT_EQ(pane.XAxis().AxisGrid().Spacing(), 98 / 5 + 1);
    EXPECT_EQ(pane.X(1), 1);
    EXPECT_EQ(pane.X(100), 100);
}

TEST(StudyPane, AccessorsAnswerZeroOutsideTheSeries)
{
    CStudyPane pane(StudyRSI);
    pane.Series.Add(1, 3, 0.5, 2, 700);
    const CStudyChart& study = pane.Study();
    EXPECT_EQ(study.GetHigh(0), 3);
    EXPECT_EQ(study.GetLow(0), 0.5);
    EXPECT_EQ(study.GetOpen(0), 1);
    EXPECT_EQ(study.GetClose(0), 2);
    EXPECT_EQ(study.GetValue(0), 2);
    EXPECT_EQ(study.GetVolume(0), 700);
    EXPECT_EQ(study.GetClose(-1), 0);
    EXPECT_EQ(study.GetHigh(1), 0);
    EXPECT_EQ(study.GetVolume(1), 0);
}

TEST(StudyUpdate, PartlyFilledWindowGrowsAndMovesTheMarkerLeftByTheNewPoints)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(2);
    pane.Window.Shown.ptsIndex = 0; // 30 points
    AddRisingCloses(pane, 10);
    pane.DrawEnd(30);
    pane.Marker().SetPoint(8);
    AddRisingCloses(pane, 3, 200);
    pane.Update(3);
    EXPECT_EQ(pane.Data().PointCount(1), 13);
    EXPECT_EQ(pane.Marker().Point(), 5);
    EXPECT_EQ(pane.XAxis().ViewLow().Value(), 1);
    EXPECT_EQ(pane.XAxis().ViewHigh().Value(), 13.5);
    EXPECT_EQ(pane.XAxis().DataHigh().Value(), 13.5);
    EXPECT_EQ(pane.X(13), 13);
    EXPECT_EQ(pane.Y(1, 13), 2); // 202 against 200, two bars before
}

TEST(StudyUpdate, FullWindowShiftsDropsAndRenumbers)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(1);
    pane.Window.Shown.ptsIndex = 0;
    for (int i = 0; i < 40; ++i)
        pane.Series.AddTick(i * i);
    pane.DrawEnd(30);
    pane.Marker().SetPoint(20);
    const auto before = pane.Values();
    pane.Series.AddTick(5000);
    pane.Series.AddTick(6000);
    pane.Update(2);
    EXPECT_EQ(pane.Data().PointCount(1), 30);
    EXPECT_EQ(pane.Y(1, 1), before[2]);
    EXPECT_EQ(pane.Y(1, 28), before[29]);
    EXPECT_EQ(pane.Y(1, 29), 5000 - 39 * 39);
    EXPECT_EQ(pane.Y(1, 30), 1000);
    EXPECT_EQ(pane.X(1), 3);
    EXPECT_EQ(pane.X(30), 32);
    EXPECT_EQ(pane.XAxis().ViewLow().Value(), 3);
    EXPECT_EQ(pane.XAxis().ViewHigh().Value(), 32.5);
    EXPECT_EQ(pane.Marker().Point(), 18);
}

TEST(StudyUpdate, WindowThatFillsUpDropsTheSurplusAlone)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(1);
    pane.Window.Shown.ptsIndex = 0;
    AddRisingCloses(pane, 28);
    pane.DrawEnd(30);
    pane.Marker().SetPoint(20);
    AddRisingCloses(pane, 5, 500);
    pane.Update(5); // 33 points for 30 places
    EXPECT_EQ(pane.Data().PointCount(1), 30);
    EXPECT_EQ(pane.Marker().Point(), 17);
    EXPECT_EQ(pane.X(1), 4);
    EXPECT_EQ(pane.X(30), 33);
    EXPECT_EQ(pane.XAxis().ViewHigh().Value(), 33.5);
    EXPECT_EQ(pane.Y(1, 26), 500 - 127);
    EXPECT_EQ(pane.Y(1, 30), 1);
}

TEST(StudyUpdate, MorePointsThanTheWindowHoldsFillItWithTheNewest)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(1);
    pane.Window.Shown.ptsIndex = 0;
    AddRisingCloses(pane, 20);
    pane.DrawEnd(30);
    for (int i = 0; i < 100; ++i)
        pane.Series.AddTick(i * 3);
    pane.Update(100);
    EXPECT_EQ(pane.Data().PointCount(1), 30);
    EXPECT_THAT(pane.Values(), Each(3.0));
}

TEST(StudyUpdate, NoMarkerStaysNone)
{
    CStudyPane pane(StudyROC);
    AddRisingCloses(pane, 10);
    pane.DrawEnd(120);
    AddRisingCloses(pane, 1);
    pane.Update(1);
    EXPECT_EQ(pane.Marker().Point(), NoPoint);
}

TEST(StudyUpdate, LastPointAsksForTheLastIndex)
{
    for (const int kind : {int{StudyROC}, int{StudyMomentum}}) {
        CStudyPane pane(kind);
        pane.SetPeriod(1);
        AddRisingCloses(pane, 5);
        pane.DrawEnd(120);
        pane.Series.AddTick(208);
        pane.Update(1);
        EXPECT_EQ(pane.Y(1, 6), kind == StudyROC ? 100 : 104) << kind;
    }
}

TEST(StudyUpdate, NoNewPointsWriteTheVolumePastTheEndIntoTheLastPoint)
{
    for (int kind = 0; kind < StudyKinds; ++kind) {
        CStudyPane pane(kind);
        AddRisingCloses(pane, 5);
        pane.DrawEnd(120);
        pane.Study().UpdateStudy(0);
        EXPECT_EQ(pane.Y(1, 5), 0) << kind; // there is no volume past the end
        pane.Study().UpdateStudy(-3);
        EXPECT_EQ(pane.Data().PointCount(1), 5);
    }
}

TEST(StudyUpdate, AxisGrowsOnlyForAValueOutsideIt)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(1);
    for (const double close : {10, 14, 10, 14})
        pane.Series.AddTick(close);
    pane.DrawEnd(120); // values hole, hole, 4, -4
    ASSERT_EQ(pane.YAxis().DataHigh().Value(), 4);
    pane.Series.AddTick(15);
    pane.Update(1);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 4);
    pane.Series.AddTick(25);
    pane.Update(1);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 10);
    EXPECT_EQ(pane.YAxis().DataLow().Value(), -4);
}

TEST(StudyUpdate, NothingToComputeWidensNoAxis)
{
    for (const int kind :
         {int{StudyMomentum}, int{StudyROC}, int{StudyOBV}, int{StudyMACD}, int{StudyMoneyFlow}}) {
        CStudyPane pane(kind);
        pane.SetPeriod(100);
        AddRisingCloses(pane, 5);
        pane.DrawEnd(120);
        const double high = pane.YAxis().ViewHigh().Value();
        AddRisingCloses(pane, 1);
        pane.Update(1);
        EXPECT_EQ(pane.Y(1, 6), Hole) << kind;
        EXPECT_EQ(pane.YAxis().ViewHigh().Value(), high) << kind;
    }
}

TEST(StudyHeader, MarkedPointAddsItsValue)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(2);
    AddRisingCloses(pane, 10);
    pane.Draw(0, 10);
    EXPECT_EQ(pane.Header(), "MOM, lookback period - 2");
    pane.Marker().SetPoint(5);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "MOM, lookback period - 2 MOM - 2.0000");
    EXPECT_EQ(pane.Header(), "MOM, lookback period - 2"); // until it is refreshed
    pane.Study().RefreshStudyHeader();
    EXPECT_EQ(pane.Header(), "MOM, lookback period - 2 MOM - 2.0000");
}

TEST(StudyHeader, HoleAndPointsOutsideAddNothing)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(2);
    AddRisingCloses(pane, 10);
    pane.Draw(0, 10);
    for (const int point : {1, 0, -5, 11}) {
        pane.Marker().SetPoint(point);
        EXPECT_EQ(pane.Study().GetStudyInfoText(), "MOM, lookback period - 2") << point;
    }
}

TEST(StudyHeader, CollapsedPaneSaysMinimized)
{
    CStudyPane pane(StudyMFI);
    AddRisingCloses(pane, 10);
    pane.Study().collapsed = true;
    pane.Draw(0, 10);
    EXPECT_EQ(pane.Header(), "Money Flow Index, lookback period - 14, levels - 80, 20 (Minimized)");
}

TEST(StudyHeader, StandsAboveTheValueAxisInItsColor)
{
    CStudyPane pane(StudyADX);
    pane.Settings().LabelColors[StudyADX] = 0x123456;
    pane.Window.Study.PaneArea().PlotFrame().LeftMargin().SetValue(23);
    AddRisingCloses(pane, 10);
    pane.Draw(0, 10);
    const CPaneLabel& header = pane.Window.Study.PaneLabels().Item(1);
    EXPECT_EQ(header.Interior().Foreground(), 0x123456u);
    EXPECT_EQ(header.PixelX(), 23);
    EXPECT_TRUE(header.Shown());
}

TEST(StudyPane, LevelAndZeroLinesAreSeriesOfGroupOne)
{
    const std::pair<int, int> lines[] = {
        {StudyRSI, 3},         {StudyMomentum, 2}, {StudyROC, 1},       {StudyOBV, 2}, {StudyMACD, 2},
        {StudyStochastics, 4}, {StudyMFI, 3},      {StudyMoneyFlow, 3}, {StudyADX, 3}, {StudyVolume, 1}};
    for (const auto& [kind, series] : lines) {
        CStudyPane pane(kind);
        AddRisingCloses(pane, 10);
        pane.Draw(0, 10);
        EXPECT_EQ(pane.Data().SeriesCount(), series) << kind;
        EXPECT_EQ(pane.Data().LastShownSeries(), series) << kind;
        EXPECT_EQ(pane.Data().FirstPoint(series), 1) << kind;
    }
}

TEST(StudyPane, ChartTypesAreThoseOfTheStudies)
{
    const auto types = [](int kind) {
        CStudyPane pane(kind);
        AddRisingCloses(pane, 10);
        pane.Draw(0, 10);
        return std::pair(pane.Window.Study.PaneGroups(1).Type(), pane.Window.Study.PaneGroups(2).Type());
    };
    EXPECT_EQ(types(StudyMomentum).first, 1);
    EXPECT_EQ(types(StudyROC).first, 2);
    EXPECT_EQ(types(StudyMACD), std::pair(1, 5));
    EXPECT_EQ(types(StudyVolume), std::pair(2, 1));
}

TEST(StudyPane, ExtremePeriodsDoNoHarm)
{
    for (int kind = 0; kind < StudyKinds; ++kind)
        for (const int period : {0, -1, -1000000, 1000000000, 2147483647, -2147483647 - 1})
            for (const bool allThree : {false, true}) {
                CStudyPane pane(kind);
                pane.SetPeriod(period);
                pane.Settings().VolumeAverageAllData = 0;
                if (allThree)
                    pane.Settings().MacdShort = pane.Settings().MacdLong = period;
                for (int i = 0; i < 200; ++i)
                    pane.Series.Add(100 + i % 7, 110 + i % 5, 90 - i % 3, 101 + i % 11, 1000 * (i % 4));
                pane.Draw(80, 120);
                pane.Series.AddTick(55);
                pane.Update(1);
                EXPECT_EQ(pane.Data().PointCount(1), 120);
                const bool looksBackOnly = kind == StudyMomentum || kind == StudyROC || kind == StudyOBV;
                if (kind != StudyVolume && kind != StudyMACD && (period > 1000 || !looksBackOnly)) {
                    EXPECT_THAT(pane.Values(), Each(Hole)) << "kind " << kind << ", period " << period;
                }
            }
}

} // namespace
} // namespace zantroq
