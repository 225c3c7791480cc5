// The whole draw of the price pane compared with a slow plain model: one point, one index and one rule at a
// time, without the blocks and the look-back of the code.
#include "support/SeriesFixture.h"

#include "drawing/NumberTexts.h"
#include "drawing/PriceFormatter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <utility>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;

struct sBar
{
    double Open, High, Low, Close;
    std::int64_t Volume;
};

struct sModelCase
{
    bool Ticks = false, Fixed = false, Reset = false, Right = false, Grid = false;
    int Code = 0, PtsIndex = 0, Position = 0;
    sOverlaySettings Overlays;
    std::vector<sBar> Series;
};

struct sModelAxis
{
    double Low = 0, High = 0, Step = 0;
    int Method = 0;
    std::vector<sTickLabel> Labels;
};

double Cut(double value)
{
    return std::trunc(value);
}

// The value axis for a range; false if the axis does not change.
bool PlainAxis(double a, double b, int code, sModelAxis& axis)
{
    if (b > a)
        return false;
    const bool plain = code == 0;
    double r = a - b, t = 0;
    double k = 0;
    const auto nice = [](double raw, bool downToo) {
        double p = 1.0;
        if (downToo)
            while (p > raw)
                p = p / 10.0;
        while (p * 10.0 <= raw)
            p = p * 10.0;
        const double m = raw / p;
        return p * (m < 1.41 ? 1 : m < 3.16 ? 2 : m < 7.07 ? 5 : 10);
    };
    if (plain) {
        const double d = r == 0 ? 1.0 : r;
        a = a + 0.1 * d;
        b = b - 0.1 * d;
        t = nice((a - b) * 0.25, true);
        const double f = std::fmod(b, t);
        if (f >= 0.01)
            b = b - f + 0.0099;
        axis.Method = 2;
    } else {
        if (r == 0)
            r = 0.01;
        k = Cut(4.0 / r);
        t = k == 0 ? nice(r * 0.25, false) : r * 0.25;
        axis.Method = k == 0 ? 0 : 4;
        double low = std::fmod(b, t), high = std::fmod(a, t);
        if (b < 0)
            low = low + t;
        if (a < 0)
            high = high + t;
        b = b - low;
        a = (a + t) - high;
    }
    axis.Low = b;
    axis.High = a;
    axis.Step = t;
    axis.Labels.clear();
    if (!plain && !(b < a))
        return true;
    for (double v = !plain && k != 0 ? b + t : b; v <= a; v = v + t) {
        axis.Labels.push_back({v, plain ? GeneralText(v) : ShippedPriceFormatter().Format(v, code)});
        if (v + t == v) // the only deviation: a step lost in rounding would never end
            break;
    }
    return true;
}

double PlainMean(const std::vector<sBar>& series, int index, int period)
{
    double sum = 0;
    for (int j = index - period + 1; j <= index; ++j)
        sum = sum + series[static_cast<std::size_t>(j)].Close;
    return sum / period;
}

double PlainAverage(const sModelCase& c, int index, int period)
{
    if (c.Overlays.Exponential == 0)
        return index < period ? Hole : PlainMean(c.Series, index, period);
    if (index <= period)
        return Hole;
    const double weight = 2.0 / (period + 1);
    return weight * c.Series[static_cast<std::size_t>(index)].Close +
           (1 - weight) * PlainMean(c.Series, index - 1, period);
}

struct sPlainBand
{
    double Lower = Hole, Upper = Hole, Middle = Hole;
};

sPlainBand PlainBand(const sModelCase& c, int index)
{
    const int period = c.Overlays.BandPeriod;
    sPlainBand band;
    if (index < period)
        return band;
    band.Middle = PlainMean(c.Series, index, period);
    double squares = 0;
    for (int j = index - period + 1; j <= index; ++j) {
        const double distance = c.Series[static_cast<std::size_t>(j)].Close - band.Middle;
        squares = squares + distance * distance;
    }
    const double deviation = std::sqrt(squares / period);
    band.Upper = band.Middle + c.Overlays.BandDeviations * deviation;
    band.Lower = band.Middle - c.Overlays.BandDeviations * deviation;
    return band;
}

// The expected pane after the draw.
struct sModelPane
{
    int First = 0, Last = 0, Shown = 0;
    std::vector<std::vector<double>> Bars, Overlays;
    std::int64_t MaxVolume = -1; // not fitted
};

sModelPane PlainDraw(const sModelCase& c, sModelAxis& axis)
{
    const int n = static_cast<int>(c.Series.size());
    int d = DisplayMaxPoints[static_cast<std::size_t>(c.PtsIndex)];
    sModelPane pane;
    if (n < d) {
        d = n;
        pane.Last = n - 1;
    } else {
        pane.Last = std::max(d - 1, std::min(n - 1, d - 1 + c.Position));
        pane.First = std::max(0, pane.Last - d + 1);
    }
    pane.Shown = d;
    const int series = c.Ticks ? 1 : 4;
    pane.Bars.resize(static_cast<std::size_t>(series));
    for (int i = pane.First; i <= pane.Last; ++i) {
        const sBar& bar = c.Series[static_cast<std::size_t>(i)];
        if (c.Ticks) {
            pane.Bars[0].push_back(bar.Close);
            continue;
        }
        pane.Bars[0].push_back(bar.High);
        pane.Bars[1].push_back(bar.Low);
        pane.Bars[2].push_back(bar.Open);
        pane.Bars[3].push_back(bar.Close);
    }
    const bool fits = !c.Fixed || c.Reset;
    double least = 10000000.0, greatest = -10000000.0;
    const int from = c.Fixed ? 0 : pane.First, to = c.Fixed ? n - 1 : pane.Last;
    if (fits) {
        pane.MaxVolume = 0;
        for (int i = from; i <= to; ++i) {
            const sBar& bar = c.Series[static_cast<std::size_t>(i)];
            least = std::min(least, c.Ticks ? bar.Close : bar.Low);
            greatest = std::max(greatest, c.Ticks ? bar.Close : bar.High);
            pane.MaxVolume = std::max(pane.MaxVolume, std::min<std::int64_t>(bar.Volume, 0x7fffffff));
        }
        PlainAxis((greatest - least) * 0.01 + greatest, least, c.Code, axis);
    }
    double curveLeast = 1e300, curveGreatest = -1e300;
    const auto include = [&](double value) {
        if (value == Hole)
            return;
        curveLeast = std::min(curveLeast, value);
        curveGreatest = std::max(curveGreatest, value);
    };
    pane.Overlays.assign(3, std::vector<double>(static_cast<std::size_t>(d), Hole));
    if (c.Overlays.ShowBands != 0) {
        const int period = c.Overlays.BandPeriod;
        const int warmUp = pane.First < period ? std::min(period - pane.First + 1, d + 1) : 0;
        for (int i = pane.First; i <= pane.Last && warmUp < d; ++i) {
            const sPlainBand band = PlainBand(c, i);
            const auto at = static_cast<std::size_t>(i - pane.First);
            pane.Overlays[0][at] = band.Lower;
            pane.Overlays[1][at] = band.Upper;
            pane.Overlays[2][at] = band.Middle;
            if (!c.Fixed && i - pane.First >= warmUp) {
                include(band.Lower);
                include(band.Upper);
            }
        }
        for (int i = period + 1; c.Fixed && c.Reset && i < n; ++i) {
            include(PlainBand(c, i).Lower);
            include(PlainBand(c, i).Upper);
        }
    } else if (c.Overlays.ShowAverages != 0) {
        for (std::size_t m = 0; m < 3; ++m)
            for (int i = pane.First; i <= pane.Last && c.Overlays.AverageSelected[m] != 0; ++i) {
                const double value = PlainAverage(c, i, c.Overlays.AveragePoints[m]);
                pane.Overlays[m][static_cast<std::size_t>(i - pane.First)] = value;
                include(value);
            }
    }
    if (fits && (curveLeast < axis.Low || curveGreatest > axis.High)) {
        least = std::min(least, curveLeast);
        greatest = std::max(greatest, curveGreatest);
        PlainAxis((greatest - least) * 0.01 + greatest, least, c.Code, axis);
    }
    return pane;
}

sModelCase RandomCase(std::mt19937& random)
{
    const auto below = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    sModelCase c;
    c.Ticks = below(3) == 0;
    c.Fixed = below(4) == 0;
    c.Reset = below(2) == 0;
    c.Right = below(2) == 0;
    c.Grid = below(2) == 0;
    static constexpr int codes[] = {0, 0, 1, 5, 8, 9, 10, 11, 12, 14, 16};
    c.Code = codes[below(11)];
    c.PtsIndex = below(3);
    c.Overlays.ShowAverages = below(2);
    c.Overlays.ShowBands = below(3) == 0;
    c.Overlays.Exponential = below(2);
    for (std::size_t m = 0; m < 3; ++m) {
        c.Overlays.AverageSelected[m] = below(2);
        c.Overlays.AveragePoints[m] = 1 + below(below(2) ? 20 : 120);
    }
    c.Overlays.BandPeriod = 2 + below(below(2) ? 20 : 120);
    c.Overlays.BandDeviations = below(40) / 10.0;
    const int count = 1 + below(150);
    c.Position = below(200) - 20;
    static constexpr double starts[] = {0.0, 0.05, 1.5, 99.5, 1234.25, -3.0, 250000.0};
    static constexpr double steps[] = {0.0, 0.0001, 0.01, 0.25, 5.0, 1000.0};
    double price = starts[below(7)];
    const double step = steps[below(6)];
    for (int i = 0; i < count; ++i) {
        const auto move = [&] { return step * (below(2001) - 1000) / 1000.0; };
        const double open = price, close = price + move();
        c.Series.push_back({open, std::max(open, close) + std::abs(move()),
                            std::min(open, close) - std::abs(move()), close,
                            below(8) == 0 ? std::int64_t{5000000000} : below(100000)});
        if (c.Ticks)
            c.Series.back().Volume = below(100000);
        price = close;
    }
    return c;
}

void ExpectAxis(const CPaneAxis& axis, const sModelAxis& model)
{
    EXPECT_EQ(axis.ViewLow().Value(), model.Low);
    EXPECT_EQ(axis.DataLow().Value(), model.Low);
    EXPECT_EQ(axis.ViewHigh().Value(), model.High);
    EXPECT_EQ(axis.DataHigh().Value(), model.High);
    EXPECT_EQ(axis.TickSpacing().Value(), model.Step);
    EXPECT_EQ(axis.TickMarkSpacing().Value(), model.Step);
}

void ExpectDraw(const sModelCase& c)
{
    CSeriesFixture chart(c.Ticks ? TickData : DailyData);
    chart.window.settings.PtsIndex = chart.window.range.ptsIndex = c.PtsIndex;
    chart.window.settings.Overlays = c.Overlays;
    chart.window.settings.AxisOnRight = c.Right;
    chart.window.settings.Grid = c.Grid;
    for (const sBar& bar : c.Series)
        chart.Add(bar.Open, bar.High, bar.Low, bar.Close, bar.Volume);
    chart.request.SetPriceFormat(static_cast<std::uint16_t>(c.Code));
    chart.manager.PriceChart().SetUp();
    chart.window.settings.FixedScale = c.Fixed;
    chart.window.resetScale = c.Reset;
    sModelAxis axis{1, 2, 15, 4, {}};
    const sModelPane pane = PlainDraw(c, axis);
    chart.manager.PriceChart().Draw(c.Position);

    EXPECT_EQ(chart.window.range.first, pane.First);
    EXPECT_EQ(chart.window.range.last, pane.Last);
    EXPECT_EQ(chart.window.range.shown, pane.Shown);
    ASSERT_EQ(chart.Bars().SeriesCount(), static_cast<int>(pane.Bars.size()));
    const auto values = [](const CPaneData& data, int series) {
        return std::vector<double>(data.Y(series).begin(), data.Y(series).end());
    };
    for (std::size_t s = 0; s < pane.Bars.size(); ++s)
        EXPECT_EQ(values(chart.Bars(), static_cast<int>(s) + 1), pane.Bars[s]) << "series " << s + 1;
    for (std::size_t s = 0; s < 3; ++s)
        EXPECT_EQ(values(chart.Overlays(), static_cast<int>(s) + 1), pane.Overlays[s]) << "curve " << s + 1;
    for (int point = 1; point <= pane.Shown; ++point) {
        EXPECT_EQ(chart.Bars().PointX(1, point), point);
        EXPECT_EQ(chart.Overlays().PointX(1, point), point);
    }
    ExpectAxis(chart.Axes().Y(), axis);
    ExpectAxis(chart.Axes().Y2(), axis);
    EXPECT_EQ(chart.Axes().Y().LabelMethod(), axis.Method);
    EXPECT_EQ((c.Right ? chart.Axes().Y2() : chart.Axes().Y()).TickLabels().All(), axis.Labels);
    EXPECT_EQ((c.Right ? chart.Axes().Y() : chart.Axes().Y2()).TickLabels().Count(), 0);
    if (c.Grid) {
        EXPECT_EQ(chart.Axes().Y().AxisGrid().Spacing(), axis.Step);
    }
    EXPECT_EQ(chart.Axes().X().ViewHigh().Value(), pane.Shown + 0.5);
    if (pane.MaxVolume >= 0) {
        EXPECT_EQ(chart.manager.PriceChart().maxVolume, static_cast<std::uint32_t>(pane.MaxVolume));
    }
}

TEST(PricePaneModel, EveryWholeDrawIsThatOfThePlainRules)
{
    std::mt19937 random(20140102);
    for (int i = 0; i < 3000; ++i) {
        const sModelCase c = RandomCase(random);
        SCOPED_TRACE(testing::Message()
                     << "case " << i << ": " << c.Series.size() << " points, ticks " << c.Ticks << ", code "
                     << c.Code << ", fixed " << c.Fixed << ", reset " << c.Reset << ", bands "
                     << c.Overlays.ShowBands << " of " << c.Overlays.BandPeriod << ", averages "
                     << c.Overlays.ShowAverages);
        ExpectDraw(c);
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace
} // namespace zantroq
