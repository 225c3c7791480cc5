#include "drawing/InfoText.h"

#include "scene/Chart2D.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;
const sPriceWords Cents{ShippedPriceFormatter(), 12};
const sPriceWords Plain{ShippedPriceFormatter(), 0};

sHIST_DATA Bar(double open, double high, double low, double close)
{
    sHIST_DATA bar;
    bar.Open = open;
    bar.High = high;
    bar.Low = low;
    bar.Close = close;
    return bar;
}

// A scene whose first point has these values, one per series.
class CPoint
{
public:
    explicit CPoint(std::vector<double> values)
    {
        Data().SetSeriesCount(static_cast<int>(values.size()));
        Data().SetPointCount(1, 1);
        for (std::size_t i = 0; i < values.size(); ++i)
            Data().SetPointY(static_cast<int>(i) + 1, 1, values[i]);
    }
    CPaneData& Data() { return chart.PaneGroups(1).PaneData(); }

private:
    CChart2D chart;
};

TEST(InfoText, TickReadsOnePrice)
{
    EXPECT_EQ(ReadoutPrices(Cents, TickData, Bar(1, 1, 1, 1.5)), "Price: 1.50");
    EXPECT_EQ(ReadoutPrices(Plain, TickData, Bar(1, 1, 1, 1.5)), "Price: 1.5");
}

TEST(InfoText, BarReadsFourPrices)
{
    EXPECT_EQ(ReadoutPrices(Cents, DailyData, Bar(2, 4, 1, 3)),
              "Hi: 4.00, Low: 1.00, Open: 2.00, Close: 3.00");
}

TEST(InfoText, PlainBarRepeatsItsHigh)
{
    EXPECT_EQ(ReadoutPrices(Plain, MinuteData, Bar(2, 100, 1, 3)),
              "Hi: 100, Low: 100, Open: 100, Close: 100");
}

TEST(InfoText, VolumeIsSaidAboveZeroOnly)
{
    EXPECT_EQ(ReadoutVolume(1234567), "Volume: 1,234,567");
    EXPECT_EQ(ReadoutVolume(0), "");
    EXPECT_EQ(ReadoutVolume(-5), "");
}

TEST(InfoText, TimeIsNamedByDataType)
{
    EXPECT_EQ(ReadoutTime(TickData, "T"), "Time: T");
    EXPECT_EQ(ReadoutTime(MinuteData, "T"), "Time: T");
    EXPECT_EQ(ReadoutTime(DailyData, "T"), "Date: T");
    EXPECT_EQ(ReadoutTime(WeeklyData, "T"), "Week ending T");
    EXPECT_EQ(ReadoutTime(MonthlyData, "T"), "Month ending T");
}

TEST(InfoText, SelectedAveragesWithAValueAreRead)
{
    sOverlaySettings settings;
    CPoint point({1.234, 2, Hole});
    EXPECT_EQ(ReadoutAverages(settings, point.Data(), 1), "");
    settings.ShowAverages = 1;
    EXPECT_EQ(ReadoutAverages(settings, point.Data(), 1), "MA1: 1.23  MA2: 2.00  ");
    EXPECT_EQ(InfoAverages(Cents, settings, point.Data(), 1), "MA1: 1.23  MA2: 2.00  ");
    EXPECT_EQ(InfoAverages(Plain, settings, point.Data(), 1), "MA1: 1.234  MA2: 2  ");
    settings.AverageSelected[0] = 0;
    EXPECT_EQ(ReadoutAverages(settings, point.Data(), 1), "MA2: 2.00  ");
}

TEST(InfoText, BandsStandInForTheAverages)
{
    sOverlaySettings settings;
    settings.ShowAverages = settings.ShowBands = 1;
    CPoint point({9, 13, 11}); // lower, upper, middle
    EXPECT_EQ(ReadoutAverages(settings, point.Data(), 1), "");
    EXPECT_EQ(ReadoutBands(settings, point.Data(), 1), "Bands: lower: 9.00  middle: 11.00  upper: 13.00");
    EXPECT_EQ(InfoBands(Cents, settings, point.Data(), 1), "Bands: lower: 9.00 middle: 11.00 upper: 13.00");
    CPoint holes({Hole, Hole, Hole});
    EXPECT_EQ(ReadoutBands(settings, holes.Data(), 1), "Bands:");
    EXPECT_EQ(InfoBands(Cents, settings, holes.Data(), 1), "");
    settings.ShowBands = 0;
    EXPECT_EQ(ReadoutBands(settings, point.Data(), 1), "");
    EXPECT_EQ(InfoBands(Cents, settings, point.Data(), 1), "");
}

} // namespace
} // namespace zantroq
