#include "export/ShownTable.h"

#include "market/ChartHistRequest.h"
#include "studies/StudyTable.h"
#include "window/ChartDlg.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>
#include <vector>

namespace zantroq {

namespace {

struct sColumn
{
    std::string Name;
    int Pane, Group, Series;
};

void AddNumber(std::string& line, double number)
{
    line += ',';
    if (number == HoleValue)
        return;
    if (std::isnan(number)) {
        line += "nan"; // whatever the sign
        return;
    }
    char digits[32];
    line.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

void AddPriceColumns(std::vector<sColumn>& columns, bool ticks)
{
    if (ticks) {
        columns.push_back({"price", 0, 1, 1});
        return;
    }
    for (const auto& [name, series] :
         {std::pair("open", 3), std::pair("high", 1), std::pair("low", 2), std::pair("close", 4)})
        columns.push_back({name, 0, 1, series});
}

void AddOverlayColumns(std::vector<sColumn>& columns, const sOverlaySettings& overlays)
{
    if (overlays.ShowBands != 0) {
        columns.push_back({"bb_lower", 0, 2, 1});
        columns.push_back({"bb_upper", 0, 2, 2});
        columns.push_back({"bb_middle", 0, 2, 3});
        return;
    }
    if (overlays.ShowAverages == 0)
        return;
    const std::string kind = overlays.Exponential != 0 ? "ema_" : "sma_";
    for (int average = 0; average < 3; ++average)
        if (overlays.AverageSelected[static_cast<std::size_t>(average)] != 0)
            columns.push_back(
                {kind + std::to_string(overlays.AveragePoints[static_cast<std::size_t>(average)]), 0, 2,
                 average + 1});
}

void AddStudyColumns(std::vector<sColumn>& columns, int pane, int kind)
{
    if (const sStudyRow* const row = FindStudy(kind))
        for (const sStudyColumn& column : row->Columns)
            columns.push_back({column.Name, pane, column.Group, column.Series});
}

void AddMoment(std::string& text, const sTIME_W_MILLISECONDS& time, bool intraday)
{
    text += FormatTime(time, "%Y-%m-%d") + ",";
    if (!intraday)
        return;
    text += FormatTime(time, "%H:%M:%S");
    if (time.Milliseconds != 0) {
        char digits[8];
        std::snprintf(digits, sizeof digits, ".%03u", static_cast<unsigned>(time.Milliseconds % 1000));
        text += digits;
    }
}

} // namespace

std::string ShownValuesCsv(const CChartDlg& window)
{
    const sChartSettings& settings = window.Settings();
    const bool ticks = settings.Request.DataType == TickData;
    std::vector<sColumn> prices, curves;
    AddPriceColumns(prices, ticks);
    AddOverlayColumns(curves, settings.Overlays);
    for (int pane = 1; pane < window.ShownPanes(); ++pane)
        AddStudyColumns(curves, pane, settings.Panes.StudyTypes[static_cast<std::size_t>(pane - 1)]);

    std::string text = "date,time";
    for (const sColumn& column : prices)
        text += "," + column.Name;
    text += ",volume";
    for (const sColumn& column : curves)
        text += "," + column.Name;
    text += '\n';

    const CChartHistRequest* const series = window.Series();
    if (series == nullptr || !window.CompleteAndDrawn())
        return text;
    const auto write = [&](const sColumn& column, int point) {
        AddNumber(text,
                  window.Pane(column.Pane).PaneGroups(column.Group).PaneData().PointY(column.Series, point));
    };
    const int first = window.Range().first;
    const int points =
        std::min(window.Pane(0).PaneGroups(1).PaneData().PointCount(1), series->GetCount(FieldTime) - first);
    for (int point = 1; point <= points; ++point) {
        sHIST_DATA data;
        series->GetChartPoint(first + point - 1, data);
        AddMoment(text, data.Time, settings.Request.DataType <= MinuteData);
        for (const sColumn& column : prices)
            write(column, point);
        text += "," + std::to_string(window.Prices().Volume(first + point - 1));
        for (const sColumn& column : curves)
            write(column, point);
        text += '\n';
    }
    return text;
}

} // namespace zantroq
