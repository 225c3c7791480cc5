#include "support/PaneScenes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace zantroq::test {

namespace {

const double Hole = HoleValue;
constexpr ColorValue Green = 0x3c8c1e, Red = 0x2828d2, Grey = 0xc0c0c0, Blue = 0xc86414;

std::string Number(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::vector<double> Wave(int count, double middle, double height)
{
    std::vector<double> y;
    for (int i = 0; i < count; ++i)
        y.push_back(middle + height * std::sin(i * 0.35));
    return y;
}

} // namespace

Pane EmptyPane(int width, int height)
{
    auto pane = std::make_unique<CChart2D>();
    pane->PaneArea().AreaBox().Width().SetValue(width);
    pane->PaneArea().AreaBox().Height().SetValue(height);
    pane->PaneArea().PlotFrame().BottomMargin().SetValue(31);
    pane->PaneArea().PaneAxes().Y2().SetShown(false);
    FitAxes(*pane, 10, 0, 100);
    return pane;
}

sBars WanderingBars(int count, unsigned seed)
{
    sBars bars;
    std::uint32_t state = seed * 2654435761u + 1;
    const auto next = [&] {
        state = state * 1664525u + 1013904223u;
        return (state >> 8) / double(1 << 24) - 0.5;
    };
    double price = 100;
    for (int i = 0; i < count; ++i) {
        const double open = price + next() * 0.3, close = open + next() * 2.2;
        bars.Open.push_back(open);
        bars.Close.push_back(close);
        bars.High.push_back(std::max(open, close) + std::abs(next()) * 1.4);
        bars.Low.push_back(std::min(open, close) - std::abs(next()) * 1.4);
        price = close + (100 - close) * 0.002;
    }
    return bars;
}

void LoadGroup(CPaneGroup& group, const std::vector<std::vector<double>>& series)
{
    CPaneData& data = group.PaneData();
    data.SetSeriesCount(static_cast<int>(series.size()));
    data.SetPointCount(1, static_cast<int>(series.front().size()));
    for (std::size_t i = 0; i < series.size(); ++i) {
        data.SetYVector(static_cast<int>(i) + 1, series[i]);
        data.AdvanceDrawn(static_cast<int>(i) + 1, data.PointCount(1));
    }
    group.CommitPaneData();
}

void FitAxes(CChart2D& pane, int count, double low, double high)
{
    CPaneAxes& axes = pane.PaneArea().PaneAxes();
    CPaneAxis& x = axes.X();
    x.ViewLow().SetValue(1);
    x.ViewHigh().SetValue(count + 0.5);
    const int spacing = std::max(1, (count - 2) / 5 + 1);
    x.TickSpacing().SetValue(spacing);
    x.TickMarkSpacing().SetValue(spacing);
    x.TickLabels().RemoveAll();
    for (int at = spacing; at < count; at += spacing)
        x.TickLabels().Add(at, "09:" + std::to_string(30 + at % 30));
    const double step = (high - low) / 4;
    for (CPaneAxis* axis : {&axes.Y(), &axes.Y2()}) {
        axis->ViewLow().SetValue(low);
        axis->ViewHigh().SetValue(high);
        axis->TickSpacing().SetValue(step);
        axis->TickMarkSpacing().SetValue(step);
        axis->TickLabels().RemoveAll();
    }
    CPaneAxis& labelled = axes.Y().Shown() ? axes.Y() : axes.Y2();
    for (int i = 0; i <= 4; ++i)
        labelled.TickLabels().Add(low + i * step, Number(low + i * step));
}

Pane CandlePane(int width, int height, int count, int candleWidth)
{
    Pane pane = EmptyPane(width, height);
    const sBars bars = WanderingBars(count);
    CPaneGroup& group = pane->PaneGroups(1);
    LoadGroup(group, {bars.High, bars.Low, bars.Open, bars.Close});
    group.SetChartType(ChartCandles);
    pane->PaneArea().CandleLook().SetFilled(true);
    group.SeriesStyles(2).FillLook().SetColor(Green);
    group.SeriesStyles(3).FillLook().SetColor(Red);
    group.SeriesStyles(2).LineLook().SetWidth(candleWidth);
    group.SeriesStyles(3).LineLook().SetWidth(candleWidth);
    group.SeriesStyles(4).FillLook().SetColor(Grey);
    group.SeriesStyles(4).LineLook().SetPattern(candleWidth < 3 ? LineNone : LineSolid);
    if (count > 0)
        FitAxes(*pane, count, *std::min_element(bars.Low.begin(), bars.Low.end()),
                *std::max_element(bars.High.begin(), bars.High.end()) + 1);
    return pane;
}

Pane PriceBarPane(int width, int height, int count)
{
    Pane pane = CandlePane(width, height, count, 5);
    pane->PaneGroups(1).SetChartType(ChartHiLoOpenClose);
    pane->PaneGroups(1).SeriesStyles(1).LineLook().SetColor(0x333333);
    return pane;
}

Pane LinePane(int width, int height, const std::vector<double>& y)
{
    Pane pane = EmptyPane(width, height);
    LoadGroup(pane->PaneGroups(1), {y});
    pane->PaneGroups(1).SeriesStyles(1).LineLook().SetColor(Blue);
    FitAxes(*pane, static_cast<int>(y.size()), 0, 100);
    return pane;
}

Pane HistogramPane(int width, int height, const std::vector<double>& y, int barWidth, int chartType)
{
    Pane pane = LinePane(width, height, y);
    pane->PaneGroups(1).SetChartType(chartType);
    pane->PaneArea().BarLook().SetBarWidth(barWidth);
    FitAxes(*pane, static_cast<int>(y.size()), -50, 50);
    return pane;
}

CPaneLabel& AddLabel(CChart2D& pane, const std::string& text, int attachment, int side)
{
    CPaneLabel& label = pane.PaneLabels().Add();
    label.SetText(text);
    label.SetAttachment(attachment);
    label.SetAnchorSide(side);
    label.SetShown(true);
    label.SetBorder(1);
    return label;
}

namespace {

void ShowGrid(CChart2D& pane, int pattern)
{
    for (CPaneAxis* axis : {&pane.PaneArea().PaneAxes().X(), &pane.PaneArea().PaneAxes().Y()}) {
        axis->AxisGrid().SetSpacing(axis->TickSpacing().Value());
        axis->AxisGrid().LineLook().SetPattern(pattern);
        axis->AxisGrid().LineLook().SetColor(Grey);
    }
}

Pane HolePane()
{
    std::vector<double> y = Wave(24, 50, 40);
    const double infinity = std::numeric_limits<double>::infinity();
    y[5] = Hole;
    y[7] = std::numeric_limits<double>::quiet_NaN();
    y[12] = infinity;
    y[17] = -infinity;
    return LinePane(280, 180, y);
}

Pane LabelPane()
{
    Pane pane = LinePane(280, 180, Wave(20, 50, 20));
    for (const int side : {AnchorAboveRight, AnchorAboveLeft, AnchorBelowRight, AnchorBelowLeft}) {
        CPaneLabel& label =
            AddLabel(*pane, side == AnchorBelowLeft ? "two\nlines" : "label", AttachToPixel, side);
        label.SetPixelAnchor(170, 90);
        label.Interior().SetBackground(0xe0f4ff);
    }
    CPaneLabel& data = AddLabel(*pane, "at 3, 80", AttachToData, AnchorBelowRight);
    data.SetDataAnchor(3, 80);
    CPaneLabel& title = AddLabel(*pane, "Daily Price: 101.25", AttachToPaneTopLeft, AnchorBelowRight);
    title.Interior().SetBackground(0x232323);
    title.Interior().SetForeground(0xffffff);
    return pane;
}

Pane MarkerPane()
{
    Pane pane = CandlePane(280, 180, 20, 9);
    CPaneMarker& marker = pane->PaneArea().PaneMarkers("x");
    marker.SetShown(true);
    marker.SetPoint(8);
    marker.LineLook().SetColor(0xff00ff);
    return pane;
}

Pane RightAxisPane()
{
    Pane pane = CandlePane(280, 180, 20, 9);
    CPaneArea& area = pane->PaneArea();
    area.PaneAxes().Y().SetShown(false);
    area.PaneAxes().Y2().SetShown(true);
    area.PlotFrame().LeftMargin().SetValue(23);
    area.PlotFrame().RightMargin().SetValue(58);
    pane->PaneInterior().SetBackground(0x2b2320);
    pane->PaneInterior().SetForeground(0xd8d8d8);
    FitAxes(*pane, 20, 94, 106);
    ShowGrid(*pane, LineSolid);
    for (CPaneAxis* axis : {&area.PaneAxes().X(), &area.PaneAxes().Y()})
        axis->AxisGrid().LineLook().SetColor(0x50463f);
    return pane;
}

Pane LinePatternPane()
{
    Pane pane = EmptyPane(280, 180);
    std::vector<std::vector<double>> series;
    for (int i = 0; i < 4; ++i)
        series.push_back(Wave(30, 20 + 20 * i, 8));
    CPaneGroup& group = pane->PaneGroups(2);
    LoadGroup(group, series);
    const std::array patterns{LineSolid, LineLongDashes, LineShortDashes, LineNone};
    for (int i = 0; i < 4; ++i) {
        CSeriesStyle& style = group.SeriesStyles(i + 1);
        style.LineLook().SetPattern(patterns[static_cast<std::size_t>(i)]);
        style.LineLook().SetColor(Blue);
        style.LineLook().SetWidth(i + 1);
    }
    group.SeriesStyles(3).SymbolLook().SetShape(SymbolMark);
    group.SeriesStyles(3).SymbolLook().SetColor(Red);
    group.SeriesStyles(3).SymbolLook().SetSize(5);
    FitAxes(*pane, 30, 0, 100);
    return pane;
}

Pane OverlayPane()
{
    Pane pane = CandlePane(280, 180, 40, 5);
    const sBars bars = WanderingBars(40);
    std::vector<double> average(40, Hole);
    for (std::size_t i = 5; i < 40; ++i) {
        average[i] = 0;
        for (std::size_t j = i - 4; j <= i; ++j)
            average[i] += bars.Close[j] / 5;
    }
    LoadGroup(pane->PaneGroups(2), {average, std::vector<double>(40, 100.0)});
    pane->PaneGroups(2).SeriesStyles(1).LineLook().SetColor(Blue);
    pane->PaneGroups(2).SeriesStyles(2).LineLook().SetColor(Grey);
    ShowGrid(*pane, LineShortDashes);
    return pane;
}

} // namespace

std::vector<std::pair<std::string, Pane>> GoldenPanes()
{
    std::vector<std::pair<std::string, Pane>> panes;
    const auto add = [&](const char* name, Pane pane) { panes.emplace_back(name, std::move(pane)); };
    add("candles-wide", CandlePane(280, 180, 12, 17));
    add("candles-narrow", CandlePane(280, 180, 60, 3));
    add("candle-one-pixel-wide", CandlePane(280, 180, 150, 1));
    add("candles-crowded", CandlePane(280, 180, 5000, 1));
    add("hollow-candles", CandlePane(280, 180, 12, 17));
    panes.back().second->PaneArea().CandleLook().SetFilled(false);
    add("price-bars", PriceBarPane(280, 180, 25));
    add("price-bars-crowded", PriceBarPane(280, 180, 300));
    add("line", LinePane(280, 180, Wave(60, 50, 40)));
    add("line-patterns", LinePatternPane());
    add("hole-is-not-drawn", HolePane());
    add("histogram-from-zero", HistogramPane(280, 180, Wave(24, 0, 40), 8, ChartBarsFromOrigin));
    add("bars-from-origin", HistogramPane(280, 180, Wave(24, 0, 40), 8, ChartBars));
    panes.back().second->PaneArea().PaneAxes().Y().AxisOrigin().SetValue(-30);
    add("grid-dashed", CandlePane(280, 180, 20, 9));
    ShowGrid(*panes.back().second, LineShortDashes);
    add("grid-line", CandlePane(280, 180, 20, 9));
    ShowGrid(*panes.back().second, LineSolid);
    add("right-axis-dark", RightAxisPane());
    add("overlay", OverlayPane());
    add("one-point", CandlePane(280, 180, 1, 100));
    add("three-points", CandlePane(280, 180, 3, 60));
    add("empty-series", EmptyPane(280, 180));
    add("marker", MarkerPane());
    add("labels", LabelPane());
    add("title-only", LabelPane());
    panes.back().second->PaneArea().AreaBox().Height().SetValue(16);
    return panes;
}

} // namespace zantroq::test
