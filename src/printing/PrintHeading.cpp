#include "printing/PrintHeading.h"

#include "window/WindowTexts.h"

#include <algorithm>

namespace zantroq {

namespace {

constexpr int TabCharacters = 8;

} // namespace

std::string HeadingText(const std::string& symbol, const sRequestSettings& request,
                        const sTIME_W_MILLISECONDS& printed)
{
    const std::string kind = request.DataType == MinuteData
                                 ? std::to_string(IntervalMinutesAt(request.IntervalIndex)) + "-Minute Chart"
                                 : DataTypeName(request.DataType);
    return symbol + " " + kind + "\t\t" + FormatTime(printed, "%H:%M:%S on %Y/%m/%d");
}

sHeading PlaceHeading(const std::string& text, const IHeadingFont& font, int pixelsPerInchX)
{
    const int stop = std::max(1, TabCharacters * font.AverageWidth());
    sHeading heading;
    int at = 0;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t tab = std::min(text.find('\t', begin), text.size());
        if (tab > begin) {
            heading.Runs.push_back({at, text.substr(begin, tab - begin)});
            at += font.Width(heading.Runs.back().Text);
        }
        if (tab < text.size())
            at = (at / stop + 1) * stop;
        begin = tab + 1;
    }
    heading.Width = at;
    heading.Left = (20 * pixelsPerInchX - heading.Width) / 2;
    for (sHeadingRun& run : heading.Runs)
        run.Left += heading.Left;
    return heading;
}

} // namespace zantroq
