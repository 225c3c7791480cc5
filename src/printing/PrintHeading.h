// The line at the top of a printed page: what is on it and where. Lengths are twentieths of a point, 1/1440
// inch. Pure functions, any thread.
#pragma once

#include "market/HistoryRecords.h"
#include "settings/ChartSettings.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

inline constexpr int HeadingUnitsPerInch = 1440;
inline constexpr int HeadingFontHeight = 200; // its em square: 10 points

// The heading's font, in heading units.
class IHeadingFont
{
public:
    virtual ~IHeadingFont() = default;
    virtual int Width(std::string_view text) const = 0; // of a text without tabs
    virtual int AverageWidth() const = 0;               // of a character
};

// A piece of the heading between tabs.
struct sHeadingRun
{
    int Left = 0;
    std::string Text;
    bool operator==(const sHeadingRun&) const = default;
};

struct sHeading
{
    int Left = 0, Width = 0;
    std::vector<sHeadingRun> Runs;
};

// "SYMBOL 5-Minute Chart", or "SYMBOL Daily" and the like, two tabs, and the moment, "14:05:09 on
// 2024/03/01".
std::string HeadingText(const std::string& symbol, const sRequestSettings& request,
                        const sTIME_W_MILLISECONDS& printed);

// A tab goes on to the next multiple of eight average characters. The heading's left end is
// (20 * pixelsPerInchX - width) / 2, cut to an integer: that is centred on a page with as many pixels an inch
// as it is points wide, and negative where the resolution is low.
sHeading PlaceHeading(const std::string& text, const IHeadingFont& font, int pixelsPerInchX);

} // namespace zantroq
