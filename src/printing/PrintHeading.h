// The heading of a printed page: its text and its position. Lengths are twentieths of a point, 1/1440 inch.
// Pure functions, any thread.
#pragma once

#include "market/HistoryRecords.h"
#include "settings/ChartSettings.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

inline constexpr int HeadingUnitsPerInch = 1440;
inline constexpr int HeadingFontHeight = 200; // em square: 10 points

// The heading's font, in heading units.
class IHeadingFont
{
public:
    virtual ~IHeadingFont() = default;
    virtual int Width(std::string_view text) const = 0; // width of a text without tabs
    virtual int AverageWidth() const = 0;               // average width of a character
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

// "SYMBOL 5-Minute Chart", or "SYMBOL Daily" and so on, two tabs, and the time, "14:05:09 on 2024/03/01".
std::string HeadingText(const std::string& symbol, const sRequestSettings& request,
                        const sTIME_W_MILLISECONDS& printed);

// A tab advances to the next multiple of eight average characters. The left end of the heading is (20 *
// pixelsPerInchX - width) / 2, truncated to an integer: that is centred on a page with as many pixels per
// inch as its width in points, and negative at a low resolution.
sHeading PlaceHeading(const std::string& text, const IHeadingFont& font, int pixelsPerInchX);

} // namespace zantroq
