#include "window/PaneLook.h"

namespace zantroq {

namespace {

constexpr int NarrowMargin = 23, LabelMargin = 58;

void SetGridLine(CLineLook& line, const sChartSettings& settings)
{
    line.SetPattern(settings.GridStyle == 0 ? LineShortDashes : LineSolid);
    line.SetColour(settings.GridColor);
    line.SetWidth(1);
}

} // namespace

void ApplyGrid(CChart2D& pane, const sChartSettings& settings)
{
    for (const char* name : {"x", "y"}) {
        CPaneAxis& axis = pane.PaneArea().PaneAxes().Item(name);
        axis.AxisGrid().SetSpacing(settings.Grid != 0 ? axis.TickSpacing().Value() : 0);
        SetGridLine(axis.AxisGrid().LineLook(), settings);
    }
}

void ApplyAxisSide(CChart2D& pane, const sChartSettings& settings)
{
    CPaneAxes& axes = pane.PaneArea().PaneAxes();
    CPaneAxis& shown = settings.AxisOnRight ? axes.Y2() : axes.Y();
    CPaneAxis& hidden = settings.AxisOnRight ? axes.Y() : axes.Y2();
    if (hidden.TickLabels().Count() > 0) {
        shown.TickLabels().RemoveAll();
        for (const sTickLabel& label : hidden.TickLabels().All())
            shown.TickLabels().Add(label.Value, label.Text);
        hidden.TickLabels().RemoveAll();
    }
    shown.SetShown(true);
    hidden.SetShown(false);
    CPlotFrame& frame = pane.PaneArea().PlotFrame();
    frame.LeftMargin().SetValue(settings.AxisOnRight ? NarrowMargin : LabelMargin);
    frame.RightMargin().SetValue(settings.AxisOnRight ? LabelMargin : NarrowMargin);
}

} // namespace zantroq
