#include "drawing/PaneSetup.h"

#include "drawing/SeriesStyleTable.h"

#include <algorithm>

namespace zantroq {

namespace {

void SetUpGroup(CPaneGroup& group)
{
    group.SetChartType(ChartLines);
    group.RemoveStyles();
    CPaneData& data = group.PaneData();
    data.SetLayout(1);
    data.SetSeriesCount(1);
    data.SetFirstShownSeries(1);
    data.SetLastShownSeries(1);
    data.SetPointCount(1, 0);
}

// Resets what individual studies have changed.
void ForgetStudy(CPaneArea& area)
{
    const CChart2D fresh;
    area.BarLook().SetBarWidth(fresh.PaneArea().BarLook().BarWidth());
    area.PaneAxes().Y().AxisOrigin().Restore(fresh.PaneArea().PaneAxes().Y().AxisOrigin().Value(), true);
    area.PaneAxes().X().DataHigh().SetKind(0);
}

void SetColors(CPaneInterior& interior, ColorValue background, ColorValue foreground)
{
    interior.SetBackground(background);
    interior.SetForeground(foreground);
}

void SetUpMarker(CPaneMarker& marker, const sChartSettings& settings)
{
    marker.SetShown(settings.ShowPriceBar != 0);
    marker.SetLock(1);
    marker.SetPoint(NoPoint);
    marker.LineLook().SetPattern(LineSolid);
    marker.LineLook().SetWidth(1);
}

void SetUpXAxis(CPaneAxis& x, int points)
{
    constexpr double noTickMarks = 10000.0; // wider than any pane until the first draw sets the real spacing
    x.ViewLow().SetValue(0);
    x.ViewHigh().SetValue(points + 0.5);
    x.TickSpacing().SetValue(points / 5);
    x.TickMarkSpacing().SetValue(noTickMarks);
    x.TickLabels().RemoveAll();
    x.SetShown(true);
}

void SetUpValueAxis(CPaneAxis& axis)
{
    axis.ViewLow().SetValue(1.0);
    axis.DataLow().SetValue(1.0);
    axis.ViewHigh().SetValue(2.0);
    axis.DataHigh().SetValue(2.0);
    axis.TickSpacing().SetValue(15);
    axis.TickMarkSpacing().SetValue(15);
    axis.SetLabelMethod(4);
    axis.SetSetting19(2);
    axis.SetSetting21(2);
    axis.SetSetting22(0);
    axis.TickLabels().RemoveAll();
}

} // namespace

ColorValue StudyLabelColor(const sChartSettings& settings, int kind)
{
    return kind >= 0 && kind < StudyKinds ? settings.Studies.LabelColors[static_cast<std::size_t>(kind)]
                                          : settings.PriceLabelColor;
}

void SetPaneColors(CChart2D& chart, const sChartSettings& settings, ColorValue labelColor)
{
    CPaneArea& area = chart.PaneArea();
    SetColors(chart.PaneInterior(), settings.BackgroundColor, labelColor);
    SetColors(area.Interior(), settings.BackgroundColor, labelColor);
    SetColors(area.PlotFrame().Interior(), settings.BackgroundColor, labelColor);
    area.PaneMarkers("x").LineLook().SetColor(settings.PriceBarColor);
}

void SetUpPaneFrame(CChart2D& chart, const sChartSettings& settings, int bottomPx, ColorValue labelColor)
{
    CPaneArea& area = chart.PaneArea();
    SetPaneColors(chart, settings, labelColor);
    area.PlotFrame().TopMargin().SetValue(PlotTopPx);
    area.PlotFrame().BottomMargin().SetValue(bottomPx);
    SetUpMarker(area.PaneMarkers("x"), settings);
    SetUpXAxis(area.PaneAxes().X(), PointsAtPlace(settings.PtsIndex));
    SetAxisSide(chart, settings.ValueAxisSide());
}

void SetUpValueAxes(CChart2D& chart)
{
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    SetUpValueAxis(axes.Y());
    SetUpValueAxis(axes.Y2());
    axes.Y2().SetMultiplier(1.0);
}

void SetUpStudyPane(CChart2D& chart, const sChartSettings& settings, int kind)
{
    chart.PaneLabels().RemoveAll();
    AddTitleLabel(chart);
    SetUpGroup(chart.PaneGroups(1));
    SetUpGroup(chart.PaneGroups(2));
    ForgetStudy(chart.PaneArea());
    SetUpValueAxes(chart);
    SetUpPaneFrame(chart, settings, PlotBottomPx, StudyLabelColor(settings, kind));
    SetGrid(chart, settings);
}

CPaneLabel& AddTitleLabel(CChart2D& chart)
{
    CPaneLabel& label = chart.PaneLabels().Add();
    label.SetBoxAttachment(2);
    label.SetBoxEdge(4);
    label.Interior().SetForeground(TitleForeground);
    label.Interior().SetBackground(TitleBackground);
    label.SetAttachment(AttachToPaneTopLeft);
    label.SetAnchorSide(AnchorBelowRight);
    label.SetBorder(1);
    return label;
}

CPaneLabel& AddPlainLabel(CChart2D& chart, const sChartSettings& settings)
{
    CPaneLabel& label = chart.PaneLabels().Add();
    label.SetBoxAttachment(0);
    label.SetBoxEdge(4);
    label.Interior().SetBackground(settings.BackgroundColor);
    label.Interior().SetForeground(settings.PriceLabelColor);
    label.SetAttachment(AttachToPixel);
    label.SetBorder(1);
    return label;
}

void SetAxisSide(CChart2D& chart, AxisSide side)
{
    const bool right = side == AxisSide::Right;
    CPaneArea& area = chart.PaneArea();
    area.PaneAxes().Y().SetShown(!right);
    area.PaneAxes().Y2().SetShown(right);
    area.PlotFrame().LeftMargin().SetValue(right ? BareMarginPx : LabelledMarginPx);
    area.PlotFrame().RightMargin().SetValue(right ? LabelledMarginPx : BareMarginPx);
}

void MoveValueAxis(CChart2D& chart, AxisSide side)
{
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    CTickLabels& from = (side == AxisSide::Right ? axes.Y() : axes.Y2()).TickLabels();
    CTickLabels& to = (side == AxisSide::Right ? axes.Y2() : axes.Y()).TickLabels();
    // Without labels there is nothing to move: they are already on the new side.
    if (from.Count() > 0) {
        to.RemoveAll();
        for (int number = 1; number <= from.Count(); ++number)
            to.Add(from.Item(number).Value, from.Item(number).Text);
        from.RemoveAll();
    }
    SetAxisSide(chart, side);
}

void SetGrid(CChart2D& chart, const sChartSettings& settings)
{
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    const sSeriesLook look = SeriesStyles(settings)[static_cast<std::size_t>(GridRow(settings))];
    for (CPaneAxis* axis : {&axes.X(), &axes.Y()}) {
        axis->AxisGrid().SetSpacing(settings.Grid != 0 ? axis->TickSpacing().Value() : 0.0);
        axis->AxisGrid().LineLook().SetPattern(look.LinePattern);
        axis->AxisGrid().LineLook().SetColor(look.Color);
        axis->AxisGrid().LineLook().SetWidth(look.Width);
    }
}

} // namespace zantroq
