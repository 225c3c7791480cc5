#include "drawing/HistPriceChart.h"

#include "drawing/PaneSetup.h"
#include "drawing/PriceScale.h"
#include "drawing/SeriesScan.h"
#include "drawing/XAxis.h"
#include "drawing/XLabels.h"

#include <algorithm>
#include <span>

namespace zantroq {

CHistPriceChart::CHistPriceChart(IChartWindow& window, CChart2D& pane, const CSeriesReader& reader,
                                 ITrendLayer* trendLayer)
    : m_prices(reader), m_trends(trendLayer), m_overlays(pane, reader)
{
    dlg = &window;
    chart = &pane;
}

bool CHistPriceChart::Intraday() const
{
    return TickSeries() || m_prices.GetDataType() == MinuteData;
}

bool CHistPriceChart::FitsScale() const
{
    return !Settings().FixedScale || dlg->ResetScale();
}

void CHistPriceChart::ReadDeletedMarks(int, int, std::vector<std::uint8_t>& marks) const
{
    marks.clear();
}

void CHistPriceChart::SetupSeries()
{
    CPaneData& bars = Bars();
    bars.SetLayout(1);
    bars.SetSeriesCount(PriceSeriesOf(Shape()));
    bars.SetFirstShownSeries(1);
    bars.SetLastShownSeries(TickSeries() ? 1 : 0);
    bars.SetPointCount(1, 0);

    CPaneData& curves = Curves();
    const int series = m_trends ? m_trends->SeriesCount() : PriceOverlays;
    curves.SetLayout(1);
    curves.SetSeriesCount(series);
    curves.SetFirstShownSeries(1);
    curves.SetLastShownSeries(series);
    curves.SetPointCount(1, 0);
    chart->PaneGroups(2).SetChartType(ChartLines);
}

void CHistPriceChart::SetChartType()
{
    chart->PaneGroups(1).SetChartType(TickSeries() ? ChartLines : ChartHiLoOpenClose);
}

void CHistPriceChart::SetUpLabels()
{
    const sChartSettings& settings = Settings();
    CPaneLabels& labels = chart->PaneLabels();
    labels.RemoveAll();
    AddPlainLabel(*chart, settings).SetAttachment(AttachToData);
    AddTitleLabel(*chart);
    const int wanted = m_trends ? m_trends->LabelCount() : PriceLabels;
    while (labels.Count() < PriceLabels)
        AddPlainLabel(*chart, settings);
    while (labels.Count() < wanted) // labels of retracements
        AddPlainLabel(*chart, settings)
            .Interior()
            .SetForeground(settings.Trends[TrendFibonacciRetracements].Color);
}

void CHistPriceChart::SetUp()
{
    SetUpLabels();
    SetupSeries();
    SetChartType();
    ApplyPriceStyles(*chart, Settings(), Shape());
    if (FitsScale())
        SetUpValueAxes(*chart); // otherwise the fixed axis would survive the set-up
    SetUpPaneFrame(*chart, Settings(), PricePlotBottomPx, Settings().PriceLabelColor);
    SetGrid(*chart, Settings());
}

void CHistPriceChart::NarrowCandles()
{
    if (Shape() == PriceShape::Candles)
        SetCandleWidth(*chart, PixelsPerPoint(dlg->ChartPixelWidth(), dlg->Range().shown));
}

sDrawnExtent CHistPriceChart::Draw(int position)
{
    // A resize can cause a draw while a chart is loading, before its set-up.
    if (Bars().SeriesCount() != PriceSeriesOf(Shape()) || Curves().SeriesCount() < PriceOverlays)
        SetUp();
    chart->PaneLabels().Item(ReadoutLabel).SetShown(false);
    const int count = Count();
    const int wanted = PointsAtPlace(dlg->Range().ptsIndex);
    PlaceRange(position, count, wanted);
    ApplyPriceStyles(*chart, Settings(), Shape());

    sDrawnPoints points;
    points.First = dlg->Range().first;
    points.Count = count == 0 ? 0 : dlg->Range().shown;
    points.SeriesCount = count;
    MakeRoom(points);
    SetXAxis(*chart, dlg->Range().shown, Settings().Grid != 0);
    BuildXLabels();
    LoadBars(points);
    DrawCurves(points, FitToPrices(points));
    NarrowCandles();
    RedrawTrends();
    return {count, count >= wanted};
}

void CHistPriceChart::PlaceRange(int position, int count, int wanted)
{
    sDisplayRange& range = dlg->Range();
    const int oldFirst = range.first;
    if (count < wanted) {
        range.first = 0;
        range.last = count - 1;
        if (count > 0)
            range.shown = count;
    } else {
        const long long last = static_cast<long long>(wanted) - 1 + position;
        range.last = static_cast<int>(std::clamp<long long>(last, wanted - 1, count - 1));
        range.first = std::max(0, range.last - wanted + 1);
        range.shown = wanted;
    }
    if (dlg->SelectedPoint() != NoPoint)
        dlg->SetSelectedPoint(dlg->SelectedPoint() + oldFirst - range.first);
}

void CHistPriceChart::MakeRoom(const sDrawnPoints& points)
{
    CPaneData& bars = Bars();
    CPaneData& curves = Curves();
    bars.SetPointCount(1, points.Count);
    curves.SetPointCount(1, points.Count);
    bars.NumberPoints();
    curves.NumberPoints();
    // A trendline drawn after the set-up has added its series.
    if (curves.LastShownSeries() != 0 && curves.LastShownSeries() < curves.SeriesCount())
        curves.SetLastShownSeries(curves.SeriesCount());
}

void CHistPriceChart::LoadBars(sDrawnPoints& points)
{
    CPaneData& bars = Bars();
    ReadDeletedMarks(points.First, points.Count, points.Deleted);
    using Read = void (IPriceSource::*)(int, int, double*) const;
    static constexpr std::array<Read, 4> barReads{&IPriceSource::ReadHigh, &IPriceSource::ReadLow,
                                                  &IPriceSource::ReadOpen, &IPriceSource::ReadClose};
    for (int series = 1; series <= bars.SeriesCount(); ++series) {
        const std::span<double> values = bars.YForOverwrite(series);
        const Read read =
            TickSeries() ? &IPriceSource::ReadClose : barReads[static_cast<std::size_t>(series - 1)];
        (m_prices.*read)(points.First, points.Count, values.data());
        for (std::size_t i = 0; i < points.Deleted.size(); ++i)
            if (points.Deleted[i])
                values[i] = HoleValue;
        bars.SetFirstPoint(series, 1);
        bars.SetDrawnTo(series, 0);
        bars.AdvanceDrawn(series, points.Count);
    }
    chart->PaneGroups(1).CommitPaneData();
}

sPriceRange CHistPriceChart::FitToPrices(const sDrawnPoints& points)
{
    sPriceRange range;
    if (!FitsScale())
        return range;
    const ReadMarks readMarks = [this](int first, int count, std::vector<std::uint8_t>& marks) {
        ReadDeletedMarks(first, count, marks);
    };
    if (Settings().FixedScale) {
        ScanPrices(range, m_prices, points.SeriesCount, readMarks);
        ScanVolumes(range, m_prices, 0, points.SeriesCount, readMarks);
    } else {
        IncludePrices(range, Bars().Y(HighSeries), Bars().Y(TickSeries() ? HighSeries : LowSeries),
                      points.Deleted);
        ScanVolumes(range, m_prices, points.First, points.Count, readMarks);
    }
    maxVolume = range.GreatestVolume;
    priceDigits = DigitsBeforePoint(range.High);
    if (points.SeriesCount == 0)
        SetYScale(0, 0);
    else
        SetYScale(range.Top(), range.Low);
    return range;
}

// Widens the value axis if a curve exceeds it.
void CHistPriceChart::DrawCurves(const sDrawnPoints& points, sPriceRange prices)
{
    const bool fits = FitsScale();
    const BandRange rule =
        fits && Settings().FixedScale ? BandRange::OfTheWholeSeries : BandRange::OfTheDrawnPoints;
    const sPriceRange curves = m_overlays.Draw(Settings().Overlays, points, rule);
    const CPaneAxis& y = chart->PaneArea().PaneAxes().Y();
    if (fits && (curves.Low < y.ViewLow().Value() || curves.High > y.ViewHigh().Value())) {
        prices.Low = std::min(prices.Low, curves.Low);
        prices.High = std::max(prices.High, curves.High);
        SetYScale(prices.Top(), prices.Low);
    }
    chart->PaneGroups(2).CommitPaneData();
}

void CHistPriceChart::RedrawTrends()
{
    if (!m_trends)
        return;
    const CPriceBatch batch(*dlg);
    m_trends->DrawAll();
}

void CHistPriceChart::SetYScale(double high, double low)
{
    const sPriceWords words = m_prices.PriceWords();
    const std::optional<sPriceScale> scale = MakePriceScale(high, low, words.Code, words.Plain());
    if (!scale)
        return;
    CPaneAxes& axes = chart->PaneArea().PaneAxes();
    axes.Y().SetLabelMethod(scale->LabelMethod);
    for (CPaneAxis* axis : {&axes.Y(), &axes.Y2()}) {
        axis->TickSpacing().SetValue(scale->Step);
        axis->TickMarkSpacing().SetValue(scale->Step);
        axis->DataLow().SetValue(scale->Low);
        axis->ViewLow().SetValue(scale->Low);
        axis->DataHigh().SetValue(scale->High);
        axis->ViewHigh().SetValue(scale->High);
        axis->TickLabels().RemoveAll();
    }
    if (Settings().Grid != 0)
        axes.Y().AxisGrid().SetSpacing(scale->Step);
    CTickLabels& labels = (Settings().AxisOnRight ? axes.Y2() : axes.Y()).TickLabels();
    for (double value : PriceScaleLabels(*scale))
        labels.Add(value, words.Axis(value));
}

void CHistPriceChart::BuildXLabels()
{
    CTickLabels& labels = chart->PaneArea().PaneAxes().X().TickLabels();
    labels.RemoveAll();
    if (Count() == 0)
        return;
    const sDisplayRange& range = dlg->Range();
    sXLabelView view;
    view.First = range.first;
    view.Last = range.last;
    view.Shown = range.shown;
    view.PixelsPerPoint = PixelsPerPoint(dlg->ChartPixelWidth(), range.shown);
    view.AxisOnRight = Settings().AxisOnRight;
    view.Intraday = Intraday();
    view.Date = [this](int index) { return m_prices.GetDate(index); };
    view.Time = [this](int index) { return m_prices.GetTime(index, TimeDetail::Seconds); };
    for (const sXLabel& label : MakeXLabels(view))
        labels.Add(label.Position, label.Text);
}

bool CHistPriceChart::UpdateLastPoint()
{
    CPaneData& bars = Bars();
    const int points = bars.PointCount(1);
    // The last bar in the pane: the worker may already have appended the next one.
    const int index = dlg->Range().last;
    if (points == 0 || index < 0 || index >= Count())
        return false;
    sHIST_DATA record;
    m_prices.GetPoint(index, record);
    const int point = TickSeries() ? static_cast<int>(bars.PointX(1, points)) : bars.DrawnTo(1);
    bool changed = false;
    const auto set = [&](int series, double value) {
        if (bars.PointY(series, point) == value)
            return;
        bars.SetPointY(series, point, value);
        changed = true;
    };
    if (TickSeries()) {
        set(1, record.Close);
        if (changed)
            RedrawTrends();
    } else {
        set(HighSeries, record.High);
        set(LowSeries, record.Low);
        set(OpenSeries, record.Open);
        set(CloseSeries, record.Close);
    }
    if (changed && dlg->SelectedPoint() == point)
        RefreshTitle();
    return changed;
}

std::array<std::string, 8> CHistPriceChart::GetInfo() const
{
    std::array<std::string, 8> texts;
    const sDisplayRange& range = dlg->Range();
    const int point = dlg->SelectedPoint();
    const int index = range.first + point - 1;
    if (point < 1 || point > range.shown || index >= Count())
        return texts;
    const sPriceWords words = m_prices.PriceWords();
    if (TickSeries()) {
        texts[0] = words.Info(Close(index));
    } else {
        texts[0] = "Hi: " + words.Info(High(index));
        texts[1] = "Low: " + words.Info(Low(index));
        texts[2] = "Open: " + words.Info(m_prices.Open(index));
        texts[3] = "Close: " + words.Info(Close(index));
    }
    const sTIME_W_MILLISECONDS time = m_prices.TimeAt(index);
    texts[4] = PointDateText(time);
    if (Intraday())
        texts[5] = ClockMillisecondsText(time);
    const CPaneData& curves = chart->PaneGroups(2).PaneData();
    texts[6] = InfoAverages(words, Settings().Overlays, curves, point);
    texts[7] = InfoBands(words, Settings().Overlays, curves, point);
    return texts;
}

void CHistPriceChart::RefreshTitle()
{
    std::string joined;
    for (const std::string& text : GetInfo())
        if (!text.empty())
            joined += (joined.empty() ? "" : "  ") + text;
    SetTitle(joined);
}

void CHistPriceChart::SetTitle(const std::string& text)
{
    static constexpr std::array<const char*, 5> names{
        "Tick Price: ", "Minute Price: ", "Daily Price: ", "Weekly Price: ", "Monthly Price: "};
    const int type = m_prices.GetDataType();
    if (chart->PaneLabels().Count() < PriceTitleLabel || type < TickData || type > MonthlyData)
        return;
    CPaneLabel& title = chart->PaneLabels().Item(PriceTitleLabel);
    title.SetText(names[static_cast<std::size_t>(type)] + text + (dlg->IsCollapsed(0) ? " (Minimized)" : ""));
    title.SetAnchorSide(AnchorBelowRight);
    title.SetBoxAttachment(2);
    title.SetShown(true);
}

} // namespace zantroq
