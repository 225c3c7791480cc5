#include "window/TrendDrawing.h"

#include "trends/TrendKinds.h"

namespace zantroq {

namespace {

sTrendRecord RecordOf(const CBaseTrend& trend)
{
    sTrendRecord record;
    record.Kind = TrendKindRow(trend.Kind()).Name;
    record.StartIndex = trend.m_startIndex;
    record.EndIndex = trend.m_endIndex;
    record.Value = trend.m_value;
    record.EndValue = trend.GetEndValue();
    record.Series = trend.AllSeries();
    record.Color = trend.m_color;
    record.Width = trend.m_width;
    record.Extendable = trend.m_extendable;
    trend.DescribeKind(record);
    return record;
}

} // namespace

CTrendDrawing::CTrendDrawing(IPaneWindow& window, const IPriceSource& prices, IMessageBox& box,
                             IWindowTimer& timer, std::function<void(const std::string&)> prompt)
    : m_window(window),
      m_bar(std::move(prompt)),
      m_lists(window),
      m_machine(window, prices, m_lists, m_bar, box, timer)
{
}

std::vector<sTrendRecord> CTrendDrawing::Records() const
{
    std::vector<sTrendRecord> records;
    for (int kind = 0; kind < TrendKinds; ++kind) {
        const CTrendList& list = m_lists.List(static_cast<TrendKind>(kind));
        for (int i = 0; i < list.Count(); ++i)
            records.push_back(RecordOf(list.Item(i)));
    }
    return records;
}

void CTrendDrawing::ApplyStyles()
{
    for (int kind = 0; kind < TrendKinds; ++kind) {
        const sTrendStyle& style = m_window.Settings().Trends[static_cast<std::size_t>(kind)];
        CTrendList& list = m_lists.List(static_cast<TrendKind>(kind));
        list.SetAllColors(style.Color);
        list.SetAllWidths(style.Width);
        list.SetAllExtendable(style.Extendable);
    }
}

} // namespace zantroq
