#include "drawing/InfoText.h"

#include "drawing/NumberTexts.h"

namespace zantroq {

namespace {

constexpr double Hole = HoleValue;
enum BandSeries : int
{
    LowerBand = 1,
    UpperBand = 2,
    MiddleBand = 3
};

} // namespace

std::string sPriceWords::Info(double price) const
{
    return Plain() ? PlainInfoPriceText(price) : Formatter.Format(price, Code);
}

std::string sPriceWords::Readout(double price) const
{
    return Plain() ? PlainReadoutPriceText(price) : Formatter.Format(price, Code);
}

std::string sPriceWords::Axis(double price) const
{
    return Plain() ? GeneralText(price) : Formatter.Format(price, Code);
}

std::string ReadoutPrices(const sPriceWords& words, int dataType, const sHIST_DATA& point)
{
    if (dataType == TickData)
        return "Price: " + words.Readout(point.Close);
    const double low = words.Plain() ? point.High : point.Low;
    const double open = words.Plain() ? point.High : point.Open;
    const double close = words.Plain() ? point.High : point.Close;
    return "Hi: " + words.Readout(point.High) + ", Low: " + words.Readout(low) +
           ", Open: " + words.Readout(open) + ", Close: " + words.Readout(close);
}

std::string ReadoutVolume(std::int64_t volume)
{
    return volume > 0 ? "Volume: " + ThousandsText(volume) : std::string();
}

std::string ReadoutTime(int dataType, const std::string& time)
{
    switch (dataType) {
    case DailyData:
        return "Date: " + time;
    case WeeklyData:
        return "Week ending " + time;
    case MonthlyData:
        return "Month ending " + time;
    default:
        return "Time: " + time;
    }
}

std::string ReadoutAverages(const sOverlaySettings& settings, const CPaneData& overlays, int point)
{
    std::string text;
    if (!ShowsAverages(settings))
        return text;
    for (int m = 1; m <= 3; ++m) {
        const double value = overlays.PointY(m, point);
        if (settings.AverageSelected[static_cast<std::size_t>(m - 1)] != 0 && value != Hole)
            text += "MA" + std::to_string(m) + ": " + FixedText(value, 2) + "  ";
    }
    return text;
}

std::string ReadoutBands(const sOverlaySettings& settings, const CPaneData& overlays, int point)
{
    if (settings.ShowBands == 0)
        return {};
    std::string text = "Bands:";
    if (const double lower = overlays.PointY(LowerBand, point); lower != Hole)
        text += " lower: " + FixedText(lower, 2) + "  ";
    if (const double middle = overlays.PointY(MiddleBand, point); middle != Hole)
        text += "middle: " + FixedText(middle, 2) + "  ";
    if (const double upper = overlays.PointY(UpperBand, point); upper != Hole)
        text += "upper: " + FixedText(upper, 2);
    return text;
}

std::string InfoAverages(const sPriceWords& words, const sOverlaySettings& settings,
                         const CPaneData& overlays, int point)
{
    std::string text;
    if (!ShowsAverages(settings))
        return text;
    for (int m = 1; m <= 3; ++m) {
        const double value = overlays.PointY(m, point);
        if (settings.AverageSelected[static_cast<std::size_t>(m - 1)] != 0 && value != Hole)
            text += "MA" + std::to_string(m) + ": " + words.Info(value) + "  ";
    }
    return text;
}

std::string InfoBands(const sPriceWords& words, const sOverlaySettings& settings, const CPaneData& overlays,
                      int point)
{
    const double lower = overlays.PointY(LowerBand, point), middle = overlays.PointY(MiddleBand, point),
                 upper = overlays.PointY(UpperBand, point);
    if (settings.ShowBands == 0 || lower == Hole || middle == Hole || upper == Hole)
        return {};
    return "Bands: lower: " + words.Info(lower) + " middle: " + words.Info(middle) +
           " upper: " + words.Info(upper);
}

} // namespace zantroq
