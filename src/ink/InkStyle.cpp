#include "ink/InkStyle.h"

namespace zantroq {

const CSeriesStyle& StyleOf(const CPaneGroup& group, int series)
{
    static CChart2D none;
    static const CSeriesStyle unset(&none);
    const CSeriesStyle* style = group.FindStyle(series);
    return style ? *style : unset;
}

} // namespace zantroq
