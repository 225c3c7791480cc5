#include "printing/PaperInk.h"

#include <cmath>

namespace zantroq {

namespace {

constexpr ColorValue Paper = 0xFFFFFF;

double Linear(ColorValue channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(ColorValue color)
{
    return 0.2126 * Linear(color & 255) + 0.7152 * Linear(color >> 8 & 255) +
           0.0722 * Linear(color >> 16 & 255);
}

ColorValue Darkened(ColorValue color, int of255)
{
    const auto channel = [&](int shift) {
        return ((color >> shift & 255) * static_cast<ColorValue>(of255) / 255) << shift;
    };
    return channel(0) | channel(8) | channel(16);
}

void TakeTextInk(CPaneInterior& interior)
{
    interior.SetForeground(InkOnPaper(interior.Foreground(), TextContrast));
}

void TakeGroupInk(CPaneGroup& group)
{
    for (int series = 1; series <= group.StyleCount(); ++series) {
        CSeriesStyle& style = group.SeriesStyles(series);
        style.LineLook().SetColor(InkOnPaper(style.LineLook().LineColor(), LineContrast));
        style.SymbolLook().SetColor(InkOnPaper(style.SymbolLook().SymbolColor(), LineContrast));
        style.FillLook().SetColor(InkOnPaper(style.FillLook().FillColor(), LineContrast));
    }
}

} // namespace

double ContrastOnPaper(ColorValue color)
{
    return 1.05 / (Luminance(color) + 0.05);
}

ColorValue InkOnPaper(ColorValue color, double leastContrast)
{
    int shade = 255;
    while (shade > 0 && ContrastOnPaper(Darkened(color, shade)) < leastContrast)
        --shade;
    return Darkened(color, shade);
}

void TakePaperInk(CChart2D& copy)
{
    CPaneArea& area = copy.PaneArea();
    TakeTextInk(copy.PaneInterior());
    TakeTextInk(area.Interior());
    TakeTextInk(area.PlotFrame().Interior());
    for (const int group : {1, 2})
        TakeGroupInk(copy.PaneGroups(group));
    for (int number = 1; number <= copy.PaneLabels().Count(); ++number) {
        CPaneInterior& label = copy.PaneLabels().Item(number).Interior();
        label.SetBackground(Paper);
        TakeTextInk(label);
    }
}

} // namespace zantroq
