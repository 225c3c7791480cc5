#include "drawing/SeriesStyleTable.h"

namespace zantroq {

const SeriesStyleTable& DefaultSeriesStyles()
{
    static const SeriesStyleTable table{{
        {LineSolid, 2, 255, 1, SymbolNone, 0xff00ff, 1},   // price
        {LineSolid, 2, 65280, 1, SymbolNone, 0xff00ff, 1}, // averages 1 to 3
        {LineSolid, 2, 65280, 1, SymbolNone, 0xff00ff, 1},
        {LineSolid, 2, 65280, 1, SymbolNone, 0xff00ff, 1},
        {LineSolid, 2, 0xffffff, 1, SymbolNone, 0xff00ff, 1}, // bands
        {LineSolid, 2, 0xff0000, 1, SymbolNone, 255, 1},      // study lines
        {LineSolid, 2, 0xff0000, 1, SymbolNone, 255, 1},
        {LineSolid, 2, 255, 1, SymbolNone, 0xff00ff, 1},            // study main
        {LineShortDashes, 2, 0xc0c0c0, 1, SymbolNone, 0xc0c0c0, 1}, // grid "Short-Dashed"
        {LineSolid, 2, 0xc0c0c0, 1, SymbolNone, 0xc0c0c0, 1},       // grid "Line"
    }};
    return table;
}

SeriesStyleTable SeriesStyles(const sChartSettings& settings)
{
    SeriesStyleTable table = DefaultSeriesStyles();
    table[PriceStyle].Color = settings.PriceDataColor;
    for (std::size_t m = 0; m < settings.Overlays.AverageColors.size(); ++m)
        table[AverageStyle + m].Color = settings.Overlays.AverageColors[m];
    table[BandStyle].Color = settings.Overlays.BandColor;
    table[GridShortDashes].Color = settings.GridColor;
    table[GridLine].Color = settings.GridColor;
    return table;
}

void ApplyLook(CSeriesStyle& style, const sSeriesLook& look)
{
    style.LineLook().SetPattern(look.LinePattern);
    style.LineLook().SetColor(look.Color);
    style.LineLook().SetWidth(look.Width);
    style.FillLook().SetPattern(look.FillPattern);
    style.FillLook().SetColor(look.Color);
    style.SymbolLook().SetShape(look.Shape);
    style.SymbolLook().SetColor(look.Color);
    style.SymbolLook().SetSize(look.SymbolSize);
}

} // namespace zantroq
