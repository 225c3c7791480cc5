#include "export/ChartSnapshot.h"

#include "export/DialogJson.h"
#include "scene/PaneFile.h"
#include "window/ChartDlg.h"
#include "window/ContextMenus.h"
#include "window/MessageRecorder.h"
#include "window/WindowTexts.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace zantroq {

namespace {

using Json = nlohmann::ordered_json;

Json Number(double value)
{
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value > 0 ? "inf" : "-inf";
    if (value == HoleValue)
        return nullptr;
    return value;
}

Json RangeToJson(const CChartDlg& window)
{
    const sDisplayRange& range = window.Range();
    Json json;
    json["first"] = range.first;
    json["last"] = range.last;
    json["shown"] = range.shown;
    json["count"] = window.Series() ? window.Series()->GetCount(FieldTime) : 0;
    json["ptsIndex"] = range.ptsIndex;
    json["scrollPos"] = range.scrollPos;
    json["scrollVisible"] = window.ScrollBarVisible();
    json["selectedPoint"] = window.SelectedPoint();
    return json;
}

Json LayoutToJson(const CPaneLayout& layout)
{
    const sPaneStack& stack = layout.Stack();
    const int panes = PaneCount(stack);
    Json types = Json::array(), bounds = Json::array(), bottoms = Json::array(), minimized = Json::array();
    for (int k = 0; k < panes - 1; ++k)
        types.push_back(stack.StudyTypes[static_cast<std::size_t>(k)]);
    for (int k = 0; k <= panes; ++k) {
        bounds.push_back(Number(stack.Bounds[static_cast<std::size_t>(k)]));
        bottoms.push_back(layout.Bottoms()[static_cast<std::size_t>(k)]);
    }
    for (int k = 0; k < panes; ++k)
        minimized.push_back(stack.Minimized[static_cast<std::size_t>(k)]);
    Json json;
    json["studyCount"] = panes - 1;
    json["studyTypes"] = std::move(types);
    json["bounds"] = std::move(bounds);
    json["bottoms"] = std::move(bottoms);
    json["maximizedIndex"] = stack.MaximizedIndex;
    json["minimized"] = std::move(minimized);
    json["topOffset"] = layout.TopOffset();
    json["height"] = layout.Height();
    return json;
}

// The state that a click would find. Menu items are those of the last requested context menu; other commands
// have the state of the toolbar, which is disabled completely while a chart loads.
Json CommandsToJson(const CChartDlg& window)
{
    const sContextMenu price = window.MenuOf(0);
    const sContextMenu clicked = window.MenuOf(window.ClickedPane());
    Json json = Json::object();
    for (const int command : AllCommands) {
        const bool ofPane = command >= CommandRestorePane && command <= CommandMaximizePane;
        const sMenuItem* const item = FindMenuItem((ofPane ? clicked : price).Items, command);
        const ICommandBar& bar = window.Services().Commands;
        const bool button = window.Loading() == 0 && bar.IsEnabled(command);
        json[std::to_string(command)] = {{"enabled", item != nullptr ? item->Enabled : button},
                                         {"checked", bar.IsChecked(command)}};
    }
    return json;
}

Json BoxesToJson(const CChartDlg& window)
{
    Json boxes = Json::array();
    for (const sAskedBox& box : window.AskedBoxes())
        boxes.push_back({{"caption", box.Caption}, {"text", box.Text}, {"answer", AnswerName(box.Answer)}});
    return boxes;
}

Json TrendToJson(const sTrendRecord& trend)
{
    Json json;
    json["kind"] = trend.Kind;
    json["startIndex"] = trend.StartIndex;
    json["endIndex"] = trend.EndIndex;
    json["value"] = Number(trend.Value);
    json["endValue"] = Number(trend.EndValue);
    json["series"] = trend.Series;
    json["color"] = trend.Color;
    json["width"] = trend.Width;
    json["extendable"] = trend.Extendable;
    if (trend.Offset)
        json["offset"] = Number(*trend.Offset);
    if (trend.ThirdIndex)
        json["thirdIndex"] = *trend.ThirdIndex;
    if (trend.ThirdValue)
        json["thirdValue"] = Number(*trend.ThirdValue);
    if (trend.FirstLabel)
        json["firstLabel"] = *trend.FirstLabel;
    return json;
}

Json PanesToJson(const CChartDlg& window)
{
    Json panes = Json::array();
    for (int pane = 0; pane < window.ShownPanes(); ++pane) {
        const sPaneRect rect = window.Layout().PaneRect(pane);
        sPanePlace place;
        place.Control = FirstPaneControl + pane;
        if (pane > 0)
            place.Study = window.Settings().Panes.StudyTypes[static_cast<std::size_t>(pane - 1)];
        place.Rect = {rect.Left, rect.Top, rect.Left + rect.Width, rect.Top + rect.Height};
        panes.push_back(Json(PaneToJson(window.Pane(pane), place)));
    }
    return panes;
}

} // namespace

std::string ChartSnapshotText(const CChartDlg& window)
{
    const sChartSettings& settings = window.Settings();
    const ITopLevelWindow& top = window.Services().Top;
    Json json;
    json["version"] = 1;
    json["symbol"] = window.CurrentSymbol();
    json["title"] = top.Title();
    json["caption"] = top.Caption();
    json["status"] = window.StatusPart(0);
    json["loading"] = window.Loading();
    json["dataType"] = settings.Request.DataType;
    json["intervalMinutes"] = IntervalMinutesAt(settings.Request.IntervalIndex);
    json["range"] = RangeToJson(window);
    json["layout"] = LayoutToJson(window.Layout());
    json["commands"] = CommandsToJson(window);
    json["statusParts"] = {window.StatusPart(0), window.StatusPart(1), window.StatusPart(2)};
    json["boxes"] = BoxesToJson(window);
    Json trends = Json::array();
    for (const sTrendRecord& trend : window.Trends().Records())
        trends.push_back(TrendToJson(trend));
    json["trends"] = std::move(trends);
    json["trendState"] = window.Trends().State();
    const IDialogDriver* const dialog = window.OpenDialog();
    json["dialog"] = dialog != nullptr ? DialogToJson(dialog->Describe()) : Json();
    json["panes"] = PanesToJson(window);
    // Texts from outside may not be UTF-8; the rest must be written nevertheless.
    return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace zantroq
