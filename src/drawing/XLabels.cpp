#include "drawing/XLabels.h"

#include "drawing/XAxis.h"

#include <algorithm>

namespace zantroq {

namespace {

constexpr double FirstLabelLeftPx =
    1.0; // room before the first label, depending on the side of the value axis
constexpr double FirstLabelRightPx = 41.25;
constexpr double HalfLetterPx = 2.25; // half the assumed width of a letter
constexpr double LabelGapPx = 12.0;

std::string DateLine(const sXLabelView& view, const std::string& date, int index)
{
    return view.Intraday ? date + " " + view.Time(index) : date;
}

} // namespace

std::vector<sXLabel> MakeXLabels(const sXLabelView& view)
{
    std::vector<sXLabel> labels;
    const int room = std::max(
        1, static_cast<int>((view.AxisOnRight ? FirstLabelRightPx : FirstLabelLeftPx) / view.PixelsPerPoint));
    std::string date = view.Date(view.First + room);
    std::string text = DateLine(view, date, view.First + room);
    labels.push_back({room + 1, text});

    const int spacing = XSpacing(view.Shown);
    int position = spacing;
    for (int i = view.First + spacing; i < view.Last; i += spacing, position += spacing) {
        const std::string previous = std::move(text);
        const std::string newDate = view.Date(i - 1);
        text = newDate != date ? DateLine(view, newDate, i - 1) : view.Time(i - 1);
        const double letters = static_cast<double>(text.size()) * HalfLetterPx +
                               static_cast<double>(previous.size()) * HalfLetterPx;
        if (position > labels.back().Position + (letters + LabelGapPx) / view.PixelsPerPoint) {
            labels.push_back({position, text});
            date = newDate;
        }
    }
    if (position != labels.back().Position)
        labels.push_back({position, view.Time(view.Last)});
    return labels;
}

} // namespace zantroq
