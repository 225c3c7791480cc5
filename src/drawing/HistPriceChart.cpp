#include "drawing/HistPriceChart.h"

#include "drawing/HistChartDrawManager.h"
#include "drawing/PaneSetup.h"
#include "drawing/PriceScale.h"
#include "drawing/SeriesStyleTable.h"
#include "drawing/TimeTexts.h"
#include "drawing/XAxis.h"
#include "drawing/XLabels.h"

#include <array>

namespace zantroq {

const CPaneData& CHistPriceChart::Overlays() const
{
    return chart->PaneGroups(2).PaneData();
}

sPriceWords CHistPriceChart::Words() const
{
    return manager->PriceWords();
}

bool CHistPriceChart::TickSeries() const
{
    return manager->GetDataType() == TickData;
}

bool CHistPriceChart::ShowsCandles() const
{
    return !TickSeries() && Settings().CandleStyle == 1;
}

bool CHistPriceChart::FitsScale() const
{
    return !Settings().FixedScale || dlg->ResetScale();
}

double CHistPriceChart::Close(int index) const
{
    return manager->Close(index);
}

double CHistPriceChart::High(int index) const
{
    return manager->High(index);
}

double CHistPriceChart::Low(int index) const
{
    return manager->Low(index);
}

std::int32_t CHistPriceChart::Volume(int index) const
{
    return CutVolume(manager->Volume(index));
}

int CHistPriceChart::Count() const
{
    return manager->Count();
}

void CHistPriceChart::ReadDeletedMarks(int, int, std::vector<std::uint8_t>& marks) const
{
    marks.clear();
}

void CHistPriceChart::SetupSeries()
{
    CPaneData& bars = Bars();
    bars.SetLayout(1);
    bars.SetSeriesCount(PriceSeries());
    bars.SetFirstShownSeries(1);
    bars.SetLastShownSeries(TickSeries() ? 1 : 0);
    bars.SetPointCount(1, 0);

    CPaneData& overlays = Overlays();
    const int series = manager->Trends() ? manager->Trends()->SeriesCount() : PriceOverlays;
    overlays.SetLayout(1);
    overlays.SetSeriesCount(series);
    overlays.SetFirstShownSeries(1);
    overlays.SetLastShownSeries(series);
    overlays.SetPointCount(1, 0);
    chart->PaneGroups(2).SetChartType(ChartLines);
}

void CHistPriceChart::SetChartType()
{
    chart->PaneGroups(1).SetChartType(TickSeries() ? ChartLines : ChartHiLoOpenClose);
}

void CHistPriceChart::SetUp()
{
    const sChartSettings& settings = Settings();
    CPaneLabels& labels = chart->PaneLabels();
    labels.RemoveAll();
    AddPlainLabel(*chart, settings).SetAttachment(AttachToData);
    AddTitleLabel(*chart);
    const int wanted = manager->Trends() ? manager->Trends()->LabelCount() : PriceLabels;
    while (labels.Count() < PriceLabels)
        AddPlainLabel(*chart, settings);
    while (labels.Count() < wanted) // those of the retracements
        AddPlainLabel(*chart, settings)
            .Interior()
            .SetForeground(settings.Trends[TrendFibonacciRetracements].Color);

    SetupSeries();
    SetChartType();
    ApplyStyles();
    if (FitsScale())
        SetUpValueAxes(*chart); // else the fixed axis outlives the set-up
    SetUpPaneFrame(*chart, settings, PricePlotBottomPx, settings.PriceLabelColor);
    SetGrid(*chart, settings);
}

void CHistPriceChart::ApplyStyles()
{
    const SeriesStyleTable table = SeriesStyles(Settings());
    CPaneGroup& bars = chart->PaneGroups(1);
    for (int series = 1; series <= PriceSeries(); ++series)
        ApplyLook(bars.SeriesStyles(series), table[PriceStyle]);
    if (!TickSeries())
        ApplyCandleStyles();
    const bool bands = Settings().Overlays.ShowBands != 0;
    for (int m = 0; m < PriceOverlays; ++m)
        ApplyLook(chart->PaneGroups(2).SeriesStyles(m + 1),
                  table[static_cast<std::size_t>(bands ? BandStyle : AverageStyle + m)]);
}

void CHistPriceChart::ApplyCandleStyles()
{
    const sChartSettings& settings = Settings();
    CPaneGroup& bars = chart->PaneGroups(1);
    bars.SetChartType(settings.CandleStyle == 1 ? ChartCandles : ChartHiLoOpenClose);
    if (settings.CandleStyle != 1)
        return;
    constexpr int widthBeforeNarrowing = 5;
    chart->PaneArea().CandleLook().SetFilled(true);
    bars.SeriesStyles(2).FillLook().SetColor(settings.UpCandleColor);
    bars.SeriesStyles(2).LineLook().SetWidth(widthBeforeNarrowing);
    bars.SeriesStyles(3).FillLook().SetColor(settings.DownCandleColor);
    bars.SeriesStyles(3).LineLook().SetWidth(widthBeforeNarrowing);
    bars.SeriesStyles(4).FillLook().SetColor(settings.GridColor);
    bars.SeriesStyles(4).LineLook().SetPattern(LineSolid);
}

void CHistPriceChart::NarrowCandles()
{
    if (!ShowsCandles())
        return;
    constexpr int leastOutlined = 3; // pixels from which a candle keeps its outline
    const int pixels = static_cast<int>(PixelsPerPoint(dlg->ChartPixelWidth(), dlg->Range().shown));
    CPaneGroup& bars = chart->PaneGroups(1);
    bars.SeriesStyles(2).LineLook().SetWidth(pixels);
    bars.SeriesStyles(3).LineLook().SetWidth(pixels);
    bars.SeriesStyles(4).LineLook().SetPattern(pixels < leastOutlined ? LineNone : LineSolid);
}

void CHistPriceChart::SetYScale(double high, double low)
{
    const sPriceWords words = Words();
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
    view.Intraday = manager->GetDataType() == TickData || manager->GetDataType() == MinuteData;
    view.Date = [this](int index) { return manager->GetDate(index); };
    view.Time = [this](int index) { return manager->GetTime(index, false); };
    for (const sXLabel& label : MakeXLabels(view))
        labels.Add(label.Position, label.Text);
}

void CHistPriceChart::UpdateLastPoint()
{
    CPaneData& bars = Bars();
    const int points = bars.PointCount(1);
    // The bar that stands last in the pane: the worker may have appended the next one already.
    const int index = dlg->Range().last;
    if (points == 0 || index < 0 || index >= Count())
        return;
    sHIST_DATA record;
    manager->GetPoint(index, record);
    int point = 0;
    bool changed = false;
    const auto set = [&](int series, double value) {
        if (bars.PointY(series, point) == value)
            return;
        bars.SetPointY(series, point, value);
        changed = true;
    };
    if (TickSeries()) {
        point = static_cast<int>(bars.PointX(1, points));
        set(1, record.Close);
        if (changed)
            manager->RedrawTrends();
    } else {
        point = bars.DrawnTo(1);
        set(1, record.High);
        set(2, record.Low);
        set(3, record.Open);
        set(4, record.Close);
    }
    if (!changed)
        return;
    RefreshReadout();
    if (dlg->SelectedPoint() == point)
        RefreshTitle();
}

void CHistPriceChart::RefreshReadout()
{
    if (chart->PaneLabels().Count() < ReadoutLabel)
        return;
    CPaneLabel& readout = chart->PaneLabels().Item(ReadoutLabel);
    if (readout.Shown())
        readout.SetText(manager->MakeInfoText(static_cast<int>(readout.DataX())));
}

std::array<std::string, 8> CHistPriceChart::GetInfo() const
{
    std::array<std::string, 8> texts;
    const sDisplayRange& range = dlg->Range();
    const int point = dlg->SelectedPoint();
    const int index = range.first + point - 1;
    if (point < 1 || point > range.shown || index >= Count())
        return texts;
    const sPriceWords words = Words();
    if (TickSeries()) {
        texts[0] = words.Info(Close(index));
    } else {
        texts[0] = "Hi: " + words.Info(High(index));
        texts[1] = "Low: " + words.Info(Low(index));
        texts[2] = "Open: " + words.Info(manager->Open(index));
        texts[3] = "Close: " + words.Info(Close(index));
    }
    const sTIME_W_MILLISECONDS time = manager->TimeAt(index);
    texts[4] = PointDateText(time);
    if (manager->GetDataType() == TickData || manager->GetDataType() == MinuteData)
        texts[5] = ClockMillisecondsText(time);
    texts[6] = InfoAverages(words, Settings().Overlays, Overlays(), point);
    texts[7] = InfoBands(words, Settings().Overlays, Overlays(), point);
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
    const int type = manager->GetDataType();
    if (chart->PaneLabels().Count() < PriceTitleLabel || type < TickData || type > MonthlyData)
        return;
    CPaneLabel& title = chart->PaneLabels().Item(PriceTitleLabel);
    title.SetText(names[static_cast<std::size_t>(type)] + text + (dlg->IsCollapsed(0) ? " (Minimized)" : ""));
    title.SetAnchorSide(AnchorBelowRight);
    title.SetBoxAttachment(2);
    title.SetShown(true);
}

} // namespace zantroq
