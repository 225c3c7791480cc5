#include "StudyPane.h"

#include <gmock/gmock.h>

namespace zantroq {
namespace {

using testing::Each;

constexpr double Hole = 1e+308;

class CMacdPane : public CStudyPane
{
public:
    explicit CMacdPane(int closes, int shortPeriod = 8, int longPeriod = 17, int signal = 9)
        : CStudyPane(StudyMACD)
    {
        Settings().MacdShort = shortPeriod;
        Settings().MacdLong = longPeriod;
        SetPeriod(signal);
        Add(closes);
    }
    void Add(int closes)
    {
        for (int i = 0; i < closes; ++i) {
            const int n = Series.Count();
            Series.AddTick(100 + (n * 37) % 23 + n * 0.25);
        }
    }
};

TEST(Macd, BeginsAsItsTableSays)
{
    CMacdPane pane(30);
    pane.Draw(0, 30);
    const auto macd = pane.Values(1), signal = pane.Values(2), histogram = pane.Values(1, 2);
    for (std::size_t index = 0; index < 16; ++index)
        EXPECT_EQ(macd[index], Hole) << index;
    EXPECT_NE(macd[16], Hole);
    EXPECT_EQ(macd[17], macd[16]); // the close of index 17 is not taken in
    EXPECT_NE(macd[18], macd[17]);
    for (std::size_t index = 0; index < 18; ++index) {
        EXPECT_EQ(signal[index], Hole) << index;
        EXPECT_EQ(histogram[index], Hole) << index;
    }
    for (std::size_t index = 18; index < 30; ++index)
        EXPECT_EQ(histogram[index], macd[index] - signal[index]) << index;
    EXPECT_EQ(CHistMACDChart::StudyRunningState().Index, 29);
}

TEST(Macd, SignalClimbsFromAPartialSumOverTheWholePeriod)
{
    // With periods 1, 2 and 3: the averages of the closes by hand.
    CMacdPane pane(0, 1, 2, 3);
    const double closes[] = {10, 14, 12, 18, 16, 20};
    for (const double close : closes)
        pane.Series.AddTick(close);
    pane.Draw(0, 6);
    // kS = 1, kL = 2/3. Seed at index 1: short 14, long 12, MACD 2.
    EXPECT_EQ(pane.Y(1, 1), Hole);
    EXPECT_EQ(pane.Y(1, 2), 2);
    EXPECT_EQ(pane.Y(1, 3), 2);
    EXPECT_EQ(pane.Y(2, 3), Hole);
    // Index 3 takes in closes 2 and 3: long 12, then (18 - 12) * 2/3 + 12 = 16; MACD 0, then 2. The sum is 2
    // + 0 + 2.
    EXPECT_NEAR(pane.Y(1, 4), 2, 1e-12);
    EXPECT_NEAR(pane.Y(2, 4), 4.0 / 3, 1e-12);
    // Index 4: long 16, MACD 0; four terms over 3.
    EXPECT_NEAR(pane.Y(2, 5), 4.0 / 3, 1e-12);
    // Index 5: long (20 - 16) * 2/3 + 16, MACD 4/3; exponential with 1/2.
    EXPECT_NEAR(pane.Y(1, 6), 4.0 / 3, 1e-12);
    EXPECT_NEAR(pane.Y(2, 6), 4.0 / 3, 1e-12);
}

TEST(Macd, ScrollingChangesNoValue)
{
    CMacdPane pane(200);
    pane.Draw(0, 200);
    const auto all = pane.Values(1), signal = pane.Values(2);
    for (const int first : {120, 20, 5, 100}) {
        pane.Draw(first, 60);
        for (int point = 1; point <= 60; ++point) {
            EXPECT_EQ(pane.Y(1, point), all[static_cast<std::size_t>(first + point - 1)]);
            EXPECT_EQ(pane.Y(2, point), signal[static_cast<std::size_t>(first + point - 1)]);
        }
    }
}

TEST(Macd, LivePointsGiveWhatARedrawGives)
{
    CMacdPane pane(100);
    pane.DrawEnd(120);
    pane.Add(3);
    pane.Update(3);
    const auto live = pane.Values(1), liveSignal = pane.Values(2), liveHistogram = pane.Values(1, 2);
    ForgetRunningStates();
    pane.DrawEnd(120);
    EXPECT_EQ(pane.Values(1), live);
    EXPECT_EQ(pane.Values(2), liveSignal);
    EXPECT_EQ(pane.Values(1, 2), liveHistogram);
}

TEST(Macd, AnotherSymbolWhoseFirstIndexFollowsGoesOnFromTheState)
{
    CMacdPane pane(100, 1, 2, 3);
    CHistMACDChart::StudyRunningState() = {49, 10, 20, 5};
    double macd = 0, signal = 0;
    pane.As<CHistMACDChart>().CalcMACD(50, macd, signal);
    const double c = pane.Series.ClosePrices[50];
    const double emaShort = (c - 10) * 1.0 + 10, emaLong = (c - 20) * (2.0 / 3) + 20;
    EXPECT_EQ(macd, emaShort - emaLong);
    EXPECT_EQ(signal, (macd - 5) * 0.5 + 5);
}

TEST(Macd, WarmUpWritesNoState)
{
    CMacdPane pane(100);
    double macd = 7, signal = 7;
    pane.As<CHistMACDChart>().CalcMACD(15, macd, signal);
    EXPECT_EQ(macd, 7);
    EXPECT_EQ(signal, 7);
    pane.As<CHistMACDChart>().CalcMACD(25, macd, signal);
    EXPECT_EQ(CHistMACDChart::StudyRunningState().Index, -10);
    pane.As<CHistMACDChart>().CalcMACD(26, macd, signal);
    EXPECT_EQ(CHistMACDChart::StudyRunningState().Index, 26);
}

TEST(Macd, ShortSeriesHasNoLineAndAnAxisAroundZero)
{
    CMacdPane pane(16);
    pane.Draw(0, 16);
    EXPECT_THAT(pane.Values(1), Each(Hole));
    EXPECT_THAT(pane.Values(2), Each(Hole));
    EXPECT_THAT(pane.Values(1, 2), Each(Hole));
    EXPECT_EQ(pane.YAxis().DataLow().Value(), 0);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 1);
}

TEST(Macd, LiveWarmUpHoldsHoles)
{
    CMacdPane pane(10);
    pane.DrawEnd(120);
    pane.Add(2);
    pane.Update(2);
    EXPECT_EQ(pane.Y(1, 11), Hole);
    EXPECT_EQ(pane.Y(1, 12), Hole);
    EXPECT_EQ(pane.Data(2).PointY(1, 12), Hole);
}

TEST(Macd, AxisAlwaysHoldsZero)
{
    CMacdPane pane(0);
    for (int i = 0; i < 60; ++i)
        pane.Series.AddTick(100 + i * i);
    pane.Draw(20, 40);
    EXPECT_EQ(pane.YAxis().DataLow().Value(), 0);
    EXPECT_GT(pane.YAxis().DataHigh().Value(), 0);
    EXPECT_EQ(pane.YAxis().Setting21(), 0);
}

TEST(Macd, HeaderNamesThePresetByTheNumbersAlone)
{
    const auto header = [](int s, int l, int g) {
        CMacdPane pane(40, s, l, g);
        pane.Settings().MacdRadio = 0; // custom
        pane.Draw(0, 40);
        return pane.Header();
    };
    EXPECT_EQ(header(8, 17, 9), "MACD (buy), periods: short - 8, long - 17, signal smoothing - 9");
    EXPECT_EQ(header(12, 25, 9), "MACD (sell), periods: short - 12, long - 25, signal smoothing - 9");
    EXPECT_EQ(header(12, 15, 9), "MACD (custom), periods: short - 12, long - 15, signal smoothing - 9");
}

TEST(Macd, MarkedPointAddsBothValues)
{
    CMacdPane pane(0, 1, 2, 3);
    for (const double close : {10.0, 14.0, 12.0, 18.0})
        pane.Series.AddTick(close);
    pane.Draw(0, 4);
    pane.Marker().SetPoint(3);
    EXPECT_EQ(pane.Study().GetStudyInfoText(),
              "MACD (custom), periods: short - 1, long - 2, signal smoothing - 3 MACD: 2.0000");
    pane.Marker().SetPoint(4);
    EXPECT_EQ(
        pane.Study().GetStudyInfoText(),
        "MACD (custom), periods: short - 1, long - 2, signal smoothing - 3 MACD: 2.0000 Signal: 1.3333");
}

TEST(Macd, BarsFitThePixelsOfAPoint)
{
    CMacdPane pane(100);
    pane.Window.Width = 481;
    pane.Draw(0, 100);
    EXPECT_EQ(pane.Window.Study.PaneArea().BarLook().BarWidth(), 4); // 400 / 99.5
    pane.Window.Width = 80;
    pane.Study().AdjustStudyBars();
    EXPECT_EQ(pane.Window.Study.PaneArea().BarLook().BarWidth(), 1);
    pane.Window.Width = 300;
    pane.Draw(0, 1);
    EXPECT_EQ(pane.Window.Study.PaneArea().BarLook().BarWidth(), 300);
}

TEST(Macd, ShortPeriodAboveTheLongOneWaitsForBoth)
{
    CMacdPane pane(100, 40, 5, 3);
    pane.Draw(0, 100);
    EXPECT_EQ(pane.Y(1, 39), Hole);
    EXPECT_NE(pane.Y(1, 40), Hole);
}

} // namespace
} // namespace zantroq
