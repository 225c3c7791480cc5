// The texts that describe one point: the readout under the mouse and the parts of the price pane's title.
// Averages and bands are read from the pane; prices are passed as a record. Chart window's thread.
#pragma once

#include "drawing/PriceFormatter.h"
#include "market/HistoryRecords.h"
#include "scene/PaneData.h"
#include "settings/ChartSettings.h"

#include <string>

namespace zantroq {

// Formats the prices of a series: by its format code, or with the plain rules if it has none (code 0).
struct sPriceWords
{
    const IPriceFormatter& Formatter;
    int Code = 0;
    bool Plain() const { return Code == 0; }
    std::string Info(double price) const;    // in titles
    std::string Readout(double price) const; // in the readout
    std::string Axis(double price) const;    // at the value axis
};

// "Price: %s" for ticks, "Hi: %s, Low: %s, Open: %s, Close: %s" for bars. While the series has no format
// code, all four places of a bar show its high.
std::string ReadoutPrices(const sPriceWords& words, int dataType, const sHIST_DATA& point);
std::string ReadoutVolume(std::int64_t volume); // empty for 0 and below
std::string ReadoutTime(int dataType, const std::string& time);
std::string ReadoutAverages(const sOverlaySettings& settings, const CPaneData& overlays, int point);
std::string ReadoutBands(const sOverlaySettings& settings, const CPaneData& overlays, int point);

// True if the price pane shows averages; bands replace them.
inline bool ShowsAverages(const sOverlaySettings& settings)
{
    return settings.ShowAverages != 0 && settings.ShowBands == 0;
}

// The last two texts of the title.
std::string InfoAverages(const sPriceWords& words, const sOverlaySettings& settings,
                         const CPaneData& overlays, int point);
std::string InfoBands(const sPriceWords& words, const sOverlaySettings& settings, const CPaneData& overlays,
                      int point);

} // namespace zantroq
