#include "support/SeriesFixture.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

// A study that records its calls.
class CNotedStudy : public CStudyChart
{
public:
    explicit CNotedStudy(std::vector<std::string>& log) : m_log(log) {}
    double GetHigh(int index) const override { return prices->High(index); }
    double GetLow(int index) const override { return prices->Low(index); }
    double GetOpen(int index) const override { return prices->Open(index); }
    double GetClose(int index) const override { return prices->Close(index); }
    std::int64_t GetVolume(int index) const override { return prices->Volume(index); }
    int GetPointCount() const override { return prices->Count(); }
    void DrawStudy() override { m_log.push_back(Name() + (collapsed ? " draw collapsed" : " draw")); }
    void UpdateStudy(int newPoints) override
    {
        m_log.push_back(Name() + " update " + std::to_string(newPoints));
    }
    std::string GetStudyInfoText() const override { return Name(); }
    std::string ReadoutText(int point) const override
    {
        return "\n" + Name() + " at " + std::to_string(point);
    }
    void RefreshStudyHeader() override { m_log.push_back(Name() + " header"); }

private:
    std::string Name() const { return std::to_string(kind) + "@" + std::to_string(pane); }
    std::vector<std::string>& m_log;
};

class CNotedFactory : public IStudyFactory
{
public:
    CStudyChart* Create(int kind) override { return kind > 9 ? nullptr : new CNotedStudy(log); }
    std::vector<std::string> log;
};

// Forty bars and two studies, RSI above volume.
class DrawManager : public testing::Test
{
protected:
    explicit DrawManager(int dataType = DailyData) : chart(dataType, &factory)
    {
        chart.window.settings.PtsIndex = chart.window.range.ptsIndex = 0;
        chart.window.settings.Panes.StudyCount = 2;
        chart.window.settings.Panes.StudyTypes = {StudyRSI, StudyVolume};
        for (int i = 0; i < 40; ++i)
            chart.Add(100 + i, 101 + i, 99 + i, 100.5 + i, 1000 + i);
        chart.window.scrollLimit = 11;
    }
    std::vector<std::string> Log() { return std::exchange(factory.log, {}); }
    CNotedFactory factory;
    CSeriesFixture chart;
};

class TickManager : public DrawManager
{
protected:
    TickManager() : DrawManager(TickData) {}
};

using Lines = std::vector<std::string>;

TEST_F(DrawManager, FullRedrawDrawsAtTheLiveEdgeThenTheTitles)
{
    chart.window.selectedPoint = 5;
    chart.manager.seriesEdited = true;
    chart.manager.FullRedraw();
    EXPECT_FALSE(chart.manager.seriesEdited);
    EXPECT_EQ(chart.window.selectedPoint, NoPoint);
    EXPECT_EQ(chart.window.range.last, 39);
    EXPECT_EQ(Log(), (Lines{"0@1 draw", "6@2 draw", "0@1 header", "6@2 header"}));
    EXPECT_EQ(chart.window.batchDepth, 0);
    EXPECT_EQ(chart.window.Pane(1).PaneLabels().Count(), 1);
    EXPECT_EQ(chart.Labels().Item(2).Text(), "Daily Price: ");
    EXPECT_TRUE(chart.Labels().Item(2).Shown());
}

TEST_F(DrawManager, FullRedrawOfAnEmptySeriesSetsUpAndDrawsNothing)
{
    chart.manager.FullRedraw();
    chart.request.ClearSeries();
    Log();
    chart.manager.FullRedraw();
    EXPECT_EQ(Log(), Lines{});
    EXPECT_EQ(chart.Labels().Count(), 9);
    EXPECT_EQ(chart.Bars().PointCount(1), 0);
    EXPECT_EQ(chart.Overlays().PointCount(1), 0);
}

TEST_F(DrawManager, NineLabelsOfThePricePane)
{
    chart.manager.FullRedraw();
    ASSERT_EQ(chart.Labels().Count(), 9);
    for (int number = 1; number <= 9; ++number)
        EXPECT_EQ(chart.Labels().Item(number).Shown(), number == 2) << number;
    EXPECT_EQ(chart.Labels().Item(2).Interior().Background(), 0x232323u);
    EXPECT_EQ(chart.Labels().Item(2).Side(), 0x21);
    EXPECT_EQ(chart.Labels().Item(2).BoxAttachment(), 2);
    EXPECT_EQ(chart.window.Pane(0).PaneArea().PlotFrame().BottomMargin().Value(), 31);
}

TEST_F(DrawManager, DrawTellsEachStudyWhetherItIsCollapsed)
{
    chart.manager.FullRedraw();
    Log();
    chart.window.collapsed[2] = true;
    chart.window.resetScale = true;
    chart.Labels().Item(1).SetShown(true);
    chart.manager.Draw(3);
    EXPECT_EQ(Log(), (Lines{"0@1 draw", "6@2 draw collapsed"}));
    EXPECT_FALSE(chart.window.resetScale);
    EXPECT_FALSE(chart.Labels().Item(1).Shown()); // the readout disappears
}

TEST_F(DrawManager, MarkersOfAllPanesFollowTheSelectedPoint)
{
    chart.manager.FullRedraw();
    chart.window.selectedPoint = 7;
    chart.manager.Draw(11);
    for (int pane : {0, 1, 2})
        EXPECT_EQ(chart.window.Pane(pane).PaneArea().Marker().Point(), 7) << pane;
}

TEST_F(DrawManager, NewBarRedrawsEverythingWhole)
{
    chart.manager.FullRedraw();
    Log();
    chart.Add(140, 141, 139, 140);
    chart.manager.Update(1);
    EXPECT_EQ(Log(), (Lines{"0@1 draw", "6@2 draw"}));
    EXPECT_EQ(chart.window.range.last, 40);
}

TEST_F(DrawManager, ChangedLastBarReachesThatPointOfThePricePaneAlone)
{
    chart.manager.FullRedraw();
    Log();
    sHIST_POINT point;
    chart.request.GetPoint(39, point);
    point.High = 150;
    point.Close = 149;
    chart.request.UpdatePoint(39, point);
    const double before = chart.Bars().PointY(1, 29);
    const double axis = chart.Axes().Y().ViewHigh().Value();
    chart.manager.Update(0);
    EXPECT_EQ(Log(), Lines{});
    EXPECT_EQ(chart.Bars().PointY(1, 30), 150);
    EXPECT_EQ(chart.Bars().PointY(2, 30), 138);
    EXPECT_EQ(chart.Bars().PointY(3, 30), 139);
    EXPECT_EQ(chart.Bars().PointY(4, 30), 149);
    EXPECT_EQ(chart.Bars().PointY(1, 29), before);
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), axis); // the axis changes only at the next whole draw
}

TEST_F(DrawManager, ChangedLastBarRenewsTheReadoutThatIsShown)
{
    chart.manager.FullRedraw();
    CPaneLabel& readout = chart.Labels().Item(1);
    readout.SetDataAnchor(30, 140);
    readout.SetText("old");
    sHIST_POINT point;
    chart.request.GetPoint(39, point);
    point.Close = 139.25;
    chart.request.UpdatePoint(39, point);
    chart.manager.Update(0);
    EXPECT_EQ(readout.Text(), "old"); // hidden
    readout.SetShown(true);
    chart.manager.Update(0);
    EXPECT_EQ(readout.Text(), "old"); // nothing changed
    point.Close = 139.75;
    chart.request.UpdatePoint(39, point);
    chart.manager.Update(0);
    EXPECT_NE(readout.Text().find("Close: 139.7500"), std::string::npos);
}

TEST_F(TickManager, NewTicksUpdateTheStudies)
{
    chart.manager.FullRedraw();
    Log();
    chart.Add(1, 1, 1, 141);
    chart.Add(1, 1, 1, 142);
    chart.window.scrollLimit = 13;
    chart.manager.Update(2);
    EXPECT_EQ(Log(), (Lines{"0@1 update 2", "6@2 update 2"}));
    EXPECT_EQ(chart.Bars().PointY(1, 30), 142);
}

TEST_F(TickManager, UpdateOfZeroTicksDoesNothing)
{
    chart.manager.FullRedraw();
    Log();
    sHIST_POINT point;
    chart.request.GetPoint(39, point);
    point.Last = 999;
    chart.request.UpdatePoint(39, point);
    chart.manager.Update(0);
    EXPECT_EQ(Log(), Lines{});
    EXPECT_EQ(chart.Bars().PointY(1, 30), 139.5);
}

TEST_F(TickManager, LastTickCanBeUpdatedAlone)
{
    chart.manager.FullRedraw();
    const int draws = chart.trends.draws;
    sHIST_POINT point;
    chart.request.GetPoint(39, point);
    point.Last = 999;
    chart.request.UpdatePoint(39, point);
    chart.manager.PriceChart().UpdateLastPoint();
    EXPECT_EQ(chart.Bars().PointY(1, 30), 999);
    EXPECT_EQ(chart.trends.draws, draws + 1);
    chart.manager.PriceChart().UpdateLastPoint();
    EXPECT_EQ(chart.trends.draws, draws + 1);
}

TEST_F(DrawManager, DeletedPointStaysOnShowUntilTheNextDraw)
{
    chart.manager.FullRedraw();
    chart.manager.DeletePoint(39);
    EXPECT_TRUE(chart.manager.seriesEdited);
    EXPECT_EQ(chart.prices.Count(), 39);
    EXPECT_EQ(chart.Bars().PointY(4, 30), 139.5);
    chart.manager.Update(0); // the last displayed bar is no longer in the series: nothing to update
    EXPECT_EQ(chart.Bars().PointY(4, 30), 139.5);
    chart.manager.Draw(11);
    EXPECT_EQ(chart.Bars().PointY(4, 30), 138.5);
}

TEST_F(DrawManager, StudiesAreMadeAnewWhenTheDisplayedSetChanges)
{
    chart.manager.FullRedraw();
    CStudyChart* first = chart.manager.Studies()[0].get();
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.manager.Studies()[0].get(), first);
    chart.window.settings.Panes.StudyCount = 1;
    chart.window.settings.Panes.StudyTypes = {StudyMACD};
    chart.manager.FullRedraw();
    ASSERT_TRUE(chart.manager.Studies()[0]);
    EXPECT_EQ(chart.manager.Studies()[0]->kind, StudyMACD);
    EXPECT_EQ(chart.manager.Studies()[0]->chart, &chart.window.Pane(1));
    EXPECT_EQ(chart.manager.Studies()[0]->prices, &chart.prices);
    EXPECT_FALSE(chart.manager.Studies()[1]);
    chart.window.settings.Panes.StudyTypes = {99}; // an unknown kind makes no pane
    chart.manager.CreateStudies();
    EXPECT_FALSE(chart.manager.Studies()[0]);
}

TEST_F(DrawManager, InfoTextJoinsItsParts)
{
    chart.request.SetPriceFormat(12);
    chart.window.settings.Overlays.ShowAverages = 1;
    chart.window.settings.Overlays.AveragePoints = {2, 35, 3};
    chart.window.settings.Overlays.AverageSelected = {1, 1, 0};
    chart.manager.FullRedraw();
    // Point 4 of a window from index 10 on: index 13.
    EXPECT_EQ(chart.manager.MakeInfoText(4), "Hi: 114.00, Low: 112.00, Open: 113.00, Close: 113.50\n"
                                             "Volume: 1,013  Date: 2014/01/15\n"
                                             "MA1: 113.00  \n"
                                             "0@1 at 4\n"
                                             "6@2 at 4");
    EXPECT_EQ(chart.manager.MakeInfoText(5), "Hi: 115.00, Low: 113.00, Open: 114.00, Close: 114.50\n"
                                             "Volume: 1,014  Date: 2014/01/16\n"
                                             "MA1: 114.00  \n"
                                             "0@1 at 5\n"
                                             "6@2 at 5");
    EXPECT_EQ(chart.manager.MakeInfoText(0), "");
    EXPECT_EQ(chart.manager.MakeInfoText(31), "");
}

TEST_F(TickManager, InfoTextOfATickHasMilliseconds)
{
    chart.request.SetPriceFormat(0);
    chart.window.settings.Overlays.ShowBands = 1;
    chart.window.settings.Overlays.BandPeriod = 2;
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.manager.MakeInfoText(1), "Price: 110.5\nVolume: 1,010  Time: 09:40:00.250\n"
                                             "Bands: lower: 109.00  middle: 110.00  upper: 111.00\n"
                                             "0@1 at 1\n"
                                             "6@2 at 1");
}

TEST_F(DrawManager, TitleTellsAboutTheSelectedPoint)
{
    chart.request.SetPriceFormat(12);
    chart.window.settings.Overlays.ShowBands = 1;
    chart.window.settings.Overlays.BandPeriod = 2;
    chart.manager.FullRedraw();
    chart.window.selectedPoint = 4;
    chart.manager.RefreshTitles();
    EXPECT_EQ(chart.Labels().Item(2).Text(),
              "Daily Price: Hi: 114.00  Low: 112.00  Open: 113.00  Close: 113.50  2014/01/15  "
              "Bands: lower: 112.00 middle: 113.00 upper: 114.00");
    chart.window.selectedPoint = 31; // not shown
    chart.manager.RefreshTitles();
    EXPECT_EQ(chart.Labels().Item(2).Text(), "Daily Price: ");
    chart.window.collapsed[0] = true;
    chart.manager.RefreshTitles();
    EXPECT_EQ(chart.Labels().Item(2).Text(), "Daily Price:  (Minimized)");
}

TEST_F(TickManager, TitleOfATickHasPriceDateAndTime)
{
    chart.request.SetPriceFormat(0);
    chart.manager.FullRedraw();
    chart.window.selectedPoint = 1;
    const auto info = chart.manager.PriceChart().GetInfo();
    EXPECT_EQ(info, (std::array<std::string, 8>{"110.5", "", "", "", "2014/01/02", "09:40:00.250", "", ""}));
    chart.manager.RefreshTitles();
    EXPECT_EQ(chart.Labels().Item(2).Text(), "Tick Price: 110.5  2014/01/02  09:40:00.250");
}

TEST(SeriesReader, TitleNamesTheDataType)
{
    const char* names[] = {"Tick Price: x", "Minute Price: x", "Daily Price: x", "Weekly Price: x",
                           "Monthly Price: x"};
    for (int type = TickData; type <= MonthlyData; ++type) {
        CSeriesFixture chart(type);
        chart.manager.PriceChart().SetUp();
        chart.manager.PriceChart().SetTitle("x");
        EXPECT_EQ(chart.Labels().Item(2).Text(), names[type]);
    }
}

TEST(SeriesReader, TicksHaveOnePriceAndThirtyTwoBitSizes)
{
    CSeriesFixture chart(TickData);
    chart.Add(1, 2, 3, 4, 0xFFFFFFFF);
    EXPECT_EQ(chart.prices.High(0), 4);
    EXPECT_EQ(chart.prices.Low(0), 4);
    EXPECT_EQ(chart.prices.Open(0), 4);
    EXPECT_EQ(chart.prices.Close(0), 4);
    EXPECT_EQ(chart.prices.Volume(0), -1); // the size's sign is kept
}

TEST(SeriesReader, OutsideTheSeriesEverythingIsZero)
{
    CSeriesFixture chart(MinuteData);
    chart.Add(1, 2, 0.5, 1.5, 70);
    for (int index : {-1, 1, 1000000, -2147483647 - 1}) {
        EXPECT_EQ(chart.prices.High(index), 0);
        EXPECT_EQ(chart.prices.Low(index), 0);
        EXPECT_EQ(chart.prices.Open(index), 0);
        EXPECT_EQ(chart.prices.Close(index), 0);
        EXPECT_EQ(chart.prices.Volume(index), 0);
    }
    double prices[5] = {9, 9, 9, 9, 9};
    chart.prices.ReadHigh(-2, 5, prices);
    EXPECT_EQ(std::vector<double>(prices, prices + 5), (std::vector<double>{0, 0, 2, 0, 0}));
    std::int64_t volumes[3] = {9, 9, 9};
    chart.prices.ReadVolume(-1, 3, volumes);
    EXPECT_EQ(std::vector<std::int64_t>(volumes, volumes + 3), (std::vector<std::int64_t>{0, 70, 0}));
    chart.prices.ReadClose(-100, 3, prices);
    EXPECT_EQ(prices[2], 0);
}

TEST(SeriesReader, WithoutASeriesTextsHaveTheirDefaults)
{
    CFakeChartWindow window;
    CSeriesReader prices;
    CHistChartDrawManager manager(window, prices, nullptr, nullptr);
    EXPECT_EQ(prices.GetDate(5), "1900/01/01");
    EXPECT_EQ(prices.GetTime(5, TimeDetail::Milliseconds), "00:00:00");
    EXPECT_EQ(prices.Count(), 0);
    EXPECT_EQ(prices.Close(0), 0);
    sHIST_DATA point;
    point.Close = 7;
    prices.GetPoint(0, point);
    EXPECT_EQ(point.Close, 7);
    manager.FullRedraw();
    manager.Draw(0);
    manager.Update(0);
    manager.Update(3);
    manager.DeletePoint(0);
    manager.PriceChart().RedrawTrends();
    EXPECT_EQ(manager.MakeInfoText(1), "");
}

TEST(SeriesReader, DateTextsBeginAtIndexOne)
{
    CSeriesFixture chart;
    chart.AddCloses({1, 2, 3});
    EXPECT_EQ(chart.prices.GetDate(0), "2014/01/03"); // index 1
    EXPECT_EQ(chart.prices.GetDate(-5), "2014/01/03");
    EXPECT_EQ(chart.prices.GetDate(2), "2014/01/04");
    EXPECT_EQ(chart.prices.GetDate(99), "2014/01/04");
    EXPECT_EQ(chart.prices.GetMinuteTime(1), "00:00:00min");
    EXPECT_EQ(chart.prices.GetTime(0, TimeDetail::Seconds), "2014/01/02");
    EXPECT_EQ(chart.prices.GetTime(99, TimeDetail::Seconds), "2014/01/04");
    sHIST_DATA point;
    chart.prices.GetPoint(3, point);
    EXPECT_EQ(point.Close, 3);
    chart.prices.GetPoint(-3, point);
    EXPECT_EQ(point.Close, 1);
}

} // namespace
} // namespace zantroq
